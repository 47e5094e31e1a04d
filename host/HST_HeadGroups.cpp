#include "host/HST_HeadGroups.h"

#include "host/HST_Recorder.h"

#include <QJsonArray>

HST_HeadGroups::HST_HeadGroups(HST_Recorder* recorder, Selector selector)
    : m_recorder(recorder)
    , m_selector(std::move(selector))
{
}

void HST_HeadGroups::add(int owner, const QList<int>& heads)
{
    m_heads.insert(owner, heads);
    for (int head : heads)
        m_owners.insert(head, owner);
}

void HST_HeadGroups::clear()
{
    m_heads.clear();
    m_owners.clear();
}

void HST_HeadGroups::remove(int key)
{
    const int owner = isHead(key) ? ownerOf(key) : key;
    for (int head : m_heads.take(owner))
        m_owners.remove(head);
}

QList<int> HST_HeadGroups::deviceOf(int key) const
{
    const int owner = isHead(key) ? ownerOf(key) : key;
    if (!isOwner(owner))
        return { key };
    return QList<int> { owner } + m_heads.value(owner);
}

void HST_HeadGroups::selectHeads(int owner, const QList<int>& heads, bool select)
{
    const QList<int> chosen = heads.isEmpty() ? m_heads.value(owner) : heads;
    QJsonArray keys;
    for (int head : chosen)
        keys.append(head);
    if (m_recorder)
        m_recorder->record(select ? QStringLiteral("selectHead") : QStringLiteral("unselectHead"),
            { { QStringLiteral("owner"), owner }, { QStringLiteral("heads"), keys } });
    if (m_selector)
        m_selector(chosen, select);
}

int HST_HeadGroups::selectedHeadCount(int owner) const
{
    int count = 0;
    for (int head : m_heads.value(owner))
        count += m_isSelected && m_isSelected(head);
    return count;
}
