#ifndef Status_h
#define Status_h

#include "VORStatus.h"
#include "WindowsApi.h"

namespace VORLayer
{

/// The status that stands for a failure of the system.
inline VORStatus StatusOf(DWORD iError)
{
    switch (iError) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_DIRECTORY:
        return VOR_E_FILE_NOT_FOUND;
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_DELETE_PENDING:
    case ERROR_PRIVILEGE_NOT_HELD:
        return VOR_E_ACCESS_DENIED;
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
        return VOR_E_FILE_EXISTS;
    case ERROR_TOO_MANY_OPEN_FILES:
    case ERROR_NO_SYSTEM_RESOURCES:
        return VOR_E_TOO_MANY_FILES;
    case ERROR_NOT_ENOUGH_MEMORY:
    case ERROR_OUTOFMEMORY:
        return VOR_E_OUT_OF_MEMORY;
    case ERROR_HANDLE_DISK_FULL:
    case ERROR_DISK_FULL:
    case ERROR_FILE_TOO_LARGE:
        return VOR_E_DISK_FULL;
    default:
        return VOR_E_FAIL;
    }
}

/// The status of a call that gives false when it fails.
inline VORStatus StatusOfCall(BOOL iResult)
{
    return iResult ? VOR_S_OK : StatusOf(GetLastError());
}

} // namespace VORLayer

#endif
