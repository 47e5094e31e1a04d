#include "roi/GUI_RoiPanel.h"

#include "roi/PLG_roi.h"
#include "ui_GUI_RoiPanel.h"
#include "util/UTL_Barrier.h"
#include "util/UTL_Messages.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QSpinBox>

#include <iterator>

namespace {

// rectangleParameters' keys in the order a page lists them.
const char* const ParameterKeys[]
    = { "Width", "WidthMin", "WidthMax", "WidthStep", "Height", "HeightMin", "HeightMax",
          "HeightStep", "PosX", "PosXMin", "PosXMax", "PosXStep", "PosY", "PosYMin", "PosYMax",
          "PosYStep", "FixAspect", "OriginalAspect", "CurrentWidth", "CurrentHeight" };

} // namespace

GUI_RoiPanel::GUI_RoiPanel(PLG_roi* plugin, APP_Host* host, QWidget* parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::GUI_RoiPanel>())
    , m_plugin(plugin)
    , m_host(host)
{
    m_ui->setupUi(this);
    translateTexts();
    m_ui->parametersTable->setRowCount(static_cast<int>(std::size(ParameterKeys)));
    for (int row = 0; row < m_ui->parametersTable->rowCount(); ++row) {
        m_ui->parametersTable->setItem(
            row, 0, new QTableWidgetItem(QLatin1String(ParameterKeys[row])));
        m_ui->parametersTable->setItem(row, 1, new QTableWidgetItem);
    }
    const auto spinBoxes = findChildren<QSpinBox*>();
    for (QSpinBox* spinBox : spinBoxes)
        connect(spinBox, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &GUI_RoiPanel::applySettings);
    const auto checkBoxes = findChildren<QCheckBox*>();
    for (QCheckBox* checkBox : checkBoxes)
        connect(checkBox, &QCheckBox::toggled, this, &GUI_RoiPanel::applySettings);

    m_refreshTimer.setSingleShot(true);
    m_refreshTimer.setInterval(0);
    connect(&m_refreshTimer, &QTimer::timeout, this, &GUI_RoiPanel::refresh);
    refresh();
}

GUI_RoiPanel::~GUI_RoiPanel() = default;

void GUI_RoiPanel::translateTexts()
{
    const auto translate
        = [this](const QString& text) { return UTL_Messages::translate(m_host, text); };
    const auto labels = findChildren<QLabel*>();
    for (QLabel* label : labels)
        label->setText(translate(label->text()));
    const auto buttons = findChildren<QAbstractButton*>();
    for (QAbstractButton* button : buttons)
        button->setText(translate(button->text()));
    const auto groups = findChildren<QGroupBox*>();
    for (QGroupBox* group : groups)
        group->setTitle(translate(group->title()));
    const QStringList headers { translate(QStringLiteral("Parameter")),
        translate(QStringLiteral("Value")) };
    m_ui->parametersTable->setHorizontalHeaderLabels(headers);
}

void GUI_RoiPanel::showSettings()
{
    const PLG_RectangleConstraints settings = m_plugin->settings();
    // Filling the controls is no change of the user's.
    m_showingSettings = true;
    m_ui->positionStepXSpin->setValue(settings.positionStep.x());
    m_ui->positionStepYSpin->setValue(settings.positionStep.y());
    m_ui->sizeStepWidthSpin->setValue(settings.sizeStep.width());
    m_ui->sizeStepHeightSpin->setValue(settings.sizeStep.height());
    m_ui->minWidthSpin->setValue(settings.minSize.width());
    m_ui->minHeightSpin->setValue(settings.minSize.height());
    m_ui->maxSizeCheck->setChecked(settings.hasMaxSize());
    if (settings.hasMaxSize()) {
        m_ui->maxWidthSpin->setValue(settings.maxSize.width());
        m_ui->maxHeightSpin->setValue(settings.maxSize.height());
    }
    m_ui->maxWidthSpin->setEnabled(settings.hasMaxSize());
    m_ui->maxHeightSpin->setEnabled(settings.hasMaxSize());
    m_ui->fixAspectCheck->setChecked(settings.fixAspect);
    m_ui->originalAspectCheck->setChecked(settings.originalAspect);
    m_ui->originalAspectCheck->setEnabled(settings.fixAspect);
    m_ui->centerXCheck->setChecked(settings.centerX);
    m_ui->centerYCheck->setChecked(settings.centerY);
    m_ui->applyOnChangeCheck->setChecked(m_plugin->applyOnChange());
    m_ui->applyToLockedCheck->setChecked(m_plugin->applyToLocked());
    m_showingSettings = false;
}

void GUI_RoiPanel::applySettings()
{
    if (m_showingSettings)
        return;
    UTL_Barrier::reported(m_host, [this] {
        PLG_RectangleConstraints settings;
        settings.positionStep
            = QPoint(m_ui->positionStepXSpin->value(), m_ui->positionStepYSpin->value());
        settings.sizeStep
            = QSize(m_ui->sizeStepWidthSpin->value(), m_ui->sizeStepHeightSpin->value());
        settings.minSize = QSize(m_ui->minWidthSpin->value(), m_ui->minHeightSpin->value());
        settings.maxSize = m_ui->maxSizeCheck->isChecked()
            ? QSize(m_ui->maxWidthSpin->value(), m_ui->maxHeightSpin->value())
            : QSize(-1, -1);
        settings.fixAspect = m_ui->fixAspectCheck->isChecked();
        settings.originalAspect = m_ui->originalAspectCheck->isChecked();
        settings.centerX = m_ui->centerXCheck->isChecked();
        settings.centerY = m_ui->centerYCheck->isChecked();
        m_plugin->setSettings(settings);
        m_plugin->setApplyOnChange(m_ui->applyOnChangeCheck->isChecked());
        m_plugin->setApplyToLocked(m_ui->applyToLockedCheck->isChecked());
        m_ui->maxWidthSpin->setEnabled(settings.hasMaxSize());
        m_ui->maxHeightSpin->setEnabled(settings.hasMaxSize());
        m_ui->originalAspectCheck->setEnabled(settings.fixAspect);
        refresh();
    });
}

void GUI_RoiPanel::scheduleRefresh()
{
    if (!m_refreshTimer.isActive())
        m_refreshTimer.start();
}

void GUI_RoiPanel::refresh()
{
    UTL_Barrier::logged("GUI_RoiPanel::refresh", [this] {
        // Leaving the tool clears the aspect settings behind the panel's back.
        showSettings();
        const QVariantMap parameters = m_plugin->currentParameters();
        for (int row = 0; row < m_ui->parametersTable->rowCount(); ++row) {
            const QVariant value = parameters.value(QLatin1String(ParameterKeys[row]));
            m_ui->parametersTable->item(row, 1)->setText(value.toString());
        }
    });
}
