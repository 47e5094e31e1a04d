#pragma once

#include <QHash>
#include <QString>

#include <functional>

class InfoDisplayList;

// The list of the edit info page as HTML: one line per entry of a display list, in its order, a
// check box per item and an edit link for the items that have a dialog of their own. The page
// wraps the lines in a sortable list.
class InfoSettingsHtml
{
public:
    InfoSettingsHtml() = delete;

    // enabled: whether each item can be used; an item it lacks gets a disabled check box.
    // label gives an item's name for the user; editText the text of the edit links.
    static QString build(const InfoDisplayList& list, const QHash<QString, bool>& enabled,
        bool isSaveView, const std::function<QString(const QString&)>& label,
        const QString& editText);

    // The opening tag of an item's edit link; empty for an item without one.
    static QString editLink(const QString& key);
};
