#include "generator/VIGenThread.h"

#include "util/GUI_MarqueeProgressDialog.h"
#include "util/UTL_Barrier.h"

#include <QDebug>

VIGenThread::VIGenThread(std::function<bool()> function)
    : m_function(std::move(function))
{
}

QThread* VIGenThread::thread()
{
    return this;
}

void VIGenThread::setProgressDialog(GUI_MarqueeProgressDialog* dialog)
{
    m_progressDialog = dialog;
    QObject::connect(this, &VIGenThread::finished, dialog, &QProgressDialog::reset);
}

void VIGenThread::cancel() { }

QString VIGenThread::progressText()
{
    return QString();
}

void VIGenThread::run()
{
    QMessageLogger().info() << "[START]"
                            << "VIGenThread";
    UTL_Barrier::sealed("VIGenThread::run", [this] { m_result = m_function(); });
    emit finished();
    quit();
    QMessageLogger().info() << "[END]"
                            << "VIGenThread";
}
