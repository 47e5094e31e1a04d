#include "SyncDialogRun.h"

#include "host/HST_Application.h"
#include "host/HST_Recorder.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

HST_Options pressOptions(const QByteArray& scenario, const QString& prefsFile)
{
    HST_Options options;
    options.scenarioJson = scenario;
    options.pluginFile = QStringLiteral(SYNC_PLUGIN_FILE);
    options.prefsFile = prefsFile;
    options.press = QStringLiteral("synccontrol");
    options.quit = true;
    return options;
}

int runSyncDialog(const QByteArray& scenario, const std::function<void(QDialog*)>& check,
                  QList<QJsonObject>* record)
{
    QTemporaryDir dir;
    const HST_Options options = pressOptions(scenario, dir.filePath(QStringLiteral("prefs.ini")));

    // A timer does not fire again while its own slot runs, so boxes that come up during the
    // check are answered by a second one.
    QTimer answer;
    answer.setInterval(20);
    QObject::connect(&answer, &QTimer::timeout, [] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            if (QAbstractButton* button = box->defaultButton() ? box->defaultButton()
                                                               : box->buttons().value(0))
                button->click();
        }
    });
    answer.start();

    bool checked = false;
    QTimer poll;
    poll.setInterval(20);
    QObject::connect(&poll, &QTimer::timeout, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (checked || !dialog || dialog->objectName() != QLatin1String("GUI_SyncControl"))
            return;
        checked = true;
        check(dialog);
        dialog->reject();
    });
    poll.start();

    HST_Application application(options);
    const int code = application.run();
    if (record)
        *record = application.recorder()->events();
    return checked ? code : -1;
}
