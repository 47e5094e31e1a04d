#include "web/GUI_Dialog.h"

#include "util/UserOperationLog.h"

#include <QEvent>
#include <QKeyEvent>

GUI_Dialog::GUI_Dialog(QWidget* parent, Qt::WindowFlags flags, bool ignoreEscape)
    : QDialog(parent, flags)
    , m_ignoreEscape(ignoreEscape)
{
    connect(this, &GUI_Dialog::signalEnableCloseButton, this, &GUI_Dialog::slotEnableCloseButton);
    connect(this, &GUI_Dialog::signalDisableCloseButton, this,
            &GUI_Dialog::slotDisableCloseButton);
    installEventFilter(this);
}

bool GUI_Dialog::eventFilter(QObject* object, QEvent* event)
{
    if (object == this && event->type() == QEvent::Close)
        logUserOperation(QString::fromLatin1(metaObject()->className()), QStringLiteral("close"),
                         QStringLiteral("Button"), QStringLiteral("clicked"), QString());
    return QDialog::eventFilter(object, event);
}

void GUI_Dialog::userOperationLogWebView(const QString& url, const QString& operation,
                                         const QString& control, const QString& id,
                                         const QString& className, const QVariant& value)
{
    UserOperationLog::writePageOperation(url, operation, control, id, className, value.toString());
}

void GUI_Dialog::userOperationErrorLog(const QString& message)
{
    UserOperationLog::writeError(message);
}

void GUI_Dialog::slotEnableCloseButton()
{
    const Qt::WindowFlags flags = windowFlags();
    if (flags & Qt::WindowCloseButtonHint)
        return;
    setWindowFlags(flags | Qt::WindowCloseButtonHint);
    show();
}

void GUI_Dialog::slotDisableCloseButton()
{
    const Qt::WindowFlags flags = windowFlags();
    if (!(flags & Qt::WindowCloseButtonHint))
        return;
    setWindowFlags(flags & ~Qt::WindowCloseButtonHint);
    show();
}

void GUI_Dialog::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && m_ignoreEscape)
        return;
    QDialog::keyPressEvent(event);
}
