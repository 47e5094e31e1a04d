#pragma once

#include "util/RUN_ProgressThreadInterface.h"

#include <QThread>

#include <functional>

// Runs one callable once on its own thread under a running bar and keeps what it returned.
// The owner reads result() after GUI_MarqueeProgressDialog::run has returned, then deletes it.
class VIGenThread : public QThread, public RUN_ProgressThreadInterface
{
    Q_OBJECT

public:
    explicit VIGenThread(std::function<bool()> function);

    QThread* thread() override;
    void setProgressDialog(GUI_MarqueeProgressDialog* dialog) override;
    // The work can't be interrupted; the bar that runs it has no cancel button.
    void cancel() override;
    QString progressText() override;

    bool result() const { return m_result; }

signals:
    // Ends the bar's exec() by a queued reset on the GUI thread.
    void finished();

protected:
    void run() override;

private:
    bool m_result = false;
    std::function<bool()> m_function;
    GUI_MarqueeProgressDialog* m_progressDialog = nullptr;
};
