#include "util/UTL_DocumentOrder.h"

#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"
#include "util/UTL_TextHelpers.h"

#include <QCollator>
#include <QDateTime>

#include <algorithm>

namespace {

// A multi-head device sorts as its first head.
DOC_Interface* sortDocument(APP_DocumentList* documents, int key)
{
    DOC_Interface* doc = documents->documentByKey(key);
    if (doc && doc->isHeadGroupOwner()) {
        QList<DOC_Interface*> heads;
        doc->heads(heads);
        if (!heads.isEmpty() && heads.first())
            return heads.first();
    }
    return doc;
}

QList<int> hostOrder(APP_DocumentList* documents, const QList<int>& keys)
{
    QList<int> ordered;
    documents->orderedKeys(ordered);
    QList<int> result;
    for (int key : qAsConst(ordered)) {
        if (documents->documentByKey(key) && keys.contains(key))
            result.append(key);
    }
    for (int key : keys) {
        if (!result.contains(key))
            result.append(key);
    }
    return result;
}

} // namespace

QList<int> sortDocumentKeys(APP_Host* host, int kind, const QList<int>& keys, bool keepGivenOrder)
{
    if (!host || kind < 1 || kind > 5)
        return keys;
    APP_DocumentList* documents = host;
    if (kind == 5)
        return keepGivenOrder ? keys : hostOrder(documents, keys);

    QCollator collator;
    collator.setNumericMode(true);
    const bool descending = kind == 2 || kind == 4;

    // A pair with a missing document or date counts as unordered and keeps its places.
    auto byName = [&](int a, int b) {
        DOC_Interface* first = sortDocument(documents, a);
        DOC_Interface* second = sortDocument(documents, b);
        if (!first || !second)
            return false;
        QString firstName;
        QString secondName;
        const int order = collator.compare(first->sortName(firstName), second->sortName(secondName));
        return descending ? order > 0 : order < 0;
    };
    auto byDate = [&](int a, int b) {
        DOC_Interface* first = sortDocument(documents, a);
        DOC_Interface* second = sortDocument(documents, b);
        if (!first || !second)
            return false;
        QString texts[4];
        first->recordingDate(texts[0]);
        first->recordingTime(texts[1]);
        second->recordingDate(texts[2]);
        second->recordingTime(texts[3]);
        for (const QString& text : texts) {
            if (text.isEmpty())
                return false;
        }
        const QDateTime firstTime = parseDateTime(texts[0], texts[1]);
        const QDateTime secondTime = parseDateTime(texts[2], texts[3]);
        return descending ? secondTime < firstTime : firstTime < secondTime;
    };

    QList<int> sorted = keys;
    if (kind <= 2)
        std::stable_sort(sorted.begin(), sorted.end(), byName);
    else
        std::stable_sort(sorted.begin(), sorted.end(), byDate);
    return sorted;
}
