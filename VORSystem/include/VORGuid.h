#ifndef VORGuid_h
#define VORGuid_h

/// @file
/// Interface identifiers.

#include <cstdint>

/// 16-byte identifier of a component interface, in its usual record form.
struct GUID {
    std::uint32_t Data1;   ///< First group of the textual form.
    std::uint16_t Data2;   ///< Second group.
    std::uint16_t Data3;   ///< Third group.
    std::uint8_t Data4[8]; ///< Fourth and fifth group, byte by byte.
};

/// @{ Identifiers are equal when all their bytes are.
inline bool operator==(const GUID& iLeft, const GUID& iRight)
{
    for (int i = 0; i < 8; ++i) {
        if (iLeft.Data4[i] != iRight.Data4[i])
            return false;
    }
    return iLeft.Data1 == iRight.Data1 && iLeft.Data2 == iRight.Data2 &&
           iLeft.Data3 == iRight.Data3;
}

inline bool operator!=(const GUID& iLeft, const GUID& iRight)
{
    return !(iLeft == iRight);
}
/// @}

#endif
