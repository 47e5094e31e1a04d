#include "SimOptions.h"

#include <cstdlib>
#include <cstring>

namespace {
bool toNumber(const char* text, uint32_t max, uint32_t& value)
{
    char* end = nullptr;
    const unsigned long n = std::strtoul(text, &end, 10);
    if (!*text || *end || n > max)
        return false;
    value = static_cast<uint32_t>(n);
    return true;
}
} // namespace

const char* SimOptions::usage()
{
    return "usage: sim33210a [options]\n"
           "  --listen ADDR           address to listen on (127.0.0.1)\n"
           "  --portmapper-port N     portmapper port, TCP and UDP (111)\n"
           "  --core-port N           VXI-11 core port (0: any free port)\n"
           "  --log FILE              append every command received, one per line\n"
           "  --model NAME            model field of *IDN? (33210A)\n"
           "  --maker NAME            maker field of *IDN?\n"
           "  --serial TEXT           serial field of *IDN?\n"
           "  --delay-ms N            wait N ms before every core-channel reply\n"
           "  --silent-at STAGE       never answer at: portmapper, create_link, device_read\n"
           "  --drop-mid-reply        close the connection halfway through a device_read reply\n"
           "  --garbage               answer device_read with a malformed RPC reply\n"
           "  --max-links N           refuse create_link beyond N open links (16)\n"
           "  --max-recv-size N       maxRecvSize announced by create_link (4096)\n"
           "  --tcp-nodelay           turn Nagle's algorithm off on TCP connections\n"
           "  --freeze-on TEXT        stop the process (SIGSTOP) at the first message holding "
           "TEXT\n"
           "  --die-on TEXT           kill the process (SIGKILL) at the first message holding "
           "TEXT\n";
}

bool SimOptions::parse(int argc, char** argv, std::string& error)
{
    for (int i = 1; i < argc; ++i) {
        const std::string flag = argv[i];
        const bool hasValue = i + 1 < argc;
        const char* value = hasValue ? argv[i + 1] : "";
        uint32_t number = 0;
        auto needValue = [&]() {
            if (!hasValue)
                error = "missing value for " + flag;
            return hasValue;
        };
        if (flag == "--drop-mid-reply") {
            dropMidReply = true;
            continue;
        }
        if (flag == "--garbage") {
            garbage = true;
            continue;
        }
        if (flag == "--tcp-nodelay") {
            tcpNoDelay = true;
            continue;
        }
        if (flag == "--help" || flag == "-h") {
            error = usage();
            return false;
        }
        if (!needValue())
            return false;
        ++i;
        if (flag == "--listen") {
            listenAddress = value;
        } else if (flag == "--portmapper-port" && toNumber(value, 65535, number) && number > 0) {
            portmapperPort = static_cast<uint16_t>(number);
        } else if (flag == "--core-port" && toNumber(value, 65535, number)) {
            corePort = static_cast<uint16_t>(number);
        } else if (flag == "--log") {
            logPath = value;
        } else if (flag == "--model") {
            model = value;
        } else if (flag == "--maker") {
            maker = value;
        } else if (flag == "--serial") {
            serial = value;
        } else if (flag == "--freeze-on" && *value) {
            freezeOn = value;
        } else if (flag == "--die-on" && *value) {
            dieOn = value;
        } else if (flag == "--delay-ms" && toNumber(value, 600000, number)) {
            delayMs = number;
        } else if (flag == "--max-links" && toNumber(value, 1000000, number)) {
            maxLinks = number;
        } else if (flag == "--max-recv-size" && toNumber(value, 1024 * 1024, number)
            && number > 0) {
            maxRecvSize = number;
        } else if (flag == "--silent-at") {
            const std::string stage = value;
            if (stage == "portmapper")
                silentAt = Stage::Portmapper;
            else if (stage == "create_link")
                silentAt = Stage::CreateLink;
            else if (stage == "device_read")
                silentAt = Stage::DeviceRead;
            else {
                error = "unknown stage: " + stage;
                return false;
            }
        } else {
            error = "bad option or value: " + flag + " " + value;
            return false;
        }
    }
    return true;
}
