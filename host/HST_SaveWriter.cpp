#include "host/HST_SaveWriter.h"

#include "host/HST_AviWriter.h"
#include "host/HST_Preview.h"
#include "util/APP_Exception.h"

#include <QDir>
#include <QFileInfo>
#include <QImageWriter>
#include <QSaveFile>
#include <QtEndian>

namespace {

const QSize largestMovieFrame(320, 240);
const QSize thumbnailSize(160, 120);

[[noreturn]] void fail(const QString& path, const QString& reason)
{
    throw APP_Exception(QStringLiteral("Could not write %1: %2").arg(path, reason), 1);
}

const HST_PartitionSpec* findPartition(const QList<HST_PartitionSpec>& partitions, int number)
{
    for (const HST_PartitionSpec& partition : partitions) {
        if (partition.number == number)
            return &partition;
    }
    return nullptr;
}

void makeDirectory(const QString& file)
{
    const QString directory = QFileInfo(file).absolutePath();
    if (!QDir().mkpath(directory))
        fail(file, QStringLiteral("the directory %1 can't be made").arg(directory));
}

// Grey, one byte a pixel, behind a header: "SIMRAW1", a zero, then width, height, frames and
// bits a pixel as 32-bit little-endian numbers.
QByteArray rawFile(const QList<QImage>& frames)
{
    QByteArray out("SIMRAW1", 8);
    const QImage& first = frames.first();
    for (quint32 value :
        { quint32(first.width()), quint32(first.height()), quint32(frames.size()), 8u }) {
        char bytes[4];
        qToLittleEndian(value, bytes);
        out.append(bytes, 4);
    }
    for (const QImage& frame : frames) {
        const QImage grey = frame.convertToFormat(QImage::Format_Grayscale8);
        for (int y = 0; y < grey.height(); ++y)
            out.append(reinterpret_cast<const char*>(grey.constScanLine(y)), grey.width());
    }
    return out;
}

} // namespace

HST_SaveWriter::HST_SaveWriter(const HST_WriterSpec& spec)
    : m_spec(spec)
{
}

QString HST_SaveWriter::extension(const QString& format)
{
    const QString upper = format.toUpper();
    if (upper == QLatin1String("TIFF"))
        return QStringLiteral(".tif");
    if (upper == QLatin1String("JPEG"))
        return QStringLiteral(".jpg");
    return QLatin1Char('.') + upper.toLower();
}

bool HST_SaveWriter::isMovie(const QString& format)
{
    return format.toUpper() == QLatin1String("AVI");
}

bool HST_SaveWriter::isRaw(const QString& format)
{
    const QString upper = format.toUpper();
    return upper == QLatin1String("RAWQ") || upper == QLatin1String("QRAW")
        || upper == QLatin1String("ZRAW");
}

void HST_SaveWriter::write(const Source& source, const QMap<int, QString>& paths,
    const APP_SaveRequest& request, QStringList& written) const
{
    const QString format = request.format.toUpper();
    if (!m_spec.formats.contains(format))
        throw APP_Exception(QStringLiteral("The host can't write %1 files.").arg(format), 1);
    if (isMovie(format) && !m_spec.codecs.contains(request.codec.toUpper()))
        throw APP_Exception(
            QStringLiteral("The host can't write the codec \"%1\".").arg(request.codec), 1);
    for (auto it = paths.begin(); it != paths.end(); ++it) {
        if (!findPartition(source.partitions, it.key()))
            throw APP_Exception(
                QStringLiteral("The document has no partition %1.").arg(it.key()), 1);
        if (it.value().isEmpty() || QFileInfo(it.value()).fileName().isEmpty())
            throw APP_Exception(QStringLiteral("No file name for partition %1.").arg(it.key()), 1);
    }
    for (auto it = paths.begin(); it != paths.end(); ++it)
        writePartition(
            source, *findPartition(source.partitions, it.key()), it.value(), request, written);
}

void HST_SaveWriter::writePartition(const Source& source, const HST_PartitionSpec& partition,
    const QString& path, const APP_SaveRequest& request, QStringList& written) const
{
    const QString format = request.format.toUpper();
    const QString file = path + extension(format);
    makeDirectory(file);
    const unsigned skip = unsigned(qMax(1, request.skipFrames));
    QString error;
    if (!isMovie(format) && !isRaw(format)) {
        QImageWriter writer(file, format == QLatin1String("TIFF") ? "tif" : format.toLatin1());
        if (!writer.write(HST_Preview::frame(source.key, source.title, partition, 0)))
            fail(file, writer.errorString());
    } else {
        const QSize size = QSize(partition.width, partition.height)
                               .boundedTo(largestMovieFrame)
                               .expandedTo(QSize(1, 1));
        QList<QImage> frames;
        for (unsigned n = 0; frames.size() < maxFrames && (n == 0 || n < partition.frames);
             n += skip)
            frames.append(HST_Preview::frame(source.key, source.title, partition, n, size));
        if (isMovie(format)) {
            if (!HST_AviWriter::write(file, frames, source.framesPerSecond, error))
                fail(file, error);
        } else {
            QSaveFile raw(file);
            const QByteArray bytes = rawFile(frames);
            if (!raw.open(QIODevice::WriteOnly) || raw.write(bytes) != bytes.size()
                || !raw.commit())
                fail(file, raw.errorString());
        }
    }
    written.append(file);
    if (request.saveInfo) {
        HST_InfoFile::Fields fields = source.info;
        fields << qMakePair(QStringLiteral("partition"), QString::number(partition.number))
               << qMakePair(QStringLiteral("partitionname"), partition.name)
               << qMakePair(QStringLiteral("frames"), QString::number(partition.frames))
               << qMakePair(QStringLiteral("skip"), QString::number(skip))
               << qMakePair(QStringLiteral("format"), format)
               << qMakePair(QStringLiteral("codec"), request.codec)
               << qMakePair(QStringLiteral("file"), QFileInfo(file).fileName());
        const QString info = path + HST_InfoFile::suffix;
        if (!HST_InfoFile::write(info, fields, error))
            fail(info, error);
        written.append(info);
    }
    if (request.saveThumbnail) {
        const QString thumbnail = path + request.thumbnailSuffix + QStringLiteral(".png");
        makeDirectory(thumbnail);
        if (!HST_Preview::frame(source.key, source.title, partition, 0, thumbnailSize)
                 .save(thumbnail, "PNG"))
            fail(thumbnail, QStringLiteral("the picture can't be saved"));
        written.append(thumbnail);
    }
}
