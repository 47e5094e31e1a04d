#pragma once

#include <QSet>
#include <QString>

class HST_Recorder;

// What a running save batch has planned, so that two documents of one batch never get the same
// session number. A batch ends at commitPendingNames; the rules are in host/README.md. Every
// operation that changes the notes is recorded as a saveRegistry event.
class HST_SaveRegistry
{
public:
    // Fixed texts are the scenario's overrides; empty: none.
    HST_SaveRegistry(
        HST_Recorder* recorder, const QString& fixedGroupDirectory, const QString& fixedDirectory);

    void commitPendingNames();
    void beginNamePass();
    void beginGroupPass();
    void noteGroupDirectory(const QString& groupDir);
    void noteDirectory(const QString& dir);
    void notePath(const QString& path);
    bool isDirectoryTaken(const QString& dir) const;
    bool isPathTaken(const QString& path) const;
    QString groupDirectoryOverride() const;
    QString directoryOverride() const { return m_fixedDirectory; }

private:
    void record(const char* op, const QString& argument = QString());

    HST_Recorder* m_recorder;
    QString m_fixedGroupDirectory;
    QString m_fixedDirectory;
    // The first group directory noted since the last group pass began.
    QString m_groupDirectory;
    // With a trailing "/".
    QSet<QString> m_directories;
    QSet<QString> m_paths;
};
