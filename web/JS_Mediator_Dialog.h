#pragma once

#include "web/JS_Mediator.h"

// The mediator of a page inside a dialog: the page's OK and Cancel become the dialog's.
class JS_Mediator_Dialog : public JS_Mediator
{
    Q_OBJECT

public:
    JS_Mediator_Dialog(APP_Host* host, const QString& name);

signals:
    void accept();
    void reject();
    // The dialog was rejected by whatever way, its close button included.
    void rejected();

public slots:
    int getHeight() { return m_height; }
    int getWidth() { return m_width; }

protected:
    virtual void dialogOpened() { }
    virtual void dialogClosed() { }

    int m_height = -1;
    int m_width = -1;
};
