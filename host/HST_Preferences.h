#pragma once

#include <QMutex>
#include <QSettings>
#include <QString>
#include <QVariant>
#include <QVariantMap>

class HST_Recorder;

// The host's preferences: an INI file, with a typed copy in memory so that a value keeps the
// type it was written with for the rest of the run (an INI file gives strings back).
class HST_Preferences
{
public:
    HST_Preferences(const QString& path, HST_Recorder* recorder);

    QString path() const;
    // Where the preferences live when no file is given.
    static QString defaultPath();
    // The host's own default of a key, for reads that pass an invalid default; invalid when
    // the host has none.
    static QVariant hostDefault(const QString& key);

    QVariant value(const QString& key, const QVariant& defaultValue) const;
    bool contains(const QString& key) const;
    // Recorded as a setPref event.
    void setValue(const QString& key, const QVariant& value);
    // Not recorded: the scenario's starting values.
    void preset(const QString& key, const QVariant& value);
    void remove(const QString& key);

private:
    mutable QMutex m_mutex;
    QSettings m_settings;
    QVariantMap m_typed;
    HST_Recorder* m_recorder;
};
