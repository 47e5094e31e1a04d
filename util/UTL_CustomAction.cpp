#include "util/UTL_CustomAction.h"

UTL_CustomAction::UTL_CustomAction(QObject* parent)
    : QObject(parent)
{
}

void UTL_CustomAction::slotTriggered()
{
    if (m_values.isEmpty())
        emit signalTriggered(m_value);
    else
        emit signalTriggeredMap(m_values);
}
