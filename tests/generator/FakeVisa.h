#pragma once

// A scripted stand-in for a VISA library: the six entry points answer with statuses and
// replies set by the test, and every call is recorded. Built once complete and once per entry
// point with that one left out.
#if defined(_WIN32)
#define FAKEVISA_EXPORT __declspec(dllexport)
#else
#define FAKEVISA_EXPORT __attribute__((visibility("default")))
#endif

extern "C" {
FAKEVISA_EXPORT void fakeVisaReset();
// The status an entry point gives from now on, by its name ("viOpen").
FAKEVISA_EXPORT void fakeVisaSetStatus(const char* function, int status);
// The next reply of viScanf: length bytes, of which it stores what the format's width allows.
FAKEVISA_EXPORT void fakeVisaQueueReply(const char* bytes, int length);
// Calls so far, one line each: the name, then the arguments separated by "|".
FAKEVISA_EXPORT int fakeVisaCallCount();
FAKEVISA_EXPORT const char* fakeVisaCall(int index);
}
