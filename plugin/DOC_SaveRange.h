#pragma once

#include "plugin/SyncGlobal.h"

// Facet of a document: the range and options of what a save takes from it.
class SYNC_SHARED DOC_SaveRange
{
public:
    virtual ~DOC_SaveRange() = default;

    // Before a list of what can be saved is given out.
    virtual void prepareSaveRange() = 0;
    virtual bool isSavable() = 0;
    // The information overlay, the correction and the scale go into what is saved.
    virtual void setSaveInfo(bool on) = 0;
    virtual void setSaveCorrect(bool on) = 0;
    virtual void setSaveScale(bool on) = 0;
};
