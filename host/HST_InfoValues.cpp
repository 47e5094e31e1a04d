#include "host/HST_InfoValues.h"

#include "host/HST_CameraState.h"
#include "host/HST_Document.h"
#include "host/HST_Preferences.h"
#include "plugin/APP_TimeCodeRecord.h"
#include "plugin/SharedKeys.h"

#include <QDate>
#include <QHash>
#include <QSet>
#include <QVariantMap>

#include <cmath>

namespace {

const InfoItem* findItem(const QString& key)
{
    static const QHash<QString, const InfoItem*> items = [] {
        QHash<QString, const InfoItem*> table;
        for (const InfoItem* item = INFO_ITEMS; !item->key.isEmpty(); ++item) {
            if (item->key != INFO_KEY_SEPARATOR)
                table.insert(item->key, item);
        }
        return table;
    }();
    return items.value(key, nullptr);
}

bool exists(const InfoItem& item, int mode)
{
    switch (mode) {
    case 0:
        return item.live;
    case 1:
        return item.memory;
    case 2:
        return item.file;
    default:
        return item.saved;
    }
}

bool pref(const HST_Preferences* prefs, const QString& key)
{
    return prefs && prefs->value(key, QVariant()).toBool();
}

int prefInt(const HST_Preferences* prefs, const QString& key)
{
    return prefs ? prefs->value(key, QVariant()).toInt() : 0;
}

// Nine digits of a fraction, cut to the decimal places (0: as many as needed), grouped by
// three when asked.
QString fraction(qint64 nanoseconds, int places, bool divide)
{
    QString digits = QStringLiteral("%1").arg(nanoseconds, 9, 10, QLatin1Char('0'));
    if (places >= 1)
        digits.truncate(places);
    else
        while (digits.endsWith(QLatin1Char('0')))
            digits.chop(1);
    if (digits.isEmpty())
        return QString();
    QString text;
    for (int i = 0; i < digits.size(); ++i) {
        if (divide && i > 0 && i % 3 == 0)
            text += QLatin1Char(' ');
        text += digits.at(i);
    }
    return QLatin1Char('.') + text;
}

QString twoDigits(qint64 value)
{
    return QStringLiteral("%1").arg(value, 2, 10, QLatin1Char('0'));
}

QString threeDigits(qint64 value)
{
    return QStringLiteral("%1").arg(value, 3, 10, QLatin1Char('0'));
}

} // namespace

QString HST_InfoValues::grouped(qint64 number, bool delimiter)
{
    QString digits = QString::number(std::llabs(number));
    if (delimiter) {
        for (int at = digits.size() - 3; at > 0; at -= 3)
            digits.insert(at, QLatin1Char(','));
    }
    return number < 0 ? QLatin1Char('-') + digits : digits;
}

QString HST_InfoValues::shutterSpeed(int format, int unit, bool delimiter)
{
    if (format != 1)
        return QStringLiteral("1/%1 sec").arg(grouped(1000000 / exposureMicroseconds, delimiter));
    switch (unit) {
    case 1:
        return QStringLiteral("%1 msec").arg(exposureMicroseconds / 1000.0, 0, 'f', 3);
    case 2:
        return QStringLiteral("%1 usec").arg(grouped(exposureMicroseconds, delimiter));
    default:
        return QStringLiteral("%1 sec").arg(exposureMicroseconds / 1000000.0, 0, 'f', 6);
    }
}

QString HST_InfoValues::recordingTime(qint64 frames, int unit)
{
    const qint64 milliseconds = frames * 1000 / frameRate;
    switch (unit) {
    case 1:
        return QStringLiteral("%1 msec").arg(milliseconds);
    case 2:
        return QStringLiteral("%1:%2:%3.%4")
            .arg(twoDigits(milliseconds / 3600000), twoDigits(milliseconds / 60000 % 60),
                twoDigits(milliseconds / 1000 % 60), threeDigits(milliseconds % 1000));
    default:
        return QStringLiteral("%1 sec").arg(double(milliseconds) / 1000.0, 0, 'f', 3);
    }
}

