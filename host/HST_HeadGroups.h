#pragma once

#include <QList>
#include <QMap>

#include <functional>

class HST_Recorder;

// The multi-head devices among the host's documents: an owner document that stands for the
// device and one document per head. Selecting through an owner changes the heads' selection,
// which the document host applies and records.
class HST_HeadGroups
{
public:
    // Sets the selection of the listed documents and records the result.
    using Selector = std::function<void(const QList<int>& keys, bool selected)>;

    HST_HeadGroups(HST_Recorder* recorder, Selector selector);

    void add(int owner, const QList<int>& heads);
    void clear();
    // Forgets the group the key belongs to, if any.
    void remove(int key);
    bool isOwner(int key) const { return m_heads.contains(key); }
    bool isHead(int key) const { return m_owners.contains(key); }
    // -1 when the key is no head.
    int ownerOf(int head) const { return m_owners.value(head, -1); }
    QList<int> headsOf(int owner) const { return m_heads.value(owner); }
    // Owner and heads of the key's device, or the key alone.
    QList<int> deviceOf(int key) const;
    // How many of an owner's heads are selected, by the selector's lookup.
    int selectedHeadCount(int owner) const;
    // How the groups learn whether a document is selected.
    void setIsSelected(std::function<bool(int key)> isSelected)
    {
        m_isSelected = std::move(isSelected);
    }
    // On an owner: selects or unselects the heads given, or all its heads when none are given.
    void selectHeads(int owner, const QList<int>& heads, bool select);

private:
    HST_Recorder* m_recorder;
    Selector m_selector;
    std::function<bool(int key)> m_isSelected;
    QMap<int, QList<int>> m_heads;
    QMap<int, int> m_owners;
};
