#include "web/GUI_ModelessPatternDialog.h"

GUI_ModelessPatternDialog::GUI_ModelessPatternDialog(QWidget* parent)
    : GUI_Dialog(parent, Qt::Window, false)
{
}

void GUI_ModelessPatternDialog::showEvent(QShowEvent* event)
{
    GUI_Dialog::showEvent(event);
    emit shown();
}

void GUI_ModelessPatternDialog::closeEvent(QCloseEvent* event)
{
    GUI_Dialog::closeEvent(event);
    emit closed();
}
