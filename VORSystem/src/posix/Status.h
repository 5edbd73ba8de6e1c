#ifndef Status_h
#define Status_h

#include <cerrno>

#include "VORStatus.h"

namespace VORLayer
{

/// The status that stands for a failure of the system.
inline VORStatus StatusOf(int iErrno)
{
    switch (iErrno) {
    case ENOENT:
    case ENOTDIR:
        return VOR_E_FILE_NOT_FOUND;
    case EACCES:
    case EPERM:
    case EROFS:
        return VOR_E_ACCESS_DENIED;
    case EEXIST:
        return VOR_E_FILE_EXISTS;
    case EMFILE:
    case ENFILE:
        return VOR_E_TOO_MANY_FILES;
    case ENOMEM:
        return VOR_E_OUT_OF_MEMORY;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return VOR_E_DISK_FULL;
    default:
        return VOR_E_FAIL;
    }
}

/// The status of a call that gives a negative number when it fails.
template <typename Result>
VORStatus StatusOfCall(Result iResult)
{
    return iResult < 0 ? StatusOf(errno) : VOR_S_OK;
}

} // namespace VORLayer

#endif
