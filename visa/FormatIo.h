#pragma once

#include "visa.h"

#include <cstdarg>
#include <cstddef>
#include <string>

// The formatted I/O of viPrintf and viScanf, kept apart from the wire so it can be tested on
// strings. Output knows "%s", "%d" and "%%"; input knows "%Nt", "%t", "%Ns", "%s" and "%%".
class FormatIo
{
public:
    // Width assumed for "%t" and "%s" without one; the caller's buffer must hold this many bytes.
    static constexpr size_t kDefaultWidth = 1024;

    static ViStatus format(const char* fmt, va_list args, std::string& out);
    // Checks the format before any traffic, so a bad format reads nothing from the instrument.
    static ViStatus validateScan(const char* fmt, bool& needsInput);
    // Fills the arguments from one received message. Never writes more than a conversion's
    // width into its buffer; the terminating zero only where there is room for it.
    static ViStatus scan(const char* fmt, va_list args, const std::string& input);
};
