#include "host/HST_RectangleStep.h"

HST_RectangleStep::HST_RectangleStep(const HST_RectangleStates& before, Restore restore)
    : m_before(before)
    , m_after(before)
    , m_restore(std::move(restore))
{
}

void HST_RectangleStep::undo()
{
    m_restore(changed(m_before, m_after), QStringLiteral("undo"));
}

void HST_RectangleStep::redo()
{
    // The push's redo: the rectangles are as they should be already.
    if (!m_pushed) {
        m_pushed = true;
        return;
    }
    m_restore(changed(m_after, m_before), QStringLiteral("redo"));
}

HST_RectangleStates HST_RectangleStep::changed(
    const HST_RectangleStates& from, const HST_RectangleStates& other)
{
    HST_RectangleStates result;
    for (const HST_RectangleState& state : from) {
        if (!other.contains(state))
            result.append(state);
    }
    return result;
}
