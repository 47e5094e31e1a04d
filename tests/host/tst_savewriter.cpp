// What the reference host writes for a save: genuine files of each format, the information
// file and thumbnail beside them, nothing at all for a request it refuses; and the saved check
// reading the information files back.
#include "host/HST_InfoFile.h"
#include "host/HST_SaveWriter.h"
#include "util/APP_Exception.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

class tst_SaveWriter : public QObject
{
    Q_OBJECT

private slots:
    void formats_data();
    void formats();
    void refused_data();
    void refused();
    void savedCheckReadsTheInformationFiles();

private:
    static HST_SaveWriter::Source source();
};

HST_SaveWriter::Source tst_SaveWriter::source()
{
    HST_SaveWriter::Source source;
    source.key = 3;
    source.title = QStringLiteral("Cam");
    HST_PartitionSpec partition;
    partition.number = 2;
    partition.frames = 30;
    partition.width = 64;
    partition.height = 48;
    source.partitions = { partition };
    source.info = { { QStringLiteral("serialno"), QStringLiteral("100007") },
        { QStringLiteral("datano"), QStringLiteral("4") } };
    return source;
}

void tst_SaveWriter::formats_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("head"); // the file's first bytes, or "" for a picture
    QTest::addColumn<int>("skip");
    QTest::addColumn<int>("frames"); // in a movie or raw file
    QTest::newRow("PNG") << "png"
                         << "a.png" << QByteArray() << 1 << 0;
    QTest::newRow("BMP") << "BMP"
                         << "a.bmp" << QByteArray() << 1 << 0;
    QTest::newRow("TIFF") << "TIFF"
                          << "a.tif" << QByteArray() << 1 << 0;
    QTest::newRow("JPEG") << "JPEG"
                          << "a.jpg" << QByteArray() << 1 << 0;
    QTest::newRow("raw: every 7th frame of 30") << "RAWQ"
                                                << "a.rawq" << QByteArray("SIMRAW1") << 7 << 5;
    QTest::newRow("AVI: at most the writer's count")
        << "AVI"
        << "a.avi" << QByteArray("RIFF") << 1 << HST_SaveWriter::maxFrames;
}

void tst_SaveWriter::formats()
{
    QFETCH(QString, format);
    QFETCH(QString, file);
    QFETCH(QByteArray, head);
    QFETCH(int, skip);
    QFETCH(int, frames);
    QTemporaryDir dir;
    APP_SaveRequest request;
    request.format = format;
    request.codec = QStringLiteral("MJPEG");
    request.skipFrames = skip;
    request.saveInfo = true;
    request.saveThumbnail = true;
    request.thumbnailSuffix = QStringLiteral("_t");
    QStringList written;
    const QString path = dir.filePath(QStringLiteral("deep/er/a"));
    HST_SaveWriter(HST_WriterSpec()).write(source(), { { 2, path } }, request, written);
    const QString output = dir.filePath(QStringLiteral("deep/er/") + file);
    QCOMPARE(written, QStringList({ output, path + ".inf", path + "_t.png" }));
    QFile bytes(output);
    QVERIFY(bytes.open(QIODevice::ReadOnly));
    const QByteArray content = bytes.readAll();
    if (head.isEmpty()) {
        QCOMPARE(QImage(output).size(), QSize(64, 48));
    } else {
        QVERIFY(content.startsWith(head));
        if (head == "RIFF") {
            QCOMPARE(content.mid(8, 4), QByteArray("AVI "));
            QCOMPARE(content.count("00dc"), 2 * frames); // a chunk and an index entry each
        } else {
            QCOMPARE(qFromLittleEndian<quint32>(content.constData() + 16), quint32(frames));
            QCOMPARE(content.size(), 24 + frames * 64 * 48);
        }
    }
    QCOMPARE(QImage(path + "_t.png").size(), QSize(160, 120));
    QFile info(path + ".inf");
    QVERIFY(info.open(QIODevice::ReadOnly));
    const QMap<QString, QString> fields = HST_InfoFile::parse(info.readAll());
    QCOMPARE(fields.value("serialno"), QStringLiteral("100007"));
    QCOMPARE(fields.value("partition"), QStringLiteral("2"));
    QCOMPARE(fields.value("skip"), QString::number(skip));
}

void tst_SaveWriter::refused_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("codec");
    QTest::addColumn<int>("partition");
    QTest::addColumn<QString>("text");
    QTest::newRow("a format it doesn't make") << "MOV"
                                              << "" << 2 << "The host can't write MOV files.";
    QTest::newRow("a codec it doesn't make")
        << "AVI"
        << "DIVX" << 2 << "The host can't write the codec \"DIVX\".";
    QTest::newRow("a partition the document hasn't")
        << "PNG"
        << "" << 9 << "The document has no partition 9.";
}

void tst_SaveWriter::refused()
{
    QFETCH(QString, format);
    QFETCH(QString, codec);
    QFETCH(int, partition);
    QTemporaryDir dir;
    APP_SaveRequest request;
    request.format = format;
    request.codec = codec;
    QStringList written;
    try {
        // The good partition comes first: a refusal still writes nothing of it.
        HST_SaveWriter(HST_WriterSpec())
            .write(source(), { { 2, dir.filePath("a") }, { partition, dir.filePath("b") } },
                request, written);
        QFAIL("not refused");
    } catch (const APP_Exception& e) {
        QTEST(QString::fromUtf8(e.what()), "text");
    }
    QVERIFY(written.isEmpty());
    QVERIFY(QDir(dir.path()).isEmpty());
}

void tst_SaveWriter::savedCheckReadsTheInformationFiles()
{
    QTemporaryDir dir;
    QDir(dir.path()).mkpath(QStringLiteral("x/y"));
    QString error;
    QVERIFY(HST_InfoFile::write(
        dir.filePath("x/y/a.inf"), { { "serialno", "1" }, { "datano", "2" } }, error));
    QVERIFY(HST_InfoFile::write(dir.filePath("b.inf"), { { "serialno", "1" } }, error));
    QFile garbage(dir.filePath("c.inf"));
    QVERIFY(garbage.open(QIODevice::WriteOnly));
    garbage.write(QByteArray("\xff\x00=\n=x\nserialno=3\ndatano", 22));
    garbage.close();
    const HST_InfoFile::Fields asked { { "1", "2" }, { "1", "" }, { "3", "" }, { "1", "2" } };
    QCOMPARE(HST_InfoFile::findSaved(dir.path(), asked), HST_InfoFile::Fields({ { "1", "2" } }));
}

QTEST_MAIN(tst_SaveWriter)
#include "tst_savewriter.moc"
