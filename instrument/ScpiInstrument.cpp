#include "ScpiInstrument.h"

#include "CommandLog.h"

#include <cctype>
#include <cmath>
#include <iomanip>
#include <locale>
#include <sstream>
#include <unordered_map>
#include <vector>

namespace {
constexpr size_t kMaxErrors = 20;
constexpr double kMinFrequency = 0.0005;
constexpr double kMaxFrequencyPulse = 5e6;
constexpr double kMaxFrequency = 10e6;
constexpr double kMinAmplitude = 0.01;
constexpr double kMaxLevel = 5.0; // |offset| + amplitude / 2, into 50 ohms

std::string upper(std::string s)
{
    for (char& c : s)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return s;
}

std::string trim(const std::string& s)
{
    size_t b = 0;
    size_t e = s.size();
    while (b < e && std::isspace(static_cast<unsigned char>(s[b])))
        ++b;
    while (e > b && std::isspace(static_cast<unsigned char>(s[e - 1])))
        --e;
    return s.substr(b, e - b);
}

// Splits a program message into units at ';' and line ends outside quoted strings.
std::vector<std::string> splitUnits(const std::string& message)
{
    std::vector<std::string> units;
    std::string current;
    char quote = 0;
    for (const char c : message) {
        if (quote) {
            if (c == quote)
                quote = 0;
            current += c;
        } else if (c == '"' || c == '\'') {
            quote = c;
            current += c;
        } else if (c == ';' || c == '\n') {
            units.push_back(current);
            current.clear();
        } else {
            current += c;
        }
    }
    units.push_back(current);
    return units;
}

// One node of a header pattern such as "FUNCtion[:SHAPe]": the short form is its capitals.
struct Node
{
    std::string shortForm;
    std::string longForm;
    bool optional;
};

std::vector<Node> parsePattern(const std::string& pattern)
{
    std::vector<Node> nodes;
    size_t i = 0;
    while (i < pattern.size()) {
        bool optional = false;
        if (pattern[i] == '[') {
            optional = true;
            ++i;
        }
        if (i < pattern.size() && pattern[i] == ':')
            ++i;
        Node node { "", "", optional };
        while (i < pattern.size() && pattern[i] != ':' && pattern[i] != '[' && pattern[i] != ']') {
            if (std::isupper(static_cast<unsigned char>(pattern[i])) || pattern[i] == '*'
                || std::isdigit(static_cast<unsigned char>(pattern[i])))
                node.shortForm += pattern[i];
            node.longForm
                += static_cast<char>(std::toupper(static_cast<unsigned char>(pattern[i])));
            ++i;
        }
        if (i < pattern.size() && pattern[i] == ']')
            ++i;
        nodes.push_back(node);
    }
    return nodes;
}

bool matchNodes(
    const std::vector<Node>& nodes, size_t n, const std::vector<std::string>& tokens, size_t t)
{
    if (n == nodes.size())
        return t == tokens.size();
    if (nodes[n].optional && matchNodes(nodes, n + 1, tokens, t))
        return true;
    if (t == tokens.size())
        return false;
    const std::string token = upper(tokens[t]);
    if (token != nodes[n].shortForm && token != nodes[n].longForm)
        return false;
    return matchNodes(nodes, n + 1, tokens, t + 1);
}

bool headerIs(const std::vector<std::string>& tokens, const char* pattern)
{
    // Patterns are string literals: parsed once per thread, keyed by address.
    thread_local std::unordered_map<const char*, std::vector<Node>> parsed;
    auto it = parsed.find(pattern);
    if (it == parsed.end())
        it = parsed.emplace(pattern, parsePattern(pattern)).first;
    return matchNodes(it->second, 0, tokens, 0);
}

std::vector<std::string> headerTokens(std::string header)
{
    std::vector<std::string> tokens;
    if (!header.empty() && header[0] == ':')
        header.erase(0, 1);
    std::string current;
    for (const char c : header) {
        if (c == ':') {
            tokens.push_back(current);
            current.clear();
        } else {
            current += c;
        }
    }
    tokens.push_back(current);
    return tokens;
}

// A decimal number with an optional unit suffix; false if it is not one.
bool parseNumber(const std::string& text, double& value)
{
    const std::string t = upper(trim(text));
    if (t.empty())
        return false;
    // Independent of the process locale, which a Qt application sets from the environment.
    std::istringstream in(t);
    in.imbue(std::locale::classic());
    in >> value;
    if (in.fail() || !std::isfinite(value))
        return false;
    std::string rest;
    std::getline(in, rest);
    const std::string suffix = trim(rest);
    if (suffix == "KHZ")
        value *= 1e3;
    else if (suffix == "MHZ")
        value *= 1e6;
    else if (suffix == "MV" || suffix == "MVPP")
        value *= 1e-3;
    else if (!suffix.empty() && suffix != "HZ" && suffix != "V" && suffix != "VPP"
        && suffix != "PCT")
        return false;
    return true;
}

bool parseBoolean(const std::string& text, bool& value)
{
    const std::string t = upper(trim(text));
    if (t == "ON" || t == "1")
        value = true;
    else if (t == "OFF" || t == "0")
        value = false;
    else
        return false;
    return true;
}
} // namespace

