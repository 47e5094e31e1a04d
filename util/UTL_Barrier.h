#pragma once

#include <QString>

#include <exception>
#include <utility>

class APP_Host;

// Where the plug-in's code meets code that must not see its exceptions: Qt's event loop (slots,
// event handlers, timers), the host's calls into the plug-in, a page's script engine, and
// destructors. A std::exception ends at the barrier, in the host's report or, where the caller
// needs an answer and a box would be wrong (enabled states, painting), in the log. Anything
// else goes on to the caller, the host, except out of a destructor or a scope guard, which
// can't let anything out.
class UTL_Barrier
{
public:
    // Hands the exception to the host's report. When there is no host, or the report fails
    // too, both texts go to the log: a failing report must not take the caller down.
    static void report(APP_Host* host, const std::exception& e) noexcept;
    // Logs the exception as an error of the operation `where`.
    static void log(const char* where, const std::exception& e) noexcept;
    // For a destructor or scope guard: what isn't a std::exception ends here too, logged.
    static void logUnknown(const char* where) noexcept;

    template <typename Body> static void reported(APP_Host* host, Body&& body)
    {
        try {
            std::forward<Body>(body)();
        } catch (const std::exception& e) {
            report(host, e);
        }
    }

    template <typename Result, typename Body>
    static Result reported(APP_Host* host, Result neutral, Body&& body)
    {
        try {
            return std::forward<Body>(body)();
        } catch (const std::exception& e) {
            report(host, e);
        }
        return neutral;
    }

    template <typename Result, typename Body>
    static Result logged(const char* where, Result neutral, Body&& body)
    {
        try {
            return std::forward<Body>(body)();
        } catch (const std::exception& e) {
            log(where, e);
        }
        return neutral;
    }

    template <typename Body> static void logged(const char* where, Body&& body)
    {
        try {
            std::forward<Body>(body)();
        } catch (const std::exception& e) {
            log(where, e);
        }
    }

    // The body of a thread's run, where no caller is left to tell: nothing may leave it.
    template <typename Body> static void sealed(const char* where, Body&& body) noexcept
    {
        try {
            std::forward<Body>(body)();
        } catch (const std::exception& e) {
            log(where, e);
        } catch (...) {
            logUnknown(where);
        }
    }

    // The body of a destructor or scope guard: nothing may leave it.
    template <typename Body>
    static void sealed(APP_Host* host, const char* where, Body&& body) noexcept
    {
        try {
            std::forward<Body>(body)();
        } catch (const std::exception& e) {
            report(host, e);
        } catch (...) {
            logUnknown(where);
        }
    }
};
