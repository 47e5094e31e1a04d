#include "host/HST_NumberOption.h"

#include "host/HST_Preferences.h"
#include "plugin/SharedKeys.h"

namespace {

// The same families as the plug-in's naming rule.
const OutputKeys& familyKeys(int mode)
{
    if (mode == 6 || mode == 11)
        return PREF_KEYS_CONVERT;
    if (mode == 7)
        return PREF_KEYS_SNAP;
    if (mode == 16 || mode == 17)
        return PREF_KEYS_REPORT;
    return PREF_KEYS_EXPORT;
}

QString familyPrefix(int mode)
{
    const QString dir = familyKeys(mode).dir;
    return dir.left(dir.indexOf(QLatin1Char('/')));
}

int count(HST_Preferences* prefs, const QString& key)
{
    return key.isEmpty() ? 0 : prefs->value(key, QVariant()).toInt();
}

} // namespace

QString HST_NumberOption::text(HST_Preferences* prefs, int mode, int partition, int session,
    const Document& document, bool* usesSession)
{
    if (usesSession)
        *usesSession = false;
    if (!prefs)
        return QString();
    const OutputKeys& keys = familyKeys(mode);
    const QString prefix = familyPrefix(mode);
    QStringList parts;
    if (prefs->value(prefix + QStringLiteral("/filenameaddnumber"), QVariant()).toBool()) {
        const QChar zero(QLatin1Char('0'));
        const int cameraDigits = count(prefs, keys.filenameaddnumbercameranodigits);
        const int headDigits = count(prefs, keys.filenameaddnumberheadnodigits);
        const int sessionDigits = count(prefs, keys.filenameaddnumbersessionnodigits);
        QString number;
        if (cameraDigits >= 1)
            number += QStringLiteral("C%1").arg(document.deviceNumber + 1, cameraDigits, 10, zero);
        if (headDigits >= 1)
            number += QStringLiteral("H%1").arg(document.headNumber, headDigits, 10, zero);
        if (sessionDigits >= 1) {
            number += QStringLiteral("S%1").arg(session, sessionDigits, 10, zero);
            if (usesSession)
                *usesSession = true;
        }
        if (!number.isEmpty())
            parts.append(number);
    }
    if (prefs->value(prefix + QStringLiteral("/filenameadddetails"), QVariant()).toBool()) {
        parts.append(QStringLiteral("P%1").arg(partition));
        if (document.recordingRate > 0)
            parts.append(QStringLiteral("%1fps").arg(document.recordingRate));
    }
    return parts.join(QLatin1Char('_'));
}
