#pragma once

#include "sync/SyncWiringDiagram.h"
#include "sync/SyncWiringDiagramWidget.h"
#include "web/GUI_Dialog.h"

#include <QList>
#include <QMutex>
#include <QPointer>
#include <QString>

#include <memory>

class APP_Host;
class DOC_Camera;
class DOC_SignalGenerator;
class GUI_SyncControlCombobox;
class QTimer;
class SyncHubTable;
class Ui_GUI_SyncControl;

// The modal dialog in which the user settles how all connected cameras are synchronised.
// One object lives as long as the plug-in and serves every press of the button; each run
// starts from nothing: the camera list, the preferences and the form are read again.
class GUI_SyncControl : public GUI_Dialog
{
    Q_OBJECT

public:
    GUI_SyncControl(APP_Host* host, QWidget* parent);
    ~GUI_SyncControl() override;

    // Throws the precondition failures; the dialog is then never shown.
    int exec() override;

    // Brings form, diagram and hub table into line with the current choices.
    void guiUpdate();

    // True while the form differs from what was last applied or loaded.
    bool hasPendingChanges();

    // The cameras of the current run, in the order of the last sort.
    const QList<DOC_Camera*>& cameras() const { return m_cameras; }
    bool isSyncPossible() const { return m_syncPossible; }
    SyncWiringDiagramWidget* diagram() const { return m_diagram; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private slots:
    void on_cancel_button_clicked();
    void on_ok_button_clicked();
    void on_connect_signal_generator_button_clicked();
    void paintDiagram();
    void on_masterCameras_comboBox_currentIndexChanged(int index);
    void on_blink();
    void on_signal_generator_control_checkBox_clicked(bool checked);
    void on_sync_in_comboBox_currentIndexChanged(int index);
    void on_trigger_sig_polarity_comboBox_currentIndexChanged(int index);
    void on_NRack_comboBox_currentIndexChanged(int index);
    void on_search_pushButton_clicked();
    void on_connect_pushButton_clicked();
    void on_update_pushButton_clicked();
    void onEditPushButtonClicked(const QString& ipaddress);
    void onComboboxChanged(GUI_SyncControlCombobox* pComboBox, const QString& ipaddress,
                           int value);
    void on_sync_external_radio_clicked();
    void on_sync_chain_radio_clicked();

private:
    void init();
    void checkSyncConditions();
    // The body of "Sync execute"; throws what a host call threw.
    void executeSync();
    void guiInit();
    void startHubManager();
    void warnMasterConnector();
    QString distributorName() const;
    SyncWiringDiagram::Choices diagramChoices();
    // Hands a new diagram to the scroll area, which deletes the one it held.
    void setDiagram(std::unique_ptr<SyncWiringDiagramWidget> diagram);
    void setOkButtonBlink(bool on);
    void stopBlinking();
    // Runs a slot body in the common frame: entry line, report of a std::exception, then the
    // exit line and a guiUpdate whatever happened.
    template <typename Body>
    void slotFrame(const QString& function, const QString& parameters, Body body);

    std::unique_ptr<Ui_GUI_SyncControl> m_ui;
    APP_Host* m_host;
    int m_triggerMode = 0;
    QList<DOC_Camera*> m_cameras;
    // Owned by the scroll area.
    QPointer<SyncWiringDiagramWidget> m_diagram;
    int m_timingFlagFirst = 0;
    bool m_syncPossible = true;
    QTimer* m_blinkTimer = nullptr;
    QMutex m_blinkMutex;
    bool m_blinkOn = false;
    SyncWiringDiagram m_wiring;
    SyncHubTable* m_hubTable = nullptr;
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
    bool m_updating = false;
    std::unique_ptr<DOC_SignalGenerator> m_generator;
    bool m_generatorAvailable = false;
};
