/* VISA entry points offered by libvxivisa: the six calls the sync control plug-in makes, with the
 * types and status codes of the public VISA standard, so that code written against any VISA
 * library binds to this one unchanged. */
#pragma once

#ifdef __cplusplus
extern "C" {
#endif

/* 32 bits on every platform: long on Windows, int on LP64 systems. */
#if defined(_WIN32)
typedef unsigned long ViUInt32;
typedef signed long ViInt32;
#else
typedef unsigned int ViUInt32;
typedef signed int ViInt32;
#endif
typedef ViInt32 ViStatus;
typedef ViUInt32 ViObject;
typedef ViObject ViSession;
typedef ViSession* ViPSession;
typedef char ViChar;
typedef ViChar* ViString;
typedef const ViChar* ViConstString;
typedef ViString ViRsrc;
typedef ViConstString ViConstRsrc;
typedef ViUInt32 ViAccessMode;

#if defined(_WIN32)
#define VI_FUNCC __cdecl
#else
#define VI_FUNCC
#endif

#if defined(VXIVISA_BUILDING)
#if defined(_WIN32)
#define VXIVISA_EXPORT __declspec(dllexport)
#else
#define VXIVISA_EXPORT __attribute__((visibility("default")))
#endif
#else
#define VXIVISA_EXPORT
#endif

#define VI_NULL 0
#define VI_NO_LOCK ((ViAccessMode)0)
#define VI_TMO_IMMEDIATE 0
#define VI_TMO_INFINITE 0xFFFFFFFFu

#define VI_SUCCESS ((ViStatus)0)
#define VI_SUCCESS_TERM_CHAR ((ViStatus)0x3FFF0005)
#define VI_SUCCESS_MAX_CNT ((ViStatus)0x3FFF0006)

#define VI_ERROR ((ViStatus)(-2147483647 - 1))
#define VI_ERROR_SYSTEM_ERROR ((ViStatus)(VI_ERROR + 0x3FFF0000))
#define VI_ERROR_INV_OBJECT ((ViStatus)(VI_ERROR + 0x3FFF000E))
#define VI_ERROR_RSRC_LOCKED ((ViStatus)(VI_ERROR + 0x3FFF000F))
#define VI_ERROR_RSRC_NFOUND ((ViStatus)(VI_ERROR + 0x3FFF0011))
#define VI_ERROR_INV_RSRC_NAME ((ViStatus)(VI_ERROR + 0x3FFF0012))
#define VI_ERROR_INV_ACC_MODE ((ViStatus)(VI_ERROR + 0x3FFF0013))
#define VI_ERROR_TMO ((ViStatus)(VI_ERROR + 0x3FFF0015))
#define VI_ERROR_ABORT ((ViStatus)(VI_ERROR + 0x3FFF0030))
#define VI_ERROR_INV_SETUP ((ViStatus)(VI_ERROR + 0x3FFF003A))
#define VI_ERROR_ALLOC ((ViStatus)(VI_ERROR + 0x3FFF003C))
#define VI_ERROR_IO ((ViStatus)(VI_ERROR + 0x3FFF003E))
#define VI_ERROR_INV_FMT ((ViStatus)(VI_ERROR + 0x3FFF003F))
#define VI_ERROR_NSUP_FMT ((ViStatus)(VI_ERROR + 0x3FFF0041))
#define VI_ERROR_NSUP_OPER ((ViStatus)(VI_ERROR + 0x3FFF0067))
#define VI_ERROR_INV_PARAMETER ((ViStatus)(VI_ERROR + 0x3FFF0078))
#define VI_ERROR_SESN_NLOCKED ((ViStatus)(VI_ERROR + 0x3FFF009C))
#define VI_ERROR_CONN_LOST ((ViStatus)(VI_ERROR + 0x3FFF00A6))

VXIVISA_EXPORT ViStatus VI_FUNCC viOpenDefaultRM(ViPSession vi);
VXIVISA_EXPORT ViStatus VI_FUNCC viOpen(
    ViSession sesn, ViRsrc name, ViAccessMode mode, ViUInt32 timeout, ViPSession vi);
VXIVISA_EXPORT ViStatus VI_FUNCC viClose(ViObject vi);
VXIVISA_EXPORT ViStatus VI_FUNCC viClear(ViSession vi);
VXIVISA_EXPORT ViStatus VI_FUNCC viPrintf(ViSession vi, ViString writeFmt, ...);
VXIVISA_EXPORT ViStatus VI_FUNCC viScanf(ViSession vi, ViString readFmt, ...);

typedef ViStatus(VI_FUNCC* ViOpenDefaultRMFunc)(ViPSession);
typedef ViStatus(VI_FUNCC* ViOpenFunc)(ViSession, ViRsrc, ViAccessMode, ViUInt32, ViPSession);
typedef ViStatus(VI_FUNCC* ViCloseFunc)(ViObject);
typedef ViStatus(VI_FUNCC* ViClearFunc)(ViSession);
typedef ViStatus(VI_FUNCC* ViPrintfFunc)(ViSession, ViString, ...);
typedef ViStatus(VI_FUNCC* ViScanfFunc)(ViSession, ViString, ...);

#ifdef __cplusplus
}
#endif
