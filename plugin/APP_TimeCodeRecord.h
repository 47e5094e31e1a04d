#pragma once

#include <QString>

// The time code settings the host keeps and the time code dialog edits, field by field in the
// host's order.
struct APP_TimeCodeRecord
{
    // 0: the real time form; any other: the counted form.
    int index = 0;
    QString displayUnit = QStringLiteral("deg");
    // Step per frame of the counted form; may be negative.
    double oneFrame = 0.0;
    double startValue = 0.0;
    // The counter goes back to the start at resetValue.
    bool reset = false;
    double resetValue = 0.0;
    int scopeDisplayIndex = 0;
    // Digits behind the point; 0: up to nine.
    int decimalPlaceIndex = 0;
    // Groups of three digits behind the point, split by a blank.
    bool decimalDivide = false;
    bool usingFileInfo = true;
    bool overwrite = false;
    bool realTime = false;
};
