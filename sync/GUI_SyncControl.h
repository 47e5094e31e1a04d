#pragma once

#include "web/GUI_Dialog.h"

#include <QList>
#include <QString>

class APP_Host;
class DOC_Camera;
class DOC_SignalGenerator;
class Ui_GUI_SyncControl;

// The modal dialog in which the user settles how all connected cameras are synchronised.
// One object lives as long as the plug-in and serves every press of the button; each run
// starts from nothing: the camera list, the preferences and the form are read again.
class GUI_SyncControl : public GUI_Dialog
{
    Q_OBJECT

public:
    static constexpr int FormWidth = 1340;
    static constexpr int FormHeight = 654;

    GUI_SyncControl(APP_Host* host, QWidget* parent);
    ~GUI_SyncControl() override;

    // Throws the precondition failures; the dialog is then never shown.
    int exec() override;

    // Brings form and diagram into line with the current choices.
    void guiUpdate();

    // The cameras of the current run, in the order of the last sort.
    const QList<DOC_Camera*>& cameras() const { return m_cameras; }
    bool isSyncPossible() const { return m_syncPossible; }
    int triggerMode() const { return m_triggerMode; }
    int timingFlagFirstValue() const { return m_timingFlagFirst; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private slots:
    void on_cancel_button_clicked();
    void on_ok_button_clicked();

private:
    void init();
    void checkSyncConditions();
    void guiInit();
    void startHubManager();

    Ui_GUI_SyncControl* m_ui;
    APP_Host* m_host;
    int m_triggerMode = 0;
    QList<DOC_Camera*> m_cameras;
    int m_timingFlagFirst = 0;
    bool m_syncPossible = true;
    int m_savedDistributor = 0;
    bool m_savedExternal = false;
    int m_appliedMaster = -1;
    int m_savedMaster = 0;
    bool m_initializing = true;
    bool m_savedGeneratorControl = false;
    int m_savedFrequency = 0;
    int m_savedSyncIn = 0;
    int m_savedPolarity = 0;
    QString m_generatorAddress;
    bool m_guiInitializing = false;
    DOC_SignalGenerator* m_generator = nullptr;
    bool m_generatorAvailable = false;
};
