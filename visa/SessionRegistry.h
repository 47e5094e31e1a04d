#pragma once

#include "visa.h"

#include <map>
#include <memory>
#include <mutex>

class VisaSession;

// The process-wide table from VISA handles to resource managers and sessions. A session is held
// by shared pointer, so viClose on one thread can't free it under a viScanf on another.
class SessionRegistry
{
public:
    static SessionRegistry& instance();

    ViSession addResourceManager();
    bool isResourceManager(ViSession handle);
    // 0 when the resource manager has been closed meanwhile.
    ViSession addSession(ViSession resourceManager, std::shared_ptr<VisaSession> session);
    std::shared_ptr<VisaSession> find(ViSession handle);
    // Closing a resource manager closes every session it opened.
    ViStatus close(ViSession handle);

private:
    struct Entry
    {
        ViSession owner = 0; // 0 for a resource manager
        std::shared_ptr<VisaSession> session;
    };

    std::mutex m_mutex;
    std::map<ViSession, Entry> m_entries;
    ViSession m_nextHandle = 1;
};
