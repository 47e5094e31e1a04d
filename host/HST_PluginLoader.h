#pragma once

#include <QLibrary>
#include <QString>

class APP_Host;
class PLG_Interface;

// Loads one plug-in file at run time, makes its object through "makeButtonPlugin" and hands it
// the host. The library stays mapped after the object is gone: Qt's meta data and resources of
// the file may still be referenced until the process ends.
class HST_PluginLoader
{
public:
    explicit HST_PluginLoader(const QString& path);
    ~HST_PluginLoader();
    HST_PluginLoader(const HST_PluginLoader&) = delete;
    HST_PluginLoader& operator=(const HST_PluginLoader&) = delete;

    // On failure, error names the file and what is wrong with it.
    bool load(APP_Host* host, QString& error);
    // Deletes the plug-in object, through its virtual destructor.
    void release();

    QString path() const { return m_path; }
    PLG_Interface* plugin() const { return m_plugin; }
    QString name() const { return m_name; }

private:
    QString m_path;
    QLibrary m_library;
    PLG_Interface* m_plugin = nullptr;
    QString m_name;
};
