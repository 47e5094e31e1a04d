#pragma once

#include <QString>
#include <QVariant>

// The host's defaults of the information block's preferences (info/..., saveinfo/...N) and of
// the display formats: what a read without a default of its own gives, and what
// restoreDefault goes back to.
class HST_InfoDefaults
{
public:
    HST_InfoDefaults() = delete;

    // Invalid for a key that isn't one of them.
    static QVariant value(const QString& key);
    // Every row of the item table in its order, each item with its default state.
    static QString displayText();
};
