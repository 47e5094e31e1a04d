#include "sync/GUI_SyncControlCombobox.h"

GUI_SyncControlCombobox::GUI_SyncControlCombobox(const QString& ipAddress,
                                                 const QList<int>& frequencies, int current,
                                                 QWidget* parent)
    : QComboBox(parent)
    , m_ipAddress(ipAddress)
{
    for (const int frequency : frequencies)
        addItem(QString::number(frequency), frequency);
    // A frequency the hub doesn't list leaves the first item shown; m_value keeps the truth.
    const int index = findText(QString::number(current));
    if (index >= 0)
        setCurrentIndex(index);
    m_value = current;
    connect(this, &QComboBox::currentTextChanged, this, &GUI_SyncControlCombobox::slotTextChanged);
}

GUI_SyncControlCombobox::~GUI_SyncControlCombobox()
{
    disconnect(this, &QComboBox::currentTextChanged, this,
               &GUI_SyncControlCombobox::slotTextChanged);
}

void GUI_SyncControlCombobox::slotTextChanged()
{
    const int selected = currentData().toInt();
    if (selected == m_value)
        return;
    m_value = selected;
    emit signalTextChanged(this, m_ipAddress, selected);
}
