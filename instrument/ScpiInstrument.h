#pragma once

#include <deque>
#include <mutex>
#include <string>

class CommandLog;

// The generator's SCPI side: parses program messages, keeps the settings the setup sequence
// touches and the error queue, and produces query replies. One instance is the one instrument
// that all links talk to.
class ScpiInstrument
{
public:
    struct Identity
    {
        std::string maker;
        std::string model;
        std::string serial;
        std::string firmware;
    };

    ScpiInstrument(const Identity& identity, CommandLog* log);

    // Executes one program message (units separated by ';' or line ends) and returns the
    // replies of its queries, each ending in a line feed.
    std::string execute(const std::string& message);
    void reset();
    // Puts a line for something other than a command (a device clear) into the command log.
    void logEvent(const std::string& line);

    // Text of a number as the instrument prints it, e.g. "+1.00000000000000E+03".
    static std::string formatNumber(double value);

private:
    // false for a unit that is no query.
    bool executeUnit(const std::string& unit, std::string& reply);
    void pushError(int code, const char* text);
    bool setFrequency(const std::string& argument);
    bool setVoltage(const std::string& header, const std::string& argument);

    std::mutex m_mutex;
    Identity m_identity;
    CommandLog* m_log;
    std::deque<std::string> m_errors;
    std::string m_function;
    double m_frequency = 0;
    double m_amplitude = 0;
    double m_offset = 0;
    double m_dutyCycle = 0;
    bool m_output = false;
    bool m_display = true;
    std::string m_displayText;
};
