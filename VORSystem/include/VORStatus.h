#ifndef VORStatus_h
#define VORStatus_h

/// @file
/// Status codes.

#include "VORSystemExport.h"

/// Status codes: 32-bit signed, 0 on success, negative on failure. Operations of the file and path
/// layer may return any negative value; callers test for that, not for a particular code.
using VORStatus = int;

/// @{ Success, and the failures that this layer names.
constexpr VORStatus VOR_S_OK = 0;
constexpr VORStatus VOR_E_NOTIMPL = static_cast<VORStatus>(0x80004001u);
constexpr VORStatus VOR_E_NOINTERFACE = static_cast<VORStatus>(0x80004002u);
constexpr VORStatus VOR_E_FAIL = static_cast<VORStatus>(0x80004005u);
constexpr VORStatus VOR_E_FILE_NOT_FOUND = static_cast<VORStatus>(0x80070002u);
constexpr VORStatus VOR_E_TOO_MANY_FILES = static_cast<VORStatus>(0x80070004u);
constexpr VORStatus VOR_E_ACCESS_DENIED = static_cast<VORStatus>(0x80070005u);
constexpr VORStatus VOR_E_INVALID_HANDLE = static_cast<VORStatus>(0x80070006u);
constexpr VORStatus VOR_E_OUT_OF_MEMORY = static_cast<VORStatus>(0x8007000Eu);
constexpr VORStatus VOR_E_FILE_EXISTS = static_cast<VORStatus>(0x80070050u);
constexpr VORStatus VOR_E_INVALIDARG = static_cast<VORStatus>(0x80070057u);
constexpr VORStatus VOR_E_DISK_FULL = static_cast<VORStatus>(0x80070070u);
/// @}

/// What a status means, for a person to read ("disk full"), in English, lower case, without a full
/// stop. Never null: "success" for what is not negative, "failure" for a status of no other name.
VORSYSTEM_EXPORT const char* VORStatusText(VORStatus iStatus);

#endif
