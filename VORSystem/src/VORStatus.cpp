#include "VORStatus.h"

const char* VORStatusText(VORStatus iStatus)
{
    switch (iStatus) {
    case VOR_E_NOTIMPL:
        return "not implemented";
    case VOR_E_NOINTERFACE:
        return "no such interface";
    case VOR_E_FILE_NOT_FOUND:
        return "no such file or directory";
    case VOR_E_TOO_MANY_FILES:
        return "too many open files";
    case VOR_E_ACCESS_DENIED:
        return "access denied";
    case VOR_E_INVALID_HANDLE:
        return "not an open file";
    case VOR_E_OUT_OF_MEMORY:
        return "out of memory";
    case VOR_E_FILE_EXISTS:
        return "file exists";
    case VOR_E_INVALIDARG:
        return "invalid argument";
    case VOR_E_DISK_FULL:
        return "disk full";
    default:
        return iStatus < 0 ? "failure" : "success";
    }
}
