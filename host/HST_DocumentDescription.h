#pragma once

#include <QVariantMap>

class HST_Document;

// What the host tells a file dialog about a document: the record fields of its rows, with one
// map per partition under "partitions". Report fields (TestNo, Project, ...) come from custom
// items of those names, the other items are Custom_1, Custom_2 and on as "value unit".
class HST_DocumentDescription
{
public:
    HST_DocumentDescription() = delete;

    static QVariantMap of(const HST_Document& document, bool convert);
};
