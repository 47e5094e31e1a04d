#pragma once

#include <QtGlobal>

// The plug-in is built with hidden visibility. Two marks open it where it must be open:
// SYNC_EXPORT for the one entry the host resolves by name, SYNC_SHARED for types that cross the
// boundary between host and plug-in (interfaces, the exception family), so that RTTI and catch
// by type work on both sides.
#if defined(_WIN32)
#  define SYNC_EXPORT __declspec(dllexport)
#  define SYNC_SHARED
#else
#  define SYNC_EXPORT __attribute__((visibility("default")))
#  define SYNC_SHARED __attribute__((visibility("default")))
#endif

// A document key; -1 means no document.
using DOCKEY = int;
// The number of a partition of a document.
using PARTITIONNUMBER = int;

constexpr DOCKEY INVALID_DOCKEY = -1;
