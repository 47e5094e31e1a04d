#pragma once

#include <QList>
#include <QPixmap>
#include <QPoint>
#include <QString>
#include <QStringList>

#include <functional>

class DOC_Camera;
class QPainter;
class QWidget;
class SyncWiringDiagramWidget;

// Builds the wiring diagram out of placed, named labels and draws its wires from their
// geometry. Names and geometry are the only link between building and painting.
class SyncWiringDiagram
{
public:
    // What the form says at the moment of building or painting.
    struct Choices
    {
        QList<DOC_Camera*> cameras; // sorted: the master of a chain first
        bool external = true;
        int distributor = 0;        // user data: 0 none, 1 N-Rack, 2 Link Core
        quint32 master = 0;         // user data of the master list
        int syncIn = 0;
        int polarity = 0;
        QString distributorName;
        // Counted only where the drawing depends on it.
        std::function<int()> connectedInternalHubs;
        std::function<QString(const QString&)> translate;
    };

    struct CameraPixmaps
    {
        QPixmap side;
        QPixmap back;
    };

    SyncWiringDiagram();

    void build(SyncWiringDiagramWidget* widget, const Choices& choices) const;
    void paint(SyncWiringDiagramWidget* widget, const Choices& choices) const;

    CameraPixmaps cameraPixmaps(int cameraType) const;
    // Sync input, trigger input, sync output.
    static QStringList connectorNames(int cameraType);
    static int connectorFamily(int cameraType);

    enum class Edge { Top, Bottom, Left, Right, CenterX, CenterY };
    static QWidget* findChildByName(const QWidget* parent, const QString& name);
    static int widgetEdge(const QWidget* widget, Edge edge);
    static void paintWire(QPainter& painter, QPoint from, QPoint to, bool arrow);

    static QString sideName(int row) { return QStringLiteral("side%1").arg(row); }
    static QString backName(int row) { return QStringLiteral("back%1").arg(row); }
    static QString portName(int row, int connector)
    {
        return QStringLiteral("port%1-%2").arg(row).arg(connector);
    }

    const int m_leftMargin = 50;
    const int m_cameraPictureWidth = 100;
    const int m_cameraPictureHeight = 80;
    const int m_nameLabelWidth = 140;
    const int m_nameLabelHeight = 55;
    const int m_portLabelWidth = 130;
    const int m_portLabelHeight = 30;
    const int m_signalLabelWidth = 120;
    const int m_signalLabelHeight = 40;
    const int m_busGap = 20;
    const int m_nrackPanelWidth = 220;
    const int m_nrackPanelHeight = 340;
    const int m_nrackItemWidth = 100;
    const int m_nrackItemHeight = 80;
    const int m_hubPanelWidth = 220;
    const int m_hubPanelHeight = 340;
    const int m_hubItemWidth = 200;
    const int m_hubItemHeight = 160;

private:
    void buildDistributorPanel(QWidget* diagram, const Choices& choices, int x, int y) const;
    QStringList signalTexts(const Choices& choices, bool isMaster, bool mixedTypes,
                            int family) const;

    // Side and back pictures by sprite row; see cameraPixmaps for which type gets which.
    QList<QPixmap> m_sides;
    QList<QPixmap> m_backs;
    QPixmap m_nrack;
    QPixmap m_hub;
};
