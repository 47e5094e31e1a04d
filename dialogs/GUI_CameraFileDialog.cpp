#include "dialogs/GUI_CameraFileDialog.h"

#include "dialogs/CameraSettingsLock.h"
#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"
#include "plugin/SharedKeys.h"
#include "util/UTL_Barrier.h"
#include "util/UTL_Messages.h"
#include "util/UserOperationLog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

GUI_CameraFileDialog::GUI_CameraFileDialog(APP_Host* host, QWidget* parent)
    : GUI_QFileDialog(host, parent, QStringLiteral("Load camera settings"))
{
    setObjectName(QStringLiteral("GUI_CameraFileDialog"));
    setAcceptMode(QFileDialog::AcceptOpen);
    setFileMode(QFileDialog::ExistingFile);
    setNameFilter(QStringLiteral("*.%1 *.%2")
                      .arg(SETTINGS_FILE_SUFFIX.toLower(), SETTINGS_FILE_SUFFIX.toUpper()));
    QString folder;
    UTL_Barrier::reported(m_host, [&] {
        m_host->getPrefString(folder, PREF_KEY_QSETX_PATH, QString());
        addDevices();
    });
    if (!folder.isEmpty())
        setDirectory(folder);
    // Cancel goes through our slot, which logs it.
    if (auto* box = findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"))) {
        disconnect(box, &QDialogButtonBox::rejected, this, nullptr);
        connect(box, &QDialogButtonBox::rejected, this, &GUI_CameraFileDialog::on_cancel_clicked);
    }
}

void GUI_CameraFileDialog::addDevices()
{
    QGridLayout* grid = extraArea();
    if (!grid)
        return;
    m_checkLoadCamera = new QCheckBox(
        UTL_Messages::translate(m_host, QStringLiteral("Load the settings into the cameras")));
    m_checkLoadCamera->setObjectName(QStringLiteral("checkLoadCamera"));
    m_checkLoadCamera->setChecked(true);
    connect(m_checkLoadCamera, &QCheckBox::toggled, this,
        &GUI_CameraFileDialog::on_checkLoadCamera_change);

    m_presetArea = new QWidget;
    m_presetArea->setObjectName(QStringLiteral("presetArea"));
    auto* rows = new QGridLayout(m_presetArea);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(new QLabel(UTL_Messages::translate(m_host, QStringLiteral("Preset"))), 0, 0);
    const QString none = UTL_Messages::translate(m_host, QStringLiteral("None"));
    for (int key : m_host->deviceKeys()) {
        DOC_Interface* document = m_host->document(key);
        if (!document)
            continue;
        const int row = m_devices.size() + 1;
        Device device { key, document->cameraName(true), new QButtonGroup(this) };
        rows->addWidget(new QLabel(device.name), row, 0);
        const int slotCount = document->presetCount();
        for (int preset = 0; preset <= slotCount; ++preset) {
            auto* button = new QRadioButton(preset == 0 ? none : QString::number(preset));
            button->setObjectName(QStringLiteral("preset_%1_%2").arg(key).arg(preset));
            button->setChecked(preset == 0);
            device.choices->addButton(button, preset);
            rows->addWidget(button, row, preset + 1);
            connect(button, &QRadioButton::toggled, this, [this, button](bool on) {
                if (on)
                    logButton(button->objectName(), QStringLiteral("toggled"), button->text());
            });
        }
        m_devices.append(device);
    }
    const int at = grid->rowCount();
    grid->addWidget(m_checkLoadCamera, at, 0, 1, grid->columnCount());
    grid->addWidget(m_presetArea, at + 1, 0, 1, grid->columnCount());
}

int GUI_CameraFileDialog::chosenPreset(int key) const
{
    const QString none = UTL_Messages::translate(m_host, QStringLiteral("None"));
    for (const Device& device : m_devices) {
        if (device.key != key)
            continue;
        for (QAbstractButton* button : device.choices->buttons()) {
            if (button->isChecked() && button->text() != none)
                return button->text().toInt();
        }
    }
    return 0;
}

void GUI_CameraFileDialog::logButton(const QString& id, const QString& action, const QString& value)
{
    logUserOperation(QString::fromLatin1(metaObject()->className()), id, QStringLiteral("Button"),
        action, value);
}

void GUI_CameraFileDialog::on_checkLoadCamera_change(bool check)
{
    logButton(QStringLiteral("checkLoadCamera"), QStringLiteral("toggled"),
        check ? QStringLiteral("ON") : QStringLiteral("OFF"));
    if (m_presetArea)
        m_presetArea->setEnabled(check);
}

void GUI_CameraFileDialog::accept()
{
    // A folder or a name still being typed is the file dialog's business.
    const QStringList files = selectedFiles();
    const QFileInfo chosen(files.isEmpty() ? QString() : files.first());
    if (!chosen.isFile()) {
        QFileDialog::accept();
        return;
    }
    on_ok_clicked();
}

void GUI_CameraFileDialog::on_ok_clicked()
{
    logButton(QStringLiteral("ok"), QStringLiteral("clicked"), QString());
    UTL_Barrier::reported(m_host, [this] { okClicked(); });
}

void GUI_CameraFileDialog::okClicked()
{
    const CameraSettingsLock lock(m_host);
    m_host->stopViewRecording();
    const bool loading = acceptMode() == QFileDialog::AcceptOpen;
    const bool intoCameras = !m_checkLoadCamera || m_checkLoadCamera->isChecked();
    if (loading && intoCameras) {
        const QStringList files = selectedFiles();
        // Refused as a whole: no camera changes, the dialog stays for another file.
        m_host->loadSettingsFile(files.isEmpty() ? QString() : files.first());
    }
    QStringList rebootNames;
    if (loading && intoCameras) {
        for (const Device& device : qAsConst(m_devices)) {
            const int preset = chosenPreset(device.key);
            DOC_Interface* document = preset > 0 ? m_host->document(device.key) : nullptr;
            if (!document)
                continue;
            document->writePreset(preset);
            if (document->presetNeedsReboot(preset))
                rebootNames.append(document->cameraName(true));
        }
    }
    if (!rebootNames.isEmpty())
        m_host->showInformationList(
            UTL_Messages::translate(m_host,
                QStringLiteral("The following camera preset is loaded after rebooting. Please "
                               "restart the camera.")),
            rebootNames);
    QFileDialog::accept();
}

void GUI_CameraFileDialog::on_cancel_clicked()
{
    logButton(QStringLiteral("cancel"), QStringLiteral("clicked"), QString());
    reject();
}
