#include "host/HST_Recorder.h"

#include <QJsonDocument>
#include <QMutexLocker>

#include <atomic>

namespace {

std::atomic<HST_Recorder*> s_active { nullptr };
std::atomic<QtMessageHandler> s_previous { nullptr };

QString levelName(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return QStringLiteral("debug");
    case QtInfoMsg:
        return QStringLiteral("info");
    case QtWarningMsg:
        return QStringLiteral("warning");
    case QtCriticalMsg:
        return QStringLiteral("critical");
    case QtFatalMsg:
        return QStringLiteral("fatal");
    }
    return QStringLiteral("unknown");
}

} // namespace

HST_Recorder::HST_Recorder(const QString& path)
{
    if (!path.isEmpty()) {
        m_file.setFileName(path);
        if (!m_file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text))
            m_error
                = QStringLiteral("%1: cannot write the record: %2").arg(path, m_file.errorString());
    }
    m_previousRecorder = s_active.exchange(this);
    m_previousHandler = qInstallMessageHandler(&HST_Recorder::handleMessage);
    if (m_previousHandler != &HST_Recorder::handleMessage)
        s_previous.store(m_previousHandler);
}

HST_Recorder::~HST_Recorder()
{
    s_active.store(m_previousRecorder);
    if (!m_previousRecorder) {
        qInstallMessageHandler(s_previous.load());
        s_previous.store(nullptr);
    }
}

bool HST_Recorder::isOpen() const
{
    return m_error.isEmpty();
}

void HST_Recorder::record(const QString& call, QJsonObject fields)
{
    fields.insert(QStringLiteral("call"), call);
    QMutexLocker locker(&m_mutex);
    m_events.append(fields);
    if (m_file.isOpen()) {
        m_file.write(QJsonDocument(fields).toJson(QJsonDocument::Compact));
        m_file.write("\n");
        m_file.flush();
    }
}

QList<QJsonObject> HST_Recorder::events() const
{
    QMutexLocker locker(&m_mutex);
    return m_events;
}

QList<QJsonObject> HST_Recorder::events(const QString& call) const
{
    QList<QJsonObject> found;
    QMutexLocker locker(&m_mutex);
    for (const QJsonObject& event : m_events) {
        if (event.value(QLatin1String("call")).toString() == call)
            found.append(event);
    }
    return found;
}

void HST_Recorder::clear()
{
    QMutexLocker locker(&m_mutex);
    m_events.clear();
}

void HST_Recorder::handleMessage(
    QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (HST_Recorder* recorder = s_active.load())
        recorder->record(QStringLiteral("log"),
            { { QStringLiteral("level"), levelName(type) }, { QStringLiteral("text"), text } });
    if (QtMessageHandler previous = s_previous.load())
        previous(type, context, text);
}
