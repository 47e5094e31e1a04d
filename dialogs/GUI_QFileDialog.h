#pragma once

#include <QFileDialog>

class APP_Host;
class QGridLayout;

// Qt's own file dialog, never the platform's, so that rows of our own can be added below it and
// it looks the same wherever the host runs.
class GUI_QFileDialog : public QFileDialog
{
    Q_OBJECT

public:
    // A null parent stands for the host's main window. The caption is a source text.
    GUI_QFileDialog(APP_Host* host, QWidget* parent, const QString& caption);

protected:
    // Room below the dialog's own rows; null when the layout isn't Qt's grid.
    QGridLayout* extraArea() const;

    APP_Host* m_host;
};
