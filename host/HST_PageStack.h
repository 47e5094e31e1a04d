#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

class HST_Recorder;

// The pages of plug-ins in the host's panel: the one that shows and those shown before it. No
// page is the host's default page, on which no plug-in shows. Every change is recorded.
class HST_PageStack : public QObject
{
    Q_OBJECT

public:
    explicit HST_PageStack(HST_Recorder* recorder, QObject* parent = nullptr);

    QString current() const { return m_current; }
    void show(const QString& name);
    void showDefault();
    void showPrevious();
    // The page closed itself: it is no longer shown, nor gone back to.
    void closed(const QString& name);

signals:
    void changed(const QString& current);

private:
    void setCurrent(const QString& name, const char* op, const QString& argument);

    HST_Recorder* m_recorder;
    QString m_current;
    QStringList m_previous;
};
