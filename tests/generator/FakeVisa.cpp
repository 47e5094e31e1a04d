#include "FakeVisa.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <map>
#include <string>
#include <vector>

namespace {

using ViStatus = int;
using ViSession = unsigned int;

constexpr ViSession resourceManager = 100;
constexpr ViSession instrument = 7;

struct State
{
    std::map<std::string, int> statuses;
    std::deque<std::string> replies;
    std::vector<std::string> calls;
};

State& state()
{
    static State s;
    return s;
}

int statusOf(const char* function)
{
    const auto it = state().statuses.find(function);
    return it == state().statuses.end() ? 0 : it->second;
}

void record(std::string call)
{
    state().calls.push_back(std::move(call));
}

} // namespace

extern "C" {

void fakeVisaReset()
{
    state() = State();
}

void fakeVisaSetStatus(const char* function, int status)
{
    state().statuses[function] = status;
}

void fakeVisaQueueReply(const char* bytes, int length)
{
    state().replies.emplace_back(bytes, size_t(length));
}

int fakeVisaCallCount()
{
    return int(state().calls.size());
}

const char* fakeVisaCall(int index)
{
    return state().calls.at(size_t(index)).c_str();
}

#ifndef FAKEVISA_OMIT_viOpenDefaultRM
FAKEVISA_EXPORT ViStatus viOpenDefaultRM(ViSession* vi)
{
    record("viOpenDefaultRM");
    *vi = resourceManager;
    return statusOf("viOpenDefaultRM");
}
#endif

#ifndef FAKEVISA_OMIT_viOpen
FAKEVISA_EXPORT ViStatus viOpen(ViSession rm, const char* name, unsigned mode, unsigned timeout,
                                ViSession* vi)
{
    record("viOpen|" + std::to_string(rm) + "|" + name + "|" + std::to_string(mode) + "|"
           + std::to_string(timeout));
    *vi = instrument;
    return statusOf("viOpen");
}
#endif

#ifndef FAKEVISA_OMIT_viPrintf
FAKEVISA_EXPORT ViStatus viPrintf(ViSession vi, const char* format, ...)
{
    record("viPrintf|" + std::to_string(vi) + "|" + format);
    return statusOf("viPrintf");
}
#endif

#ifndef FAKEVISA_OMIT_viScanf
// Only "%<width>t" into one buffer: at most width bytes, a zero only where there is room.
FAKEVISA_EXPORT ViStatus viScanf(ViSession vi, const char* format, ...)
{
    record("viScanf|" + std::to_string(vi) + "|" + format);
    const int status = statusOf("viScanf");
    if (status < 0)
        return status;
    char* end = nullptr;
    const long width = format[0] == '%' ? std::strtol(format + 1, &end, 10) : 0;
    if (width <= 0 || !end || std::strcmp(end, "t") != 0)
        return -1;
    std::string reply;
    if (!state().replies.empty()) {
        reply = state().replies.front();
        state().replies.pop_front();
    }
    va_list args;
    va_start(args, format);
    char* buffer = va_arg(args, char*);
    va_end(args);
    const size_t stored = reply.size() < size_t(width) ? reply.size() : size_t(width);
    std::memcpy(buffer, reply.data(), stored);
    if (stored < size_t(width))
        buffer[stored] = '\0';
    return status;
}
#endif

#ifndef FAKEVISA_OMIT_viClose
FAKEVISA_EXPORT ViStatus viClose(ViSession vi)
{
    record("viClose|" + std::to_string(vi));
    return statusOf("viClose");
}
#endif

#ifndef FAKEVISA_OMIT_viClear
FAKEVISA_EXPORT ViStatus viClear(ViSession vi)
{
    record("viClear|" + std::to_string(vi));
    return statusOf("viClear");
}
#endif

} // extern "C"