ScpiInstrument::ScpiInstrument(const Identity& identity, CommandLog* log)
    : m_identity(identity)
    , m_log(log)
{
    reset();
}

void ScpiInstrument::reset()
{
    m_function = "SIN";
    m_frequency = 1000.0;
    m_amplitude = 0.1;
    m_offset = 0.0;
    m_dutyCycle = 50.0;
    m_output = false;
    m_display = true;
    m_displayText.clear();
}

void ScpiInstrument::logEvent(const std::string& line)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_log)
        m_log->write(line);
}

std::string ScpiInstrument::formatNumber(double value)
{
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << std::showpos << std::uppercase << std::scientific << std::setprecision(14) << value;
    return text.str();
}

void ScpiInstrument::pushError(int code, const char* text)
{
    if (m_errors.size() >= kMaxErrors) {
        m_errors.back() = "-350,\"Queue overflow\"";
        return;
    }
    m_errors.push_back(std::to_string(code) + ",\"" + text + "\"");
}

std::string ScpiInstrument::execute(const std::string& message)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    // Replies to the queries of one message go out as one message, separated by ';'.
    std::string replies;
    bool any = false;
    for (const std::string& raw : splitUnits(message)) {
        const std::string unit = trim(raw);
        if (unit.empty())
            continue;
        if (m_log)
            m_log->write(unit);
        std::string reply;
        if (!executeUnit(unit, reply))
            continue;
        if (any)
            replies += ';';
        replies += reply;
        any = true;
    }
    return any ? replies + "\n" : std::string();
}

bool ScpiInstrument::setFrequency(const std::string& argument)
{
    double value = 0;
    const std::string keyword = upper(trim(argument));
    const double max = m_function == "PULS" ? kMaxFrequencyPulse : kMaxFrequency;
    if (keyword == "MIN" || keyword == "MINIMUM")
        value = kMinFrequency;
    else if (keyword == "MAX" || keyword == "MAXIMUM")
        value = max;
    else if (!parseNumber(argument, value)) {
        pushError(-224, "Illegal parameter value");
        return false;
    }
    if (value < kMinFrequency || value > max) {
        pushError(-222, "Data out of range");
        return false;
    }
    m_frequency = value;
    return true;
}

bool ScpiInstrument::setVoltage(const std::string& header, const std::string& argument)
{
    double value = 0;
    if (!parseNumber(argument, value)) {
        pushError(-224, "Illegal parameter value");
        return false;
    }
    double high = m_offset + m_amplitude / 2;
    double low = m_offset - m_amplitude / 2;
    double amplitude = m_amplitude;
    double offset = m_offset;
    if (header == "HIGH") {
        high = value;
        amplitude = high - low;
        offset = (high + low) / 2;
    } else if (header == "LOW") {
        low = value;
        amplitude = high - low;
        offset = (high + low) / 2;
    } else if (header == "OFFSET") {
        offset = value;
    } else {
        amplitude = value;
    }
    if (amplitude < kMinAmplitude - 1e-12) {
        pushError(-221, "Settings conflict");
        return false;
    }
    if (std::fabs(offset) + amplitude / 2 > kMaxLevel + 1e-12) {
        pushError(-222, "Data out of range");
        return false;
    }
    m_amplitude = amplitude;
    m_offset = offset;
    return true;
}

