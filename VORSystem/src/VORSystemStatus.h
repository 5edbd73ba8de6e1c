#ifndef VORSystemStatus_h
#define VORSystemStatus_h

#include <cerrno>
#include <system_error>

#include "VORStatus.h"

/// The status that stands for a failure of the system.
inline VORStatus VORStatusFromErrno(int iErrno)
{
    switch (iErrno) {
    case 0:
        return VOR_S_OK;
    case ENOENT:
    case ENOTDIR:
        return VOR_E_FILE_NOT_FOUND;
    case EACCES:
    case EPERM:
    case EROFS:
        return VOR_E_ACCESS_DENIED;
    case EEXIST:
        return VOR_E_FILE_EXISTS;
    case ENOSPC:
        return VOR_E_DISK_FULL;
    default:
        return VOR_E_FAIL;
    }
}

inline VORStatus VORStatusFromError(const std::error_code& iError)
{
    return VORStatusFromErrno(iError.value());
}

#endif
