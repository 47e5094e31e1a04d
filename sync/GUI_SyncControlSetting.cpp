#include "sync/GUI_SyncControlSetting.h"

#include "ui_GUI_SyncControlSetting.h"

#include "plugin/APP_Host.h"
#include "plugin/DOC_LinkCore.h"
#include "sync/SyncAddressFields.h"
#include "util/UTL_BackgroundTask.h"
#include "util/UTL_Barrier.h"
#include "util/UTL_Messages.h"
#include "util/UTL_TextHelpers.h"
#include "util/UserOperationLog.h"

#include <QPushButton>

GUI_SyncControlSetting::GUI_SyncControlSetting(
    APP_Host* host, const QString& ipAddress, QWidget* parent)
    : GUI_Dialog(parent, Qt::Window | Qt::WindowTitleHint | Qt::CustomizeWindowHint, true)
    , m_ui(std::make_unique<Ui_GUI_SyncControlSetting>())
    , m_host(host)
    , m_ipAddress(ipAddress)
{
    m_ui->setupUi(this);
    setMinimumSize(size());
    setMaximumSize(size());
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    setWindowTitle(UTL_Messages::translate(m_host, QStringLiteral("Setting")));
    connect(m_ui->buttonBox->button(QDialogButtonBox::Ok), &QPushButton::clicked, this,
        &GUI_SyncControlSetting::okClicked);
    connect(m_ui->buttonBox->button(QDialogButtonBox::Cancel), &QPushButton::clicked, this,
        &GUI_SyncControlSetting::cancelClicked);

    UTL_Barrier::reported(m_host, [&] {
        m_ui->ipaddress_label->setText(
            UTL_Messages::translate(m_host, QStringLiteral("IP address")));
        m_ui->version_title_label->setText(
            UTL_Messages::translate(m_host, QStringLiteral("LinkCoreVersion")));
        const SyncAddressFields::Fields fields { m_ui->ipLineEdit1, m_ui->ipLineEdit2,
            m_ui->ipLineEdit3, m_ui->ipLineEdit4 };
        SyncAddressFields::setUp(fields);
        if (isIpAddress(m_ipAddress)) {
            DOC_LinkCore* hub = static_cast<APP_LinkCoreManager*>(m_host)->device(m_ipAddress);
            SyncAddressFields::fill(fields, m_ipAddress);
            if (hub)
                m_ui->version_label->setText(hub->firmwareVersion());
        }
    });
}

GUI_SyncControlSetting::~GUI_SyncControlSetting() = default;

void GUI_SyncControlSetting::logClick(const char* slot)
{
    const QString className = QString::fromLatin1(metaObject()->className());
    logUserOperation(className, className + QStringLiteral("::") + QLatin1String(slot),
        QStringLiteral("Button"), QStringLiteral("clicked"), QString());
}

void GUI_SyncControlSetting::okClicked()
{
    UTL_Barrier::reported(m_host, [&] {
        logClick("okClicked");
        const QString newAddress = SyncAddressFields::join(
            { m_ui->ipLineEdit1, m_ui->ipLineEdit2, m_ui->ipLineEdit3, m_ui->ipLineEdit4 });
        if (!isIpAddress(newAddress)) {
            // The dialog has already ended with the click; the user opens it anew.
            m_host->showError(QStringLiteral("Input IPAddress"), nullptr);
            return;
        }
        APP_LinkCoreManager* hubs = m_host;
        const QString oldAddress = m_ipAddress;
        if (UTL_BackgroundTask::run(m_host, QStringLiteral("Reflecting"),
                [hubs, oldAddress, newAddress] { hubs->changeAddress(oldAddress, newAddress); }))
            accept();
    });
}

void GUI_SyncControlSetting::cancelClicked()
{
    UTL_Barrier::reported(m_host, [&] {
        logClick("cancelClicked");
        reject();
    });
}
