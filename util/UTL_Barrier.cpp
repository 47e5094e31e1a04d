#include "util/UTL_Barrier.h"

#include "plugin/APP_Host.h"

#include <QDebug>

namespace {

void writeError(const char* where, const char* problem, const char* text) noexcept
{
    try {
        QMessageLogger().critical() << where << problem << QString::fromUtf8(text);
    } catch (...) {
        // Logging itself failed (out of memory); there is nowhere left to say so.
    }
}

} // namespace

void UTL_Barrier::report(APP_Host* host, const std::exception& e) noexcept
{
    if (!host) {
        writeError("UTL_Barrier::report", "no host to report to:", e.what());
        return;
    }
    try {
        host->reportException(e);
        return;
    } catch (const std::exception& failure) {
        writeError("UTL_Barrier::report", "the report failed:", failure.what());
    } catch (...) {
        writeError("UTL_Barrier::report", "the report failed:", "unknown exception");
    }
    writeError("UTL_Barrier::report", "unreported:", e.what());
}

void UTL_Barrier::log(const char* where, const std::exception& e) noexcept
{
    writeError(where, "failed:", e.what());
}

void UTL_Barrier::logUnknown(const char* where) noexcept
{
    writeError(where, "failed:", "unknown exception");
}
