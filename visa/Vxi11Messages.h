#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// Programs, procedures and message structures of the VXI-11 core channel and of the portmapper,
// as the public VXI-11 and RFC 1833 documents define them, with their XDR forms. Both ends use
// these: the VISA client and the simulated instrument.
namespace vxi11 {

constexpr uint32_t kPortmapperProgram = 100000;
constexpr uint32_t kPortmapperVersion = 2;
constexpr uint32_t kPmapGetPort = 3;
constexpr uint32_t kRpcbGetAddr = 3; // rpcbind versions 3 and 4
constexpr uint32_t kIpProtoTcp = 6;
constexpr uint32_t kIpProtoUdp = 17;

constexpr uint32_t kCoreProgram = 0x0607AF;
constexpr uint32_t kAbortProgram = 0x0607B0;
constexpr uint32_t kCoreVersion = 1;

enum Procedure : uint32_t {
    DeviceAbort = 1,
    CreateLink = 10,
    DeviceWrite = 11,
    DeviceRead = 12,
    DeviceReadStb = 13,
    DeviceTrigger = 14,
    DeviceClear = 15,
    DeviceRemote = 16,
    DeviceLocal = 17,
    DeviceLock = 18,
    DeviceUnlock = 19,
    DeviceEnableSrq = 20,
    DeviceDoCmd = 22,
    DestroyLink = 23,
    CreateIntrChan = 25,
    DestroyIntrChan = 26,
};

enum Flags : uint32_t { FlagWaitLock = 1, FlagEnd = 8, FlagTermCharSet = 128 };
enum Reason : uint32_t { ReasonRequestCount = 1, ReasonTermChar = 2, ReasonEnd = 4 };

enum ErrorCode : int32_t {
    NoError = 0,
    SyntaxError = 1,
    DeviceNotAccessible = 3,
    InvalidLinkIdentifier = 4,
    ParameterError = 5,
    ChannelNotEstablished = 6,
    OperationNotSupported = 8,
    OutOfResources = 9,
    DeviceLockedByAnotherLink = 11,
    NoLockHeldByThisLink = 12,
    IoTimeout = 15,
    IoError = 17,
    InvalidAddress = 21,
    Abort = 23,
    ChannelAlreadyEstablished = 29,
};

// Limits on what a peer may make us hold; larger declared lengths are parse failures.
constexpr size_t kMaxDeviceName = 256;
constexpr size_t kMaxData = size_t(1024) * 1024;

struct CreateLinkParms
{
    int32_t clientId = 0;
    bool lockDevice = false;
    uint32_t lockTimeout = 0;
    std::string device;
};

struct CreateLinkResp
{
    int32_t error = 0;
    uint32_t linkId = 0;
    uint32_t abortPort = 0;
    uint32_t maxRecvSize = 0;
};

struct WriteParms
{
    uint32_t linkId = 0;
    uint32_t ioTimeout = 0;
    uint32_t lockTimeout = 0;
    uint32_t flags = 0;
    std::vector<uint8_t> data;
};

struct WriteResp
{
    int32_t error = 0;
    uint32_t size = 0;
};

struct ReadParms
{
    uint32_t linkId = 0;
    uint32_t requestSize = 0;
    uint32_t ioTimeout = 0;
    uint32_t lockTimeout = 0;
    uint32_t flags = 0;
    uint8_t termChar = 0;
};

struct ReadResp
{
    int32_t error = 0;
    uint32_t reason = 0;
    std::vector<uint8_t> data;
};

struct GenericParms
{
    uint32_t linkId = 0;
    uint32_t flags = 0;
    uint32_t lockTimeout = 0;
    uint32_t ioTimeout = 0;
};

struct GetPortParms
{
    uint32_t program = 0;
    uint32_t version = 0;
    uint32_t protocol = 0;
    uint32_t port = 0;
};

std::vector<uint8_t> encode(const CreateLinkParms& m);
std::vector<uint8_t> encode(const CreateLinkResp& m);
std::vector<uint8_t> encode(const WriteParms& m);
std::vector<uint8_t> encode(const WriteResp& m);
std::vector<uint8_t> encode(const ReadParms& m);
std::vector<uint8_t> encode(const ReadResp& m);
std::vector<uint8_t> encode(const GenericParms& m);
std::vector<uint8_t> encode(const GetPortParms& m);
std::vector<uint8_t> encodeError(int32_t error); // Device_Error and Device_Link's one-field forms
std::vector<uint8_t> encodeUint(uint32_t value);

// Each decodes the whole buffer; false when it is short or declares an oversized field.
bool decode(const uint8_t* data, size_t size, CreateLinkParms& m);
bool decode(const uint8_t* data, size_t size, CreateLinkResp& m);
bool decode(const uint8_t* data, size_t size, WriteParms& m);
bool decode(const uint8_t* data, size_t size, WriteResp& m);
bool decode(const uint8_t* data, size_t size, ReadParms& m);
bool decode(const uint8_t* data, size_t size, ReadResp& m);
bool decode(const uint8_t* data, size_t size, GenericParms& m);
bool decode(const uint8_t* data, size_t size, GetPortParms& m);
bool decodeError(const uint8_t* data, size_t size, int32_t& error);
bool decodeUint(const uint8_t* data, size_t size, uint32_t& value);

} // namespace vxi11
