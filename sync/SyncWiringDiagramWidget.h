#pragma once

#include <QWidget>

// The canvas of the wiring diagram. Its children are placed labels; the wires are drawn by the
// dialog, which listens to drawEevent and paints inside this widget's paint event.
class SyncWiringDiagramWidget : public QWidget
{
    Q_OBJECT

public:
    explicit SyncWiringDiagramWidget(QWidget* parent = nullptr);

signals:
    void drawEevent();

protected:
    void paintEvent(QPaintEvent* event) override;
};
