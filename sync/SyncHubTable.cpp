#include "sync/SyncHubTable.h"

#include "plugin/APP_Host.h"
#include "plugin/DOC_LinkCore.h"
#include "sync/GUI_SyncControlButton.h"
#include "sync/GUI_SyncControlCombobox.h"
#include "util/UTL_Barrier.h"
#include "util/UTL_Messages.h"

#include <QTableWidget>

namespace {

const QColor Grey(225, 225, 225);

QTableWidgetItem* hubItem(const QString& text, const QColor& background)
{
    auto* item = new QTableWidgetItem(text);
    item->setBackground(background);
    item->setTextAlignment(Qt::AlignCenter);
    item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    return item;
}

} // namespace

SyncHubTable::SyncHubTable(APP_Host* host, QTableWidget* table, QObject* parent)
    : QObject(parent)
    , m_host(host)
    , m_table(table)
{
}

void SyncHubTable::fill()
{
    APP_LinkCoreManager* manager = m_host;
    QStringList addresses;
    manager->addresses(addresses, true);
    m_table->setRowCount(addresses.size());
    const auto editButton = [this](const QString& address, QWidget* parent) {
        auto* button = new GUI_SyncControlButton(address, parent);
        button->setText(UTL_Messages::translate(m_host, QStringLiteral("Edit")));
        button->setFocusPolicy(Qt::TabFocus);
        connect(button, &GUI_SyncControlButton::signalClicked, this, &SyncHubTable::editClicked);
        return button;
    };
    for (int row = 0; row < addresses.size(); ++row) {
        const QString& address = addresses.at(row);
        // One failing hub costs its row some cells, not the table.
        UTL_Barrier::reported(m_host, [&] {
            DOC_LinkCore* hub = manager->device(address);
            const bool connected = hub && hub->isConnected();
            m_table->setItem(row, 0, hubItem(address, connected ? QColor(Qt::white) : Grey));
            if (!connected) {
                m_table->setItem(row, 1, hubItem(QString(), Grey));
                m_table->setItem(row, 2, hubItem(QString(), Grey));
                GUI_SyncControlButton* button = editButton(address, nullptr);
                button->setEnabled(false);
                m_table->setCellWidget(row, 3, button);
                return;
            }
            const int mode = hub->syncMode();
            QList<int> frequencies;
            hub->frequencies(frequencies);
            m_table->setItem(row, 1, hubItem(hub->syncModeText(), Qt::white));
            if (mode == 0) {
                auto* combo
                    = new GUI_SyncControlCombobox(address, frequencies, hub->frequency(), m_table);
                combo->setStyleSheet(
                    QStringLiteral("QComboBox { background-color: white; text-align:center;}"));
                connect(combo, &GUI_SyncControlCombobox::signalTextChanged, this,
                    &SyncHubTable::frequencyChanged, Qt::QueuedConnection);
                m_table->setCellWidget(row, 2, combo);
            } else {
                m_table->setItem(row, 2, hubItem(QString(), Grey));
            }
            m_table->setCellWidget(row, 3, editButton(address, m_table));
        });
    }
    m_table->setEditTriggers(QAbstractItemView::AnyKeyPressed);
}

void SyncHubTable::clear()
{
    for (int row = 0; row < m_table->rowCount(); ++row) {
        if (auto* combo = qobject_cast<GUI_SyncControlCombobox*>(m_table->cellWidget(row, 2))) {
            m_table->setCellWidget(row, 2, nullptr);
            disconnect(combo, &GUI_SyncControlCombobox::signalTextChanged, this,
                &SyncHubTable::frequencyChanged);
        }
        if (auto* button = qobject_cast<GUI_SyncControlButton*>(m_table->cellWidget(row, 3))) {
            m_table->setCellWidget(row, 3, nullptr);
            disconnect(
                button, &GUI_SyncControlButton::signalClicked, this, &SyncHubTable::editClicked);
        }
    }
    m_table->setRowCount(0);
}

int SyncHubTable::connectedInternalHubs(bool whilePainting)
{
    APP_LinkCoreManager* manager = m_host;
    QStringList addresses;
    manager->addresses(addresses, true);
    int count = 0;
    for (const QString& address : qAsConst(addresses)) {
        const auto countHub = [&] {
            DOC_LinkCore* hub = manager->device(address);
            if (hub && hub->isConnected() && hub->syncMode() == 0)
                ++count;
        };
        // A box opened from a paint event would paint again under it: there, the log.
        if (whilePainting)
            UTL_Barrier::logged("SyncHubTable::connectedInternalHubs", countHub);
        else
            UTL_Barrier::reported(m_host, countHub);
    }
    return count;
}
