#include "dialogs/CameraNameList.h"

#include "plugin/APP_Host.h"
#include "plugin/SharedKeys.h"
#include "save/NamingText.h"

#include <QDebug>
#include <QFile>
#include <QSet>
#include <QTextCodec>
#include <QTextStream>

#include <exception>

const char* const defaultCameraCategory = "?default?";

namespace {

const int maximumNameLength = 1024;

QString listPath(APP_Host* host)
{
    QString path;
    return host->getPrefString(path, PREF_KEY_USERCUSTOM_CAMERA_NAME_FILE_PATH, QVariant());
}

bool decodesCleanly(QTextCodec* codec, const QByteArray& bytes)
{
    QTextCodec::ConverterState state;
    const QString text = codec->toUnicode(bytes.constData(), bytes.size(), &state);
    // Some codecs put in replacement characters without counting them.
    return state.invalidChars == 0 && state.remainingChars == 0
        && !text.contains(QChar::ReplacementCharacter);
}

} // namespace

QTextCodec* cameraNameListCodec(const QByteArray& bytes)
{
    QTextCodec* utf8 = QTextCodec::codecForName("UTF-8");
    if (decodesCleanly(utf8, bytes))
        return utf8;
    QTextCodec* shiftJis = QTextCodec::codecForName("Shift-JIS");
    if (shiftJis && decodesCleanly(shiftJis, bytes))
        return shiftJis;
    return utf8;
}

void readCameraNameLines(QIODevice& device, CameraNameMap& map)
{
    device.seek(0);
    QTextCodec* codec = cameraNameListCodec(device.readAll());
    device.seek(0);
    QTextStream stream(&device);
    stream.setCodec(codec);
    // Names already in a category, so that a repeated name costs no walk through the list.
    QMap<QString, QSet<QString>> seen;
    QString line;
    while (stream.readLineInto(&line)) {
        QStringList fields = line.split(QLatin1Char(','), Qt::KeepEmptyParts);
        if (fields.size() == 1) {
            QMessageLogger().warning() << "[only category]" << fields.first();
            continue;
        }
        QString category = fields.takeFirst().trimmed();
        if (category.isEmpty())
            category = QLatin1String(defaultCameraCategory);
        QStringList& names = map[category];
        QSet<QString>& known = seen[category];
        if (known.isEmpty())
            known = QSet<QString>(names.begin(), names.end());
        for (const QString& field : qAsConst(fields)) {
            const QString name
                = replaceInvalidCharacters(field, QString()).trimmed().left(maximumNameLength);
            if (name.isEmpty() || known.contains(name))
                continue;
            known.insert(name);
            names.append(name);
        }
    }
}

bool readCameraNameList(APP_Host* host, CameraNameMap& map)
{
    const QString path = listPath(host);
    if (!QFile::exists(path))
        return false;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        QMessageLogger().critical() << "file open failed. [" << path << "]";
        return false;
    }
    try {
        readCameraNameLines(file, map);
    } catch (const std::exception&) {
        QMessageLogger().critical() << "file error occurred. [" << path << "]";
        return false;
    }
    return true;
}

bool cameraNameListExists(APP_Host* host)
{
    const QString path = listPath(host);
    if (!QFile::exists(path))
        return false;
    QMessageLogger().info() << "found file. [" << path << "]";
    return true;
}
