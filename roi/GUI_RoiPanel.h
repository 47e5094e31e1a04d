#pragma once

#include <QTimer>
#include <QWidget>

#include <memory>

class APP_Host;
class PLG_roi;

namespace Ui {
class GUI_RoiPanel;
}

// The region of interest's page: the rectangle tool's settings, which take effect as they are
// changed, and the figures of the current document's rectangle.
class GUI_RoiPanel : public QWidget
{
    Q_OBJECT

public:
    // The plug-in owns the panel and outlives it.
    GUI_RoiPanel(PLG_roi* plugin, APP_Host* host, QWidget* parent = nullptr);
    ~GUI_RoiPanel() override;

    // The figures are shown again once the event loop is back: a drag changes the rectangle
    // far more often than a screen can show it.
    void scheduleRefresh();

public slots:
    void refresh();

private slots:
    void applySettings();

private:
    void translateTexts();
    void showSettings();

    std::unique_ptr<Ui::GUI_RoiPanel> m_ui;
    PLG_roi* m_plugin;
    APP_Host* m_host;
    QTimer m_refreshTimer;
    bool m_showingSettings = false;
};
