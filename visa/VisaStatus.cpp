#include "VisaStatus.h"

#include "Vxi11Messages.h"

ViStatus VisaStatus::fromDeviceError(int32_t error)
{
    switch (error) {
    case vxi11::NoError:
        return VI_SUCCESS;
    case vxi11::SyntaxError:
    case vxi11::ParameterError:
    case vxi11::ChannelNotEstablished:
    case vxi11::ChannelAlreadyEstablished:
        return VI_ERROR_INV_SETUP;
    case vxi11::DeviceNotAccessible:
        return VI_ERROR_RSRC_NFOUND;
    case vxi11::InvalidLinkIdentifier:
        return VI_ERROR_CONN_LOST;
    case vxi11::OperationNotSupported:
        return VI_ERROR_NSUP_OPER;
    case vxi11::OutOfResources:
        return VI_ERROR_ALLOC;
    case vxi11::DeviceLockedByAnotherLink:
        return VI_ERROR_RSRC_LOCKED;
    case vxi11::NoLockHeldByThisLink:
        return VI_ERROR_SESN_NLOCKED;
    case vxi11::IoTimeout:
        return VI_ERROR_TMO;
    case vxi11::IoError:
        return VI_ERROR_IO;
    case vxi11::InvalidAddress:
        return VI_ERROR_INV_RSRC_NAME;
    case vxi11::Abort:
        return VI_ERROR_ABORT;
    default:
        return VI_ERROR_IO;
    }
}

ViStatus VisaStatus::fromTransport(RpcClient::Status status)
{
    switch (status) {
    case RpcClient::Status::Ok:
        return VI_SUCCESS;
    case RpcClient::Status::Timeout:
        return VI_ERROR_TMO;
    case RpcClient::Status::ConnectionLost:
    case RpcClient::Status::Unreachable:
        return VI_ERROR_CONN_LOST;
    case RpcClient::Status::ProtocolError:
    case RpcClient::Status::Rejected:
        break;
    }
    return VI_ERROR_IO;
}

ViStatus VisaStatus::fromOpenTransport(RpcClient::Status status)
{
    switch (status) {
    case RpcClient::Status::Ok:
        return VI_SUCCESS;
    case RpcClient::Status::Timeout:
        return VI_ERROR_TMO;
    default:
        return VI_ERROR_RSRC_NFOUND;
    }
}
