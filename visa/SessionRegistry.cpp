#include "SessionRegistry.h"

#include "VisaSession.h"

#include <vector>

SessionRegistry& SessionRegistry::instance()
{
    // Destroyed when the library is unloaded (the plug-in unloads it with itself; a registry
    // left behind leaked at every load), closing any session still open: nothing else of the
    // library's is static, so nothing it needs is gone by then.
    static SessionRegistry registry;
    return registry;
}

ViSession SessionRegistry::addResourceManager()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    const ViSession handle = m_nextHandle++;
    m_entries[handle] = Entry();
    return handle;
}

bool SessionRegistry::isResourceManager(ViSession handle)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    const auto it = m_entries.find(handle);
    return it != m_entries.end() && !it->second.session;
}

ViSession SessionRegistry::addSession(
    ViSession resourceManager, std::shared_ptr<VisaSession> session)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    const auto rm = m_entries.find(resourceManager);
    if (rm == m_entries.end() || rm->second.session)
        return 0;
    const ViSession handle = m_nextHandle++;
    m_entries[handle] = Entry { resourceManager, std::move(session) };
    return handle;
}

std::shared_ptr<VisaSession> SessionRegistry::find(ViSession handle)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    const auto it = m_entries.find(handle);
    return it == m_entries.end() ? nullptr : it->second.session;
}

ViStatus SessionRegistry::close(ViSession handle)
{
    std::vector<std::shared_ptr<VisaSession>> closing;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        const auto it = m_entries.find(handle);
        if (it == m_entries.end())
            return VI_ERROR_INV_OBJECT;
        if (it->second.session) {
            closing.push_back(it->second.session);
        } else {
            for (auto child = m_entries.begin(); child != m_entries.end();) {
                if (child->second.owner == handle) {
                    closing.push_back(child->second.session);
                    child = m_entries.erase(child);
                } else {
                    ++child;
                }
            }
        }
        m_entries.erase(handle);
    }
    // destroy_link goes out here, outside the table lock, one session at a time.
    for (const auto& session : closing) {
        std::lock_guard<std::mutex> lock(session->mutex());
        session->close();
    }
    return VI_SUCCESS;
}
