#include "sync/SyncWiringDiagramWidget.h"

SyncWiringDiagramWidget::SyncWiringDiagramWidget(QWidget* parent)
    : QWidget(parent)
{
}

void SyncWiringDiagramWidget::paintEvent(QPaintEvent*)
{
    emit drawEevent();
}
