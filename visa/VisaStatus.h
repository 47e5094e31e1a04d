#pragma once

#include "RpcClient.h"
#include "visa.h"

#include <cstdint>

// Turns what the network and the device said into VISA status codes, in one place.
class VisaStatus
{
public:
    // Every VXI-11 device error code, unknown ones included.
    static ViStatus fromDeviceError(int32_t error);
    // Transport outcome of an I/O call on an open session.
    static ViStatus fromTransport(RpcClient::Status status);
    // Transport outcome while opening: an instrument that is not there is "not found".
    static ViStatus fromOpenTransport(RpcClient::Status status);
};
