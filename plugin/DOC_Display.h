#pragma once

#include "plugin/SyncGlobal.h"

#include <QString>

// Facet of a document: how its image is shown.
class SYNC_SHARED DOC_Display
{
public:
    virtual ~DOC_Display() = default;

    virtual bool hasToolMark(const QString& name, bool current) = 0;
    virtual bool isToolSet(const QString& name) = 0;
    virtual float rotationFraction() = 0;
    virtual bool isMirroredHorizontally() = 0;
    virtual bool isMirroredVertically() = 0;
    virtual float zoomFactor(bool current) = 0;
    virtual int binningExponent() = 0;
    // Reads the logo of the information block again, from the path the preferences hold now.
    virtual void reloadLogo() = 0;
};