QString HST_InfoValues::timeCode(const APP_TimeCodeRecord& record, qint64 frame)
{
    if (record.index != 0) {
        double step = record.oneFrame;
        qint64 counted = frame;
        if (record.reset && step != 0.0) {
            // Back to the start once the reset value is reached.
            const double cycle = std::ceil((record.resetValue - record.startValue) / step);
            if (cycle >= 1.0 && cycle < 1e12)
                counted = frame % qint64(cycle);
        }
        const double value = record.startValue + double(counted) * step;
        return (value < 0 ? QStringLiteral("-") : QStringLiteral("+"))
            + QString::number(std::fabs(value), 'f', 4) + QLatin1Char(' ') + record.displayUnit;
    }
    const qint64 nanoseconds = frame * (1000000000 / frameRate);
    const int places = qBound(0, record.decimalPlaceIndex, 9);
    const bool divide = record.decimalDivide;
    const qint64 seconds = nanoseconds / 1000000000;
    switch (record.scopeDisplayIndex) {
    case 1:
        return QStringLiteral("+%1:%2").arg(twoDigits(seconds / 60), twoDigits(seconds % 60))
            + fraction(nanoseconds % 1000000000, places, divide);
    case 2:
        return QLatin1Char('+') + threeDigits(seconds)
            + fraction(nanoseconds % 1000000000, places, divide) + QStringLiteral(" sec");
    case 3:
        return QLatin1Char('+') + threeDigits(nanoseconds / 1000000)
            + fraction(nanoseconds % 1000000 * 1000, places, divide) + QStringLiteral(" msec");
    case 4:
        return QLatin1Char('+') + threeDigits(nanoseconds / 1000)
            + fraction(nanoseconds % 1000 * 1000000, places, divide) + QStringLiteral(" usec");
    case 5:
        return QLatin1Char('+') + threeDigits(nanoseconds) + QStringLiteral(" nsec");
    default:
        return QStringLiteral("+%1:%2:%3")
                   .arg(twoDigits(seconds / 3600), twoDigits(seconds / 60 % 60),
                       twoDigits(seconds % 60))
            + fraction(nanoseconds % 1000000000, places, divide);
    }
}

qint64 HST_InfoValues::currentFrame(const HST_Document& document)
{
    const QList<HST_PartitionSpec>& partitions = document.spec().partitions;
    return partitions.isEmpty() ? 0 : qint64(partitions.first().frames / 2);
}

