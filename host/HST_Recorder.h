#pragma once

#include <QFile>
#include <QJsonObject>
#include <QList>
#include <QMutex>
#include <QString>
#include <QtGlobal>

// The record of one run: every event the host saw, kept in memory for in-process tests and
// written as JSON lines to a file for everything else. Callable from any thread.
//
// While it exists it is Qt's message handler: every log line becomes a {"call": "log"} event
// and goes on to the handler that was installed before, which prints it.
class HST_Recorder
{
public:
    explicit HST_Recorder(const QString& path = QString());
    ~HST_Recorder();
    HST_Recorder(const HST_Recorder&) = delete;
    HST_Recorder& operator=(const HST_Recorder&) = delete;

    bool isOpen() const;
    QString errorString() const { return m_error; }

    void record(const QString& call, QJsonObject fields = QJsonObject());

    QList<QJsonObject> events() const;
    // The events of one call, in order.
    QList<QJsonObject> events(const QString& call) const;
    void clear();

private:
    static void handleMessage(
        QtMsgType type, const QMessageLogContext& context, const QString& text);

    mutable QMutex m_mutex;
    QList<QJsonObject> m_events;
    QFile m_file;
    QString m_error;
    QtMessageHandler m_previousHandler = nullptr;
    HST_Recorder* m_previousRecorder = nullptr;
};
