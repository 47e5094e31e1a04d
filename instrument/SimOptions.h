#pragma once

#include <cstdint>
#include <string>

// How the simulated generator is set up, and which faults it shows, from its command line.
struct SimOptions
{
    enum class Stage { None, Portmapper, CreateLink, DeviceRead };

    std::string listenAddress = "127.0.0.1";
    uint16_t portmapperPort = 111;
    uint16_t corePort = 0; // 0: any free port
    std::string maker = "Simulated Instruments Inc.";
    std::string model = "33210A";
    std::string serial = "SIM0000001";
    std::string firmware = "1.0.0";
    std::string logPath;
    uint32_t delayMs = 0;
    Stage silentAt = Stage::None;
    bool dropMidReply = false;
    bool garbage = false;
    uint32_t maxLinks = 16;
    uint32_t maxRecvSize = 4096;
    bool tcpNoDelay = false;
    // The first message holding this text stops the whole process (SIGSTOP) or ends it
    // (SIGKILL) before it is executed or answered: a fault at a known point of a sequence.
    std::string freezeOn;
    std::string dieOn;

    // false with a message for a bad command line.
    bool parse(int argc, char** argv, std::string& error);
    static const char* usage();
};
