#pragma once

#include <QString>

class APP_Host;
class DOC_Interface;

// The control status map that pages enable and disable their controls by: one bool per status
// name, in the host's order, as compact JSON text.
class JS_ControlStatus
{
public:
    JS_ControlStatus() = delete;

    // doc null: the current document. Throws what a host query threw.
    static QString build(APP_Host* host, DOC_Interface* doc);
};
