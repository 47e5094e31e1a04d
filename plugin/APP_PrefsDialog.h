#pragma once

#include "plugin/SyncGlobal.h"

#include <QString>

// The host's preferences dialog, as given by APP_Host::prefsDialog.
class SYNC_SHARED APP_PrefsDialog
{
public:
    virtual ~APP_PrefsDialog() = default;

    virtual void selectPage(const QString& translatedName) = 0;
    virtual int run() = 0;
};
