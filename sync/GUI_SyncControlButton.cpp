#include "sync/GUI_SyncControlButton.h"

GUI_SyncControlButton::GUI_SyncControlButton(const QString& ipAddress, QWidget* parent)
    : QPushButton(parent)
    , m_ipAddress(ipAddress)
{
    connect(this, &QPushButton::clicked, this, &GUI_SyncControlButton::slotClick);
}

GUI_SyncControlButton::~GUI_SyncControlButton()
{
    disconnect(this, &QPushButton::clicked, this, &GUI_SyncControlButton::slotClick);
}

void GUI_SyncControlButton::slotClick()
{
    emit signalClicked(m_ipAddress);
}
