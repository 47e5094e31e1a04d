#pragma once

#include <QProgressDialog>

// Base of the system's running-bar dialogs: optionally deaf to Escape, since a bar without a
// cancel button must not be closed while its work goes on.
class GUI_ProgressDialog : public QProgressDialog
{
    Q_OBJECT

public:
    GUI_ProgressDialog(const QString& labelText, const QString& cancelButtonText, int minimum,
                       int maximum, QWidget* parent, Qt::WindowFlags flags, bool ignoreEscape);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool m_ignoreEscape;
};
