#pragma once

#include <QByteArray>
#include <QDialog>
#include <QJsonObject>
#include <QList>

#include <functional>

class HST_Application;

// Runs the real plug-in in the reference host on a scenario, presses its button and hands the
// open sync dialog to a check. Message boxes that come up meanwhile are answered with their
// default button. Gives the application's exit code.
int runSyncDialog(const QByteArray& scenario, const std::function<void(QDialog*)>& check,
                  QList<QJsonObject>* record = nullptr);

// A widget of the dialog by object name; fails the test when it is missing.
template <typename T>
T* widget(QWidget* parent, const char* name)
{
    return parent->findChild<T*>(QLatin1String(name));
}
