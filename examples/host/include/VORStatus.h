#ifndef VORStatus_h
#define VORStatus_h

using VORStatus = int;

constexpr VORStatus VOR_S_OK = 0;
constexpr VORStatus VOR_E_NOTIMPL = static_cast<VORStatus>(0x80004001u);
constexpr VORStatus VOR_E_FAIL = static_cast<VORStatus>(0x80004005u);
constexpr VORStatus VOR_E_FILE_NOT_FOUND = static_cast<VORStatus>(0x80070002u);
constexpr VORStatus VOR_E_ACCESS_DENIED = static_cast<VORStatus>(0x80070005u);
constexpr VORStatus VOR_E_INVALID_HANDLE = static_cast<VORStatus>(0x80070006u);
constexpr VORStatus VOR_E_OUT_OF_MEMORY = static_cast<VORStatus>(0x8007000Eu);
constexpr VORStatus VOR_E_INVALIDARG = static_cast<VORStatus>(0x80070057u);
constexpr VORStatus VOR_E_DISK_FULL = static_cast<VORStatus>(0x80070070u);

#endif
