#pragma once

#include "plugin/PLG_Common.h"

// A plug-in whose face in the host is a plain button.
class PLG_Button : public PLG_Common
{
public:
    explicit PLG_Button(QObject* parent = nullptr);
    ~PLG_Button() override;
};
