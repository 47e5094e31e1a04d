#pragma once

#include "plugin/SyncGlobal.h"

class DOC_Interface;

// Facet of a document: the heads of a multi-head device.
class SYNC_SHARED DOC_HeadGroup
{
public:
    virtual ~DOC_HeadGroup() = default;

    virtual bool isHeadGroupOwner() = 0;
    virtual bool isHeadOfGroup() = 0;
    virtual void selectHead(DOC_Interface* head) = 0;
    virtual void unselectHead(DOC_Interface* head) = 0;
    virtual void unselectAllHeads() = 0;
    virtual void selectAllHeads() = 0;
};