bool ScpiInstrument::executeUnit(const std::string& unit, std::string& reply)
{
    size_t split = 0;
    while (split < unit.size() && !std::isspace(static_cast<unsigned char>(unit[split])))
        ++split;
    std::string header = unit.substr(0, split);
    const std::string argument = trim(unit.substr(split));
    const bool query = !header.empty() && header.back() == '?';
    if (query)
        header.pop_back();
    const std::vector<std::string> tokens = headerTokens(header);
    const bool hasArgument = !argument.empty();

    auto answer = [&reply](const std::string& text) {
        reply = text;
        return true;
    };
    auto noArgument = [&]() {
        if (hasArgument)
            pushError(-108, "Parameter not allowed");
        return !hasArgument;
    };
    auto needArgument = [&]() {
        if (!hasArgument)
            pushError(-109, "Missing parameter");
        return hasArgument;
    };

    if (headerIs(tokens, "*IDN") && query) {
        return answer(m_identity.maker + "," + m_identity.model + "," + m_identity.serial + ","
            + m_identity.firmware);
    }
    if (headerIs(tokens, "*RST") && !query) {
        if (noArgument())
            reset();
        return false;
    }
    if (headerIs(tokens, "*CLS") && !query) {
        if (noArgument())
            m_errors.clear();
        return false;
    }
    if (headerIs(tokens, "*OPC") && query)
        return answer("1");
    if ((headerIs(tokens, "*OPC") || headerIs(tokens, "*WAI")) && !query)
        return false;
    if (headerIs(tokens, "SYSTem:ERRor[:NEXT]") && query) {
        if (m_errors.empty())
            return answer("+0,\"No error\"");
        const std::string error = m_errors.front();
        m_errors.pop_front();
        return answer(error);
    }
    if (headerIs(tokens, "DISPlay[:STATe]")) {
        if (query)
            return answer(m_display ? "1" : "0");
        bool on = false;
        if (needArgument() && !parseBoolean(argument, on))
            pushError(-224, "Illegal parameter value");
        else if (hasArgument)
            m_display = on;
        return false;
    }
    if (headerIs(tokens, "DISPlay:TEXT[:DATA]")) {
        if (query)
            return answer("\"" + m_displayText + "\"");
        if (!needArgument())
            return false;
        if (argument.size() < 2 || (argument.front() != '"' && argument.front() != '\'')
            || argument.back() != argument.front()) {
            pushError(-151, "Invalid string data");
            return false;
        }
        m_displayText = argument.substr(1, argument.size() - 2);
        return false;
    }
    if (headerIs(tokens, "DISPlay:TEXT:CLEar") && !query) {
        m_displayText.clear();
        return false;
    }
    if (headerIs(tokens, "FUNCtion[:SHAPe]")) {
        if (query)
            return answer(m_function);
        if (!needArgument())
            return false;
        static const char* const shapes[][2]
            = { { "SIN", "SINUSOID" }, { "SQU", "SQUARE" }, { "RAMP", "RAMP" }, { "PULS", "PULSE" },
                  { "NOIS", "NOISE" }, { "DC", "DC" }, { "USER", "USER" } };
        const std::string shape = upper(argument);
        for (const auto& s : shapes) {
            if (shape == s[0] || shape == s[1]) {
                m_function = s[0];
                if (m_function == "PULS" && m_frequency > kMaxFrequencyPulse)
                    m_frequency = kMaxFrequencyPulse;
                return false;
            }
        }
        pushError(-224, "Illegal parameter value");
        return false;
    }
    if (headerIs(tokens, "[:SOURce]:FREQuency[:CW]")) {
        if (query)
            return answer(formatNumber(m_frequency));
        if (needArgument())
            setFrequency(argument);
        return false;
    }
    static const char* const voltageHeaders[][2]
        = { { "[:SOURce]:VOLTage[:LEVel][:IMMediate][:AMPLitude]", "AMPL" },
              { "[:SOURce]:VOLTage:OFFSet", "OFFSET" }, { "[:SOURce]:VOLTage:HIGH", "HIGH" },
              { "[:SOURce]:VOLTage:LOW", "LOW" } };
    for (const auto& v : voltageHeaders) {
        if (!headerIs(tokens, v[0]))
            continue;
        const std::string which = v[1];
        if (query) {
            const double value = which == "HIGH" ? m_offset + m_amplitude / 2
                : which == "LOW"                 ? m_offset - m_amplitude / 2
                : which == "OFFSET"              ? m_offset
                                                 : m_amplitude;
            return answer(formatNumber(value));
        }
        if (needArgument())
            setVoltage(which, argument);
        return false;
    }
    if (headerIs(tokens, "[:SOURce]:FUNCtion:PULSe:DCYCle")) {
        if (query)
            return answer(formatNumber(m_dutyCycle));
        double value = 0;
        if (!needArgument())
            return false;
        if (!parseNumber(argument, value))
            pushError(-224, "Illegal parameter value");
        else if (value <= 0 || value >= 100)
            pushError(-222, "Data out of range");
        else
            m_dutyCycle = value;
        return false;
    }
    if (headerIs(tokens, "OUTPut[:STATe]")) {
        if (query)
            return answer(m_output ? "1" : "0");
        bool on = false;
        if (needArgument() && !parseBoolean(argument, on))
            pushError(-224, "Illegal parameter value");
        else if (hasArgument)
            m_output = on;
        return false;
    }
    pushError(-113, "Undefined header");
    return false;
}
