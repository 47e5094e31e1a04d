#include "host/HST_PageStack.h"

#include "host/HST_Recorder.h"

#include <QJsonObject>

HST_PageStack::HST_PageStack(HST_Recorder* recorder, QObject* parent)
    : QObject(parent)
    , m_recorder(recorder)
{
}

void HST_PageStack::show(const QString& name)
{
    if (name == m_current)
        return;
    if (!m_current.isEmpty())
        m_previous.append(m_current);
    m_previous.removeAll(name);
    setCurrent(name, "show", name);
}

void HST_PageStack::showDefault()
{
    m_previous.clear();
    setCurrent(QString(), "default", QString());
}

void HST_PageStack::showPrevious()
{
    setCurrent(m_previous.isEmpty() ? QString() : m_previous.takeLast(), "previous", QString());
}

void HST_PageStack::closed(const QString& name)
{
    m_previous.removeAll(name);
    if (name == m_current)
        setCurrent(m_previous.isEmpty() ? QString() : m_previous.takeLast(), "closed", name);
    else if (m_recorder)
        m_recorder->record(QStringLiteral("page"),
            { { QStringLiteral("op"), "closed" }, { QStringLiteral("name"), name },
                { QStringLiteral("current"), m_current } });
}

void HST_PageStack::setCurrent(const QString& name, const char* op, const QString& argument)
{
    const bool changing = name != m_current;
    m_current = name;
    if (m_recorder)
        m_recorder->record(QStringLiteral("page"),
            { { QStringLiteral("op"), QLatin1String(op) }, { QStringLiteral("name"), argument },
                { QStringLiteral("current"), m_current } });
    if (changing)
        emit changed(m_current);
}
