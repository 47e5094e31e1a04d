#pragma once

#include <string>

// A VISA resource string for a VXI-11 instrument: "TCPIP[board]::host[::device]::INSTR", keywords
// in any letter case, the device defaulting to "inst0".
class ResourceName
{
public:
    enum class Result {
        Ok,
        Invalid, // not a resource string at all
        Unsupported, // well-formed, but not a VXI-11 instrument (a socket, a HiSLIP device, ...)
    };

    static Result parse(const std::string& text, ResourceName& out);

    const std::string& host() const { return m_host; }
    const std::string& device() const { return m_device; }
    unsigned board() const { return m_board; }

private:
    std::string m_host;
    std::string m_device;
    unsigned m_board = 0;
};