QStringList HST_InfoValues::itemTexts(const Source& source, const QString& key)
{
    const HST_Document& document = *source.document;
    const HST_CameraState* camera = document.cameraState();
    const HST_Preferences* prefs = source.prefs;
    const QList<HST_PartitionSpec>& partitions = document.spec().partitions;
    const qint64 frames = partitions.isEmpty() ? 0 : qint64(partitions.first().frames);
    const bool frameDelimiter = pref(prefs, PREF_KEY_DISPLAY_FRAME_INSERT_DELIMITER);

    if (key == INFO_KEY_CUSTOM) {
        QStringList texts;
        for (const QVariant& item : document.customItems()) {
            const QVariantMap map = item.toMap();
            if (map.value(QStringLiteral("display")).toString() != SETTING_VALUE_ON)
                continue;
            QString text = map.value(QStringLiteral("name")).toString() + QStringLiteral(": ")
                + map.value(QStringLiteral("value")).toString();
            const QString unit = map.value(QStringLiteral("unit")).toString();
            if (!unit.isEmpty())
                text += QLatin1Char(' ') + unit;
            texts.append(text);
        }
        return texts;
    }

    QString value;
    if (key == INFO_KEY_COMMENT) {
        const QString comment = document.commentText();
        if (comment.isEmpty())
            return {};
        // The mark some hosts store for a line break.
        value = QString(comment).replace(COMMENT_SEPARATOR, QStringLiteral("\n"));
    } else if (key == INFO_KEY_SYNC_SIGNAL_STATE) {
        value = camera && camera->syncRequired.load() ? QStringLiteral("Not synchronized")
                                                      : QStringLiteral("Synchronized");
    } else if (key == INFO_KEY_CAMERA_STATE) {
        value = camera && camera->spec.connected ? QStringLiteral("Live")
                                                 : QStringLiteral("Disconnected");
    } else if (key == INFO_KEY_CAMERA_NAME || key == INFO_KEY_DEVICE) {
        value = document.title();
    } else if (key == INFO_KEY_FILE_NAME) {
        value = document.spec().filePath.isEmpty() ? document.fileName() : document.spec().filePath;
    } else if (key == INFO_KEY_HEAD) {
        value = QString::number(camera ? camera->spec.headNumber : 0);
    } else if (key == INFO_KEY_PARTITION_NUMBER) {
        value = QString::number(partitions.isEmpty() ? 0 : partitions.first().number);
    } else if (key == INFO_KEY_DATE || key == INFO_KEY_REC_DATE_TIME || key == INFO_KEY_TIME) {
        const QString date = QDate::currentDate().toString(DATE_FORMAT);
        value = key == INFO_KEY_DATE ? date
            : key == INFO_KEY_TIME   ? QStringLiteral("12:00:00")
                                     : date + QStringLiteral(" 12:00:00");
    } else if (key == INFO_KEY_FRAME_RATE) {
        value = grouped(frameRate, pref(prefs, PREF_KEY_DISPLAY_RECORD_RATE_INSERT_DELIMITER))
            + QStringLiteral(" fps");
    } else if (key == INFO_KEY_SHUTTER_SPEED) {
        value = shutterSpeed(prefInt(prefs, PREF_KEY_DISPLAY_SHUTTER_SPEED),
            prefInt(prefs, PREF_KEY_DISPLAY_SHUTTER_SPEED_UNIT),
            pref(prefs, PREF_KEY_DISPLAY_SHUTTER_SPEED_INSERT_DELIMITER));
    } else if (key == INFO_KEY_RESOLUTION) {
        const QSize size = document.resolution();
        value = QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
    } else if (key == INFO_KEY_FRAME_NUMBER) {
        value = grouped(currentFrame(document), frameDelimiter);
    } else if (key == INFO_KEY_MAX_FRAMES) {
        value = grouped(frames, frameDelimiter);
    } else if (key == INFO_KEY_LENGTH) {
        value = recordingTime(frames, prefInt(prefs, PREF_KEY_INFO_REC_TIME_UNIT));
    } else if (key == INFO_KEY_TIME_IRIG_CODE || key == INFO_KEY_TIME_CODE) {
        value = source.timeCode ? timeCode(*source.timeCode, currentFrame(document)) : QString();
    } else if (key == INFO_KEY_TRIGGER) {
        value = QStringLiteral("Mode %1").arg(camera ? camera->spec.triggerMode : 0);
    } else if (key == INFO_KEY_ZOOM_RATE) {
        value = QStringLiteral("100%");
    } else if (key == INFO_KEY_LIVE_SPEED) {
        value = QStringLiteral("x1");
    } else {
        value = QStringLiteral("-");
    }
    const InfoItem* item = findItem(key);
    const QString label
        = item && source.translate ? source.translate(item->label) : (item ? item->label : key);
    QStringList texts = value.split(QLatin1Char('\n'));
    texts.first().prepend(label + QStringLiteral(": "));
    return texts;
}

QList<HST_InfoLine> HST_InfoValues::lines(
    const Source& source, int mode, const QString& displayText, bool blankLine)
{
    QList<HST_InfoLine> lines;
    if (!source.document)
        return lines;
    QSet<QString> seen;
    for (const QStringRef& piece : displayText.splitRef(QLatin1Char(','))) {
        if (piece == INFO_KEY_SEPARATOR) {
            lines.append({ HST_InfoLine::Gap, QString() });
            continue;
        }
        const int colon = piece.indexOf(QLatin1Char(':'));
        if (colon <= 0)
            continue;
        const QString key = piece.left(colon).toString();
        const InfoItem* item = findItem(key);
        if (!item || !exists(*item, mode) || seen.contains(key))
            continue;
        seen.insert(key);
        const QStringRef state = piece.mid(colon + 1);
        if (state != QLatin1String("true") && !state.startsWith(QLatin1String("true:"))) {
            if (blankLine)
                lines.append({ HST_InfoLine::Blank, QString() });
            continue;
        }
        if (key == INFO_KEY_LOGO) {
            lines.append({ HST_InfoLine::Logo, QString() });
            continue;
        }
        for (const QString& text : itemTexts(source, key))
            lines.append({ HST_InfoLine::Text, text });
    }
    return lines;
}
