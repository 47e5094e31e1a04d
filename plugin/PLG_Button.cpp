#include "plugin/PLG_Button.h"

PLG_Button::PLG_Button(QObject* parent)
    : PLG_Common(parent)
{
    m_buttonKind = 2;
}

PLG_Button::~PLG_Button() = default;
