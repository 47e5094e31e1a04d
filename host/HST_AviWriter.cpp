#include "host/HST_AviWriter.h"

#include <QBuffer>
#include <QSaveFile>
#include <QtEndian>

namespace {

void put32(QByteArray& out, quint32 value)
{
    char bytes[4];
    qToLittleEndian(value, bytes);
    out.append(bytes, 4);
}

void put16(QByteArray& out, quint16 value)
{
    char bytes[2];
    qToLittleEndian(value, bytes);
    out.append(bytes, 2);
}

// A chunk: its code, its size and its data, padded to an even length.
QByteArray chunk(const char* code, const QByteArray& data)
{
    QByteArray out(code, 4);
    put32(out, quint32(data.size()));
    out += data;
    if (data.size() % 2)
        out += '\0';
    return out;
}

QByteArray list(const char* kind, const QByteArray& data)
{
    return chunk("LIST", QByteArray(kind, 4) + data);
}

} // namespace

bool HST_AviWriter::write(
    const QString& path, const QList<QImage>& frames, int framesPerSecond, QString& error)
{
    if (frames.isEmpty()) {
        error = QStringLiteral("no frames");
        return false;
    }
    const int fps = qMax(1, framesPerSecond);
    const quint32 width = quint32(frames.first().width());
    const quint32 height = quint32(frames.first().height());
    QList<QByteArray> jpegs;
    quint32 largest = 0;
    for (const QImage& frame : frames) {
        QByteArray jpeg;
        QBuffer buffer(&jpeg);
        buffer.open(QIODevice::WriteOnly);
        frame.scaled(int(width), int(height)).save(&buffer, "JPEG", 85);
        largest = qMax(largest, quint32(jpeg.size()));
        jpegs.append(jpeg);
    }

    QByteArray main;
    put32(main, quint32(1000000 / fps));
    put32(main, largest * quint32(fps));
    put32(main, 0);
    put32(main, 0x10); // has an index
    put32(main, quint32(frames.size()));
    put32(main, 0);
    put32(main, 1);
    put32(main, largest);
    put32(main, width);
    put32(main, height);
    for (int i = 0; i < 4; ++i)
        put32(main, 0);

    QByteArray stream("vidsMJPG", 8);
    put32(stream, 0);
    put16(stream, 0);
    put16(stream, 0);
    put32(stream, 0);
    put32(stream, 1);
    put32(stream, quint32(fps));
    put32(stream, 0);
    put32(stream, quint32(frames.size()));
    put32(stream, largest);
    put32(stream, 0xFFFFFFFF);
    put32(stream, 0);
    put16(stream, 0);
    put16(stream, 0);
    put16(stream, quint16(width));
    put16(stream, quint16(height));

    QByteArray format;
    put32(format, 40);
    put32(format, width);
    put32(format, height);
    put16(format, 1);
    put16(format, 24);
    format.append("MJPG", 4);
    put32(format, width * height * 3);
    for (int i = 0; i < 4; ++i)
        put32(format, 0);

    const QByteArray header = list(
        "hdrl", chunk("avih", main) + list("strl", chunk("strh", stream) + chunk("strf", format)));

    QByteArray movie;
    QByteArray index;
    for (const QByteArray& jpeg : qAsConst(jpegs)) {
        // Offsets count from the "movi" code.
        index.append("00dc", 4);
        put32(index, 0x10);
        put32(index, quint32(4 + movie.size()));
        put32(index, quint32(jpeg.size()));
        movie += chunk("00dc", jpeg);
    }
    const QByteArray body
        = QByteArray("AVI ", 4) + header + list("movi", movie) + chunk("idx1", index);

    QSaveFile file(path);
    const QByteArray all = chunk("RIFF", body);
    if (!file.open(QIODevice::WriteOnly) || file.write(all) != all.size() || !file.commit()) {
        error = file.errorString();
        return false;
    }
    return true;
}
