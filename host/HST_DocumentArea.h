#pragma once

#include <QMap>
#include <QMdiArea>
#include <QPointer>

class HST_Host;
class QMdiSubWindow;

// The main window's document windows: one subwindow per open document showing its frame. The
// host's current document is the active window, and a click on a window makes it current;
// closing a window closes its document.
class HST_DocumentArea : public QMdiArea
{
    Q_OBJECT

public:
    explicit HST_DocumentArea(HST_Host* host, QWidget* parent = nullptr);

    // Brings the windows in line with the host's documents and its current one.
    void sync();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    HST_Host* m_host;
    QMap<int, QPointer<QMdiSubWindow>> m_windows;
    bool m_syncing = false;
};
