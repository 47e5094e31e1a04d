#include "util/GUI_ProgressDialog.h"

#include <QKeyEvent>

GUI_ProgressDialog::GUI_ProgressDialog(const QString& labelText, const QString& cancelButtonText,
                                       int minimum, int maximum, QWidget* parent,
                                       Qt::WindowFlags flags, bool ignoreEscape)
    : QProgressDialog(labelText, cancelButtonText, minimum, maximum, parent, flags)
    , m_ignoreEscape(ignoreEscape)
{
}

void GUI_ProgressDialog::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && m_ignoreEscape)
        return;
    QDialog::keyPressEvent(event);
}
