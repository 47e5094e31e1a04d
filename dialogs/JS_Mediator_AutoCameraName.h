#pragma once

#include "web/JS_Mediator.h"

// The device dialogs' object for completing camera names from the user's name list.
class JS_Mediator_AutoCameraName : public JS_Mediator
{
    Q_OBJECT

public:
    JS_Mediator_AutoCameraName(APP_Host* host, const QString& name);

public slots:
    // False while the host has the feature off.
    bool existsAutoCompleteFile();
    // Compact JSON: [{"label": name, "category": category}, ...], the names of the default
    // category (category "") first in file order, then the others by category; "[]" when the
    // list can't be read.
    QString autoCompleteCameraList();
};
