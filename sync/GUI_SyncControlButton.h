#pragma once

#include <QPushButton>

// The "Edit" button of one hub row; it names its hub by address, since rows are rebuilt at
// every update and nothing else ties a row to a hub.
class GUI_SyncControlButton : public QPushButton
{
    Q_OBJECT

public:
    GUI_SyncControlButton(const QString& ipAddress, QWidget* parent);
    ~GUI_SyncControlButton() override;

signals:
    void signalClicked(const QString& ipaddress);

public slots:
    void slotClick();

private:
    QString m_ipAddress;
};
