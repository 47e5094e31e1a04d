#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

class HST_DialogOpener;
class HST_Host;
class QWidget;

// The owner of the plug-in's select box: places it over the document area, tells it what to
// offer (the current document's partitions, or the variables of the live control page) and
// shows it. The box closes itself on a choice.
class HST_SelectBoxHost : public QObject
{
    Q_OBJECT

public:
    // The box floats over area; the opener makes it and hands it "partition" or "variable".
    HST_SelectBoxHost(HST_Host* host, HST_DialogOpener* opener, QWidget* area);

    // "partition" or "variable"; 1 when the box shows, -1 for anything else.
    int show(const QString& what);
    QWidget* box() const { return m_box; }

private:
    QObject* items();

    HST_Host* m_host;
    HST_DialogOpener* m_opener;
    QPointer<QWidget> m_area;
    QPointer<QWidget> m_box;
};
