#pragma once

#include "plugin/SyncGlobal.h"

#include <QString>

class PLG_Interface;

// Facet of the host: the pages of its panel.
class SYNC_SHARED APP_PageStack
{
public:
    virtual ~APP_PageStack() = default;

    virtual PLG_Interface* pluginByName(const QString& name) = 0;
    virtual void showDefaultPage() = 0;
    virtual void showPage(const QString& name) = 0;
    virtual void pageClosed(const QString& name) = 0;
    virtual void showPreviousPage() = 0;
    virtual PLG_Interface* currentPage() = 0;
    virtual QString& activeToolName(QString& out) = 0;
    virtual bool isVariableSetting() = 0;
    virtual bool isAutoExposureSetting() = 0;
    virtual bool isHwTriggerSetting() = 0;
    virtual bool isSendingNodeCommand() = 0;
    virtual bool isAdjustingImage() = 0;
    virtual bool isDetectingPixelDefect() = 0;
    virtual bool isImageTriggerCapturing() = 0;
    virtual bool isImageTriggerDetecting() = 0;
    virtual bool isRostraRunning() = 0;
};
