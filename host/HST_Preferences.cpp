#include "host/HST_Preferences.h"

#include "host/HST_InfoDefaults.h"
#include "host/HST_Recorder.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonValue>
#include <QMutexLocker>
#include <QStandardPaths>

HST_Preferences::HST_Preferences(const QString& path, HST_Recorder* recorder)
    : m_settings(path, QSettings::IniFormat)
    , m_recorder(recorder)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
}

QString HST_Preferences::path() const
{
    return m_settings.fileName();
}

QString HST_Preferences::defaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QStringLiteral("/tarvix4host/preferences.ini");
}

QVariant HST_Preferences::hostDefault(const QString& key)
{
    // Keys whose readers leave the default to the host; README lists the same table.
    static const struct
    {
        const char* key;
        QVariant value;
    } defaults[] = {
        { "sync/external", false },
        { "sync/generator/ctrl", false },
        { "sync/masterCamera", QString() },
        { "sync/generator/address", QString() },
        { "env/style", QStringLiteral("light") },
        { "main/scrno", 0 },
    };
    for (const auto& entry : defaults) {
        if (key == QLatin1String(entry.key))
            return entry.value;
    }
    return HST_InfoDefaults::value(key);
}

QVariant HST_Preferences::value(const QString& key, const QVariant& defaultValue) const
{
    QMutexLocker locker(&m_mutex);
    if (m_typed.contains(key))
        return m_typed.value(key);
    if (m_settings.contains(key))
        return m_settings.value(key);
    return defaultValue.isValid() ? defaultValue : hostDefault(key);
}

bool HST_Preferences::contains(const QString& key) const
{
    QMutexLocker locker(&m_mutex);
    return m_typed.contains(key) || m_settings.contains(key);
}

void HST_Preferences::setValue(const QString& key, const QVariant& value)
{
    preset(key, value);
    if (m_recorder)
        m_recorder->record(QStringLiteral("setPref"),
            { { QStringLiteral("key"), key },
                { QStringLiteral("value"), QJsonValue::fromVariant(value) } });
}

void HST_Preferences::preset(const QString& key, const QVariant& value)
{
    QMutexLocker locker(&m_mutex);
    m_typed.insert(key, value);
    m_settings.setValue(key, value);
    m_settings.sync();
}

void HST_Preferences::remove(const QString& key)
{
    QMutexLocker locker(&m_mutex);
    m_typed.remove(key);
    m_settings.remove(key);
    m_settings.sync();
}
