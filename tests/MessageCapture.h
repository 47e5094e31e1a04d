#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <QtGlobal>

// Collects the lines written through Qt's message logger while it lives.
class MessageCapture
{
public:
    MessageCapture();
    ~MessageCapture();

    MessageCapture(const MessageCapture&) = delete;
    MessageCapture& operator=(const MessageCapture&) = delete;

    const QList<QPair<QtMsgType, QString>>& lines() const { return m_lines; }
    QStringList texts(QtMsgType type) const;
    void clear() { m_lines.clear(); }

private:
    static void handler(QtMsgType type, const QMessageLogContext& context, const QString& text);

    QList<QPair<QtMsgType, QString>> m_lines;
    QtMessageHandler m_previous;
};
