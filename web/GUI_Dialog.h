#pragma once

#include <QDialog>
#include <QVariant>

// Base of every dialog: can refuse Escape, can switch its close button on and off (also from a
// worker thread, through the two signals), and logs every close through the window's own button.
class GUI_Dialog : public QDialog
{
    Q_OBJECT

public:
    GUI_Dialog(QWidget* parent, Qt::WindowFlags flags, bool ignoreEscape);

    bool eventFilter(QObject* object, QEvent* event) override;

signals:
    void signalEnableCloseButton();
    void signalDisableCloseButton();

public slots:
    void userOperationLogWebView(const QString& url, const QString& operation,
                                 const QString& control, const QString& id,
                                 const QString& className, const QVariant& value);
    void userOperationErrorLog(const QString& message);
    void slotEnableCloseButton();
    void slotDisableCloseButton();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool m_ignoreEscape;
};
