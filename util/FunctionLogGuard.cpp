#include "util/FunctionLogGuard.h"

#include <QDebug>

FunctionLogGuard::FunctionLogGuard(const QString& name, const QString& parameters)
    : m_name(name)
    , m_parameters(normalized(parameters))
{
    writeEnter(m_name, m_parameters);
}

FunctionLogGuard::~FunctionLogGuard()
{
    writeLeave(m_name);
}

QString FunctionLogGuard::parameter(const QString& name, const QVariant& value)
{
    return QStringLiteral("[") + name + QStringLiteral(":") + value.toString()
           + QStringLiteral("] ");
}

QString FunctionLogGuard::normalized(const QString& parameters)
{
    QString text = parameters.trimmed();
    text.replace(QStringLiteral("docKey:-1"), QStringLiteral("docKey:Invalid"));
    return text;
}

void FunctionLogGuard::writeEnter(const QString& name, const QString& parameters)
{
    QMessageLogger().info() << QString::fromLatin1("[ENTER]").toLocal8Bit().constData() << name
                            << parameters;
}

void FunctionLogGuard::writeLeave(const QString& name)
{
    QMessageLogger().info() << QString::fromLatin1("[LEAVE]").toLocal8Bit().constData() << name;
}
