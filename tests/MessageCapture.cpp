#include "MessageCapture.h"

#include <QStringList>

namespace {
MessageCapture* g_current = nullptr;
}

MessageCapture::MessageCapture()
    : m_previous(qInstallMessageHandler(&MessageCapture::handler))
{
    g_current = this;
}

MessageCapture::~MessageCapture()
{
    qInstallMessageHandler(m_previous);
    g_current = nullptr;
}

QStringList MessageCapture::texts(QtMsgType type) const
{
    QStringList result;
    for (const auto& line : m_lines) {
        if (line.first == type)
            result.append(line.second);
    }
    return result;
}

void MessageCapture::handler(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (g_current)
        g_current->m_lines.append({type, text});
}
