#include "sync/GUI_SyncControlSearchSetting.h"

#include "ui_GUI_SyncControlSearchSetting.h"

#include "plugin/APP_Host.h"
#include "sync/SyncAddressFields.h"
#include "util/UTL_Barrier.h"
#include "util/UTL_Messages.h"
#include "util/UTL_TextHelpers.h"
#include "util/UserOperationLog.h"

#include <QPushButton>

GUI_SyncControlSearchSetting::GUI_SyncControlSearchSetting(APP_Host* host, QWidget* parent)
    : GUI_Dialog(parent, Qt::Window | Qt::WindowTitleHint | Qt::CustomizeWindowHint, true)
    , m_ui(std::make_unique<Ui_GUI_SyncControlSearchSetting>())
    , m_host(host)
{
    m_ui->setupUi(this);
    setMinimumSize(size());
    setMaximumSize(size());
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    setWindowTitle(UTL_Messages::translate(m_host, QStringLiteral("SearchSetting")));
    connect(m_ui->buttonBox->button(QDialogButtonBox::Ok), &QPushButton::clicked, this,
        &GUI_SyncControlSearchSetting::okClicked);
    connect(m_ui->buttonBox->button(QDialogButtonBox::Cancel), &QPushButton::clicked, this,
        &GUI_SyncControlSearchSetting::cancelClicked);

    QTableWidget* table = m_ui->tableWidget;
    UTL_Barrier::reported(m_host, [&] {
        QStringList list;
        static_cast<APP_LinkCoreManager*>(m_host)->addresses(list, true);
        table->clear();
        m_ui->addButton->setText(UTL_Messages::translate(m_host, QStringLiteral("Add")));
        m_ui->deleteButton->setText(UTL_Messages::translate(m_host, QStringLiteral("Delete")));
        table->setColumnCount(1);
        table->setRowCount(list.size());
        table->setColumnWidth(0, table->width());
        table->setSelectionMode(QAbstractItemView::MultiSelection);
        table->setHorizontalHeaderItem(
            0, new QTableWidgetItem(UTL_Messages::translate(m_host, QStringLiteral("IP address"))));
        table->horizontalHeader()->setStyleSheet(
            QStringLiteral("QHeaderView::section {background-color: #2C7CFF; color: white; "
                           "border-style: inset; border-color: #5D99FF; border-width:1px;}"));
        const SyncAddressFields::Fields fields { m_ui->ipLineEdit1, m_ui->ipLineEdit2,
            m_ui->ipLineEdit3, m_ui->ipLineEdit4 };
        SyncAddressFields::setUp(fields);
        // A start the user edits, whatever the list holds.
        SyncAddressFields::fill(fields, QStringLiteral("192.168.0.100"));
        reload();
    });
}

GUI_SyncControlSearchSetting::~GUI_SyncControlSearchSetting() = default;

void GUI_SyncControlSearchSetting::reload()
{
    QStringList list;
    static_cast<APP_LinkCoreManager*>(m_host)->addresses(list, true);
    QTableWidget* table = m_ui->tableWidget;
    table->setRowCount(0);
    table->setRowCount(list.size());
    for (int row = 0; row < list.size(); ++row) {
        auto* item = new QTableWidgetItem(list.at(row));
        item->setTextAlignment(Qt::AlignCenter);
        item->setBackground(Qt::white);
        // Editable to the eye only: the host's list is what counts, and the next reload shows it.
        item->setFlags(item->flags() | Qt::ItemIsEditable);
        table->setItem(row, 0, item);
    }
    table->horizontalHeader()->setStretchLastSection(true);
    table->setEditTriggers(QAbstractItemView::AnyKeyPressed);
}

void GUI_SyncControlSearchSetting::logClick(const char* slot)
{
    const QString className = QString::fromLatin1(metaObject()->className());
    logUserOperation(className, className + QStringLiteral("::") + QLatin1String(slot),
        QStringLiteral("Button"), QStringLiteral("clicked"), QString());
}

void GUI_SyncControlSearchSetting::on_addButton_clicked()
{
    UTL_Barrier::reported(m_host, [&] {
        const QString address = SyncAddressFields::join(
            { m_ui->ipLineEdit1, m_ui->ipLineEdit2, m_ui->ipLineEdit3, m_ui->ipLineEdit4 });
        if (!isIpAddress(address)) {
            m_host->showError(QStringLiteral("Input IPAddress"), nullptr);
            return;
        }
        static_cast<APP_LinkCoreManager*>(m_host)->addSearchAddress(address);
        reload();
    });
}

void GUI_SyncControlSearchSetting::on_deleteButton_clicked()
{
    UTL_Barrier::reported(m_host, [&] {
        APP_LinkCoreManager* hubs = m_host;
        for (const QTableWidgetItem* item : m_ui->tableWidget->selectedItems())
            hubs->removeSearchAddress(item->text());
        reload();
    });
}

void GUI_SyncControlSearchSetting::okClicked()
{
    UTL_Barrier::reported(m_host, [&] {
        logClick("okClicked");
        static_cast<APP_LinkCoreManager*>(m_host)->commitSearchList();
        accept();
    });
}

void GUI_SyncControlSearchSetting::cancelClicked()
{
    // Cancel always leaves; a failed rollback is reported on the way out.
    UTL_Barrier::reported(m_host, [&] {
        logClick("cancelClicked");
        static_cast<APP_LinkCoreManager*>(m_host)->rollbackSearchList();
    });
    reject();
}
