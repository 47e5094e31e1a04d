#pragma once

#include <QByteArray>
#include <QDialog>
#include <QJsonObject>
#include <QList>

#include <functional>

#include "host/HST_Application.h"

// A run of the real plug-in file in the reference host that presses the sync button and ends
// when the plug-in has returned; preferences in prefsFile.
HST_Options pressOptions(const QByteArray& scenario, const QString& prefsFile);

// Runs the real plug-in in the reference host on a scenario, presses its button and hands the
// open sync dialog to a check. Message boxes that come up meanwhile are answered with their
// default button. Gives the application's exit code.
int runSyncDialog(const QByteArray& scenario, const std::function<void(QDialog*)>& check,
    QList<QJsonObject>* record = nullptr);
