#ifndef VORGuid_h
#define VORGuid_h

#include <array>
#include <cstdint>
#include <tuple>

struct GUID {
    std::uint32_t Data1;
    std::uint16_t Data2;
    std::uint16_t Data3;
    std::array<std::uint8_t, 8> Data4;
};

inline bool operator==(const GUID& iLeft, const GUID& iRight)
{
    return std::tie(iLeft.Data1, iLeft.Data2, iLeft.Data3, iLeft.Data4) ==
           std::tie(iRight.Data1, iRight.Data2, iRight.Data3, iRight.Data4);
}

#endif
