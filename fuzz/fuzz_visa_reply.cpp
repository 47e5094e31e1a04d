// What a malicious or broken instrument can send the VISA library: a byte stream on the core
// channel or the portmapper connection. The stream is cut into records the way RpcClient does
// (any split of the bytes), each record goes through the reply header and the results decoder
// of the call that was waiting for it.
//
// Input: [expected call] [split size] [stream...]

#include "FormatIo.h"
#include "RecordAssembler.h"
#include "RpcClient.h"
#include "RpcCodec.h"
#include "Vxi11Messages.h"

#include "FuzzCheck.h"

#include <cstdarg>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace {

enum Expected : uint8_t { GetPort, CreateLink, DeviceWrite, DeviceRead, DeviceClear, DestroyLink, kExpectedCount };


// Record marking read in one go over the whole stream: what the assembler must produce,
// whatever the split. Returns false where the assembler must fail.
bool referenceRecords(const uint8_t *data, size_t size, size_t limit,
                      std::vector<std::vector<uint8_t>> &records)
{
    std::vector<uint8_t> record;
    size_t pos = 0;
    while (size - pos >= 4) {
        const uint32_t mark = (uint32_t(data[pos]) << 24) | (uint32_t(data[pos + 1]) << 16)
                              | (uint32_t(data[pos + 2]) << 8) | uint32_t(data[pos + 3]);
        pos += 4;
        const size_t length = mark & 0x7FFFFFFFu;
        if (length > limit - record.size())
            return false;
        if (length > size - pos)
            return true; // incomplete: the assembler waits for more
        record.insert(record.end(), data + pos, data + pos + length);
        pos += length;
        if (mark & 0x80000000u) {
            records.push_back(std::move(record));
            record.clear();
        }
    }
    return true;
}

// viScanf's copy of a received message into the caller's buffers, each exactly as wide as the
// format allows: anything past it is an overflow the address sanitizer reports.
ViStatus scanInto(const std::string *input, const char *fmt, ...)
{
    va_list args;
    va_start(args, fmt);
    const ViStatus status = FormatIo::scan(fmt, args, *input);
    va_end(args);
    return status;
}

void scanMessage(const std::vector<uint8_t> &data)
{
    const std::string message(data.begin(), data.end());
    std::vector<char> whole(1024), word(FormatIo::kDefaultWidth), small(4), tiny(1);
    check(scanInto(&message, "%1024t", whole.data()) == VI_SUCCESS);
    check(scanInto(&message, "%s", word.data()) == VI_SUCCESS);
    check(scanInto(&message, "%4s,%1t", small.data(), tiny.data()) == VI_SUCCESS);
}

template <typename Message>
void roundTrip(const std::vector<uint8_t> &results)
{
    Message message;
    if (!vxi11::decode(results.data(), results.size(), message))
        return;
    // What was read must encode to something that reads back the same.
    const std::vector<uint8_t> again = vxi11::encode(message);
    Message copy;
    check(vxi11::decode(again.data(), again.size(), copy));
    check(vxi11::encode(copy) == again);
    check(again.size() <= results.size());
}

void takeResults(Expected expected, const std::vector<uint8_t> &results)
{
    switch (expected) {
    case GetPort: {
        uint32_t port = 0;
        if (vxi11::decodeUint(results.data(), results.size(), port))
            check(results.size() >= 4);
        break;
    }
    case CreateLink:
        roundTrip<vxi11::CreateLinkResp>(results);
        break;
    case DeviceWrite:
        roundTrip<vxi11::WriteResp>(results);
        break;
    case DeviceRead: {
        vxi11::ReadResp resp;
        if (vxi11::decode(results.data(), results.size(), resp)) {
            check(resp.data.size() <= vxi11::kMaxData && resp.data.size() + 12 <= results.size());
            scanMessage(resp.data);
        }
        roundTrip<vxi11::ReadResp>(results);
        break;
    }
    case DeviceClear:
    case DestroyLink: {
        int32_t error = 0;
        vxi11::decodeError(results.data(), results.size(), error);
        break;
    }
    case kExpectedCount:
        break;
    }
}

// The steps of RpcClient::receive once a record is in.
void takeRecord(Expected expected, const std::vector<uint8_t> &record)
{
    uint32_t xid = 0;
    if (!RpcCodec::peekXid(record.data(), record.size(), xid))
        return;
    RpcCodec::Reply header;
    if (!RpcCodec::parseReply(record.data(), record.size(), header))
        return;
    check(header.xid == xid);
    if (!header.accepted || header.acceptStat != RpcCodec::Success)
        return;
    check(header.resultOffset <= record.size());
    const std::vector<uint8_t> results(record.begin() + static_cast<std::ptrdiff_t>(header.resultOffset),
                                       record.end());
    takeResults(expected, results);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 2)
        return 0;
    const Expected expected = static_cast<Expected>(data[0] % kExpectedCount);
    const size_t split = data[1] == 0 ? size : data[1];
    data += 2;
    size -= 2;

    std::vector<std::vector<uint8_t>> wanted;
    const bool wantedOk = referenceRecords(data, size, RpcClient::kMaxRecordSize, wanted);

    // As RpcClient::receiveRecord: bytes arrive in pieces, leftovers wait in a pending buffer.
    RecordAssembler assembler(RpcClient::kMaxRecordSize);
    std::vector<uint8_t> pending;
    std::vector<std::vector<uint8_t>> got;
    size_t offset = 0;
    for (;;) {
        if (!pending.empty()) {
            const size_t used = assembler.feed(pending.data(), pending.size());
            check(used <= pending.size());
            pending.erase(pending.begin(), pending.begin() + static_cast<std::ptrdiff_t>(used));
        }
        if (assembler.failed())
            break;
        if (assembler.hasRecord()) {
            got.push_back(assembler.takeRecord());
            check(!assembler.hasRecord());
            takeRecord(expected, got.back());
            continue;
        }
        if (offset == size)
            break;
        const size_t take = split < size - offset ? split : size - offset;
        pending.insert(pending.end(), data + offset, data + offset + take);
        offset += take;
    }
    check(assembler.failed() == !wantedOk);
    check(got == wanted);
    return 0;
}
