#include "ResourceName.h"

#include <cctype>
#include <vector>

namespace {
bool equalsIgnoringCase(const std::string& a, const char* b)
{
    size_t i = 0;
    for (; i < a.size() && b[i]; ++i) {
        if (std::toupper(static_cast<unsigned char>(a[i]))
            != std::toupper(static_cast<unsigned char>(b[i])))
            return false;
    }
    return i == a.size() && !b[i];
}

bool startsWithIgnoringCase(const std::string& a, const char* prefix, size_t length)
{
    return a.size() >= length && equalsIgnoringCase(a.substr(0, length), prefix);
}

// Splits at "::", keeping a bracketed IPv6 address such as "[::1]" in one piece.
std::vector<std::string> split(const std::string& text)
{
    std::vector<std::string> parts;
    std::string current;
    bool inBrackets = false;
    for (size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '[')
            inBrackets = true;
        else if (c == ']')
            inBrackets = false;
        if (!inBrackets && c == ':' && i + 1 < text.size() && text[i + 1] == ':') {
            parts.push_back(current);
            current.clear();
            ++i;
            continue;
        }
        current += c;
    }
    parts.push_back(current);
    return parts;
}

bool isPrintableToken(const std::string& s)
{
    if (s.empty() || s.size() > 255)
        return false;
    for (const char c : s) {
        const auto u = static_cast<unsigned char>(c);
        if (u <= 0x20 || u >= 0x7F)
            return false;
    }
    return true;
}
} // namespace

ResourceName::Result ResourceName::parse(const std::string& text, ResourceName& out)
{
    const std::vector<std::string> parts = split(text);
    if (parts.size() < 2)
        return Result::Invalid;

    const std::string& interface = parts[0];
    if (!startsWithIgnoringCase(interface, "TCPIP", 5))
        return startsWithIgnoringCase(interface, "GPIB", 4)
                || startsWithIgnoringCase(interface, "USB", 3)
                || startsWithIgnoringCase(interface, "ASRL", 4)
            ? Result::Unsupported
            : Result::Invalid;
    unsigned board = 0;
    const std::string digits = interface.substr(5);
    if (digits.size() > 4)
        return Result::Invalid;
    for (const char c : digits) {
        if (!std::isdigit(static_cast<unsigned char>(c)))
            return Result::Invalid;
        board = board * 10 + unsigned(c - '0');
    }

    std::string host = parts[1];
    if (host.size() >= 2 && host.front() == '[' && host.back() == ']')
        host = host.substr(1, host.size() - 2);
    if (!isPrintableToken(host))
        return Result::Invalid;

    std::string device = "inst0";
    std::string resourceClass;
    if (parts.size() == 3) {
        resourceClass = parts[2];
    } else if (parts.size() == 4) {
        device = parts[2];
        resourceClass = parts[3];
        if (!isPrintableToken(device))
            return Result::Invalid;
    } else {
        return Result::Invalid;
    }
    if (equalsIgnoringCase(resourceClass, "SOCKET"))
        return Result::Unsupported;
    if (!equalsIgnoringCase(resourceClass, "INSTR"))
        return Result::Invalid;
    if (startsWithIgnoringCase(device, "hislip", 6))
        return Result::Unsupported;

    out.m_host = host;
    out.m_device = device;
    out.m_board = board;
    return Result::Ok;
}
