// The exported C entry points: argument checks and locking; the work is in VisaSession.
#include "visa.h"

#include "FormatIo.h"
#include "ResourceName.h"
#include "SessionRegistry.h"
#include "VisaSession.h"

#include <cstdarg>
#include <new>
#include <string>

namespace {
constexpr ViAccessMode kExclusiveLock = 1;
constexpr size_t kMaxKeptReply = size_t(64) * 1024;
} // namespace

extern "C" {

VXIVISA_EXPORT ViStatus VI_FUNCC viOpenDefaultRM(ViPSession vi)
{
    if (!vi)
        return VI_ERROR_INV_PARAMETER;
    try {
        *vi = SessionRegistry::instance().addResourceManager();
        return VI_SUCCESS;
    } catch (const std::bad_alloc&) {
        return VI_ERROR_ALLOC;
    } catch (...) {
        return VI_ERROR_SYSTEM_ERROR;
    }
}

VXIVISA_EXPORT ViStatus VI_FUNCC viOpen(
    ViSession sesn, ViRsrc name, ViAccessMode mode, ViUInt32 timeout, ViPSession vi)
{
    if (!vi)
        return VI_ERROR_INV_PARAMETER;
    *vi = VI_NULL;
    try {
        SessionRegistry& registry = SessionRegistry::instance();
        if (!registry.isResourceManager(sesn))
            return VI_ERROR_INV_OBJECT;
        if (!name)
            return VI_ERROR_INV_RSRC_NAME;
        ResourceName resource;
        switch (ResourceName::parse(name, resource)) {
        case ResourceName::Result::Ok:
            break;
        case ResourceName::Result::Invalid:
            return VI_ERROR_INV_RSRC_NAME;
        case ResourceName::Result::Unsupported:
            return VI_ERROR_RSRC_NFOUND;
        }
        auto session = std::make_shared<VisaSession>(SessionOptions::fromEnvironment());
        const ViStatus status = session->open(resource, (mode & kExclusiveLock) != 0, timeout);
        if (status != VI_SUCCESS)
            return status;
        const ViSession handle = registry.addSession(sesn, session);
        if (handle == 0) {
            session->close();
            return VI_ERROR_INV_OBJECT;
        }
        *vi = handle;
        return VI_SUCCESS;
    } catch (const std::bad_alloc&) {
        return VI_ERROR_ALLOC;
    } catch (...) {
        return VI_ERROR_SYSTEM_ERROR;
    }
}

VXIVISA_EXPORT ViStatus VI_FUNCC viClose(ViObject vi)
{
    try {
        return SessionRegistry::instance().close(vi);
    } catch (...) {
        return VI_ERROR_SYSTEM_ERROR;
    }
}

VXIVISA_EXPORT ViStatus VI_FUNCC viClear(ViSession vi)
{
    try {
        const auto session = SessionRegistry::instance().find(vi);
        if (!session)
            return VI_ERROR_INV_OBJECT;
        std::lock_guard<std::mutex> lock(session->mutex());
        return session->clear();
    } catch (...) {
        return VI_ERROR_SYSTEM_ERROR;
    }
}

VXIVISA_EXPORT ViStatus VI_FUNCC viPrintf(ViSession vi, ViString writeFmt, ...)
{
    try {
        const auto session = SessionRegistry::instance().find(vi);
        if (!session)
            return VI_ERROR_INV_OBJECT;
        std::string message;
        va_list args;
        va_start(args, writeFmt);
        const ViStatus formatted = FormatIo::format(writeFmt, args, message);
        va_end(args);
        if (formatted != VI_SUCCESS)
            return formatted;
        std::lock_guard<std::mutex> lock(session->mutex());
        return session->write(reinterpret_cast<const uint8_t*>(message.data()), message.size());
    } catch (const std::bad_alloc&) {
        return VI_ERROR_ALLOC;
    } catch (...) {
        return VI_ERROR_SYSTEM_ERROR;
    }
}

VXIVISA_EXPORT ViStatus VI_FUNCC viScanf(ViSession vi, ViString readFmt, ...)
{
    try {
        const auto session = SessionRegistry::instance().find(vi);
        if (!session)
            return VI_ERROR_INV_OBJECT;
        bool needsInput = false;
        const ViStatus valid = FormatIo::validateScan(readFmt, needsInput);
        if (valid != VI_SUCCESS || !needsInput)
            return valid;
        std::string reply;
        {
            std::lock_guard<std::mutex> lock(session->mutex());
            const ViStatus status = session->read(reply, kMaxKeptReply);
            if (status < VI_SUCCESS)
                return status;
        }
        va_list args;
        va_start(args, readFmt);
        const ViStatus status = FormatIo::scan(readFmt, args, reply);
        va_end(args);
        return status;
    } catch (const std::bad_alloc&) {
        return VI_ERROR_ALLOC;
    } catch (...) {
        return VI_ERROR_SYSTEM_ERROR;
    }
}

} // extern "C"
