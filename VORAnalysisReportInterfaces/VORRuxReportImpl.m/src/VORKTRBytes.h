#ifndef VORKTRBytes_h
#define VORKTRBytes_h

#include <cstddef>
#include <string_view>

#include "VORUnicodeString.h"

namespace VORReport
{

/// The narrow form of a text, valid as long as the text is unchanged.
inline std::string_view BytesOf(const VORUnicodeString& iText)
{
    return {iText.ConvertToChar(), static_cast<std::size_t>(iText.GetLengthInByte())};
}

/// Length of narrow text in characters.
inline int CountChars(std::string_view iText)
{
    return static_cast<int>(VORCountChars(iText.data(), iText.size()));
}

} // namespace VORReport

#endif
