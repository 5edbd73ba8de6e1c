#ifndef VORKTRBytes_h
#define VORKTRBytes_h

#include <cstddef>
#include <string_view>

#include "VORUnicodeString.h"

/// The narrow form of a text, valid as long as the text is unchanged.
inline std::string_view BytesOf(const VORUnicodeString& iText)
{
    return {iText.ConvertToChar(), static_cast<std::size_t>(iText.GetLengthInByte())};
}

inline VORUnicodeString UnicodeOf(std::string_view iBytes)
{
    return VORUnicodeString(iBytes.data(), static_cast<int>(iBytes.size()));
}

/// Calls iVisit with each line of a text, without its "\n". There is always one line more than
/// there are "\n".
template <typename Visit>
void ForEachLine(std::string_view iText, Visit&& iVisit)
{
    for (auto end = iText.find('\n'); end != std::string_view::npos; end = iText.find('\n')) {
        iVisit(iText.substr(0, end));
        iText.remove_prefix(end + 1);
    }
    iVisit(iText);
}

/// Length of narrow text in characters.
inline int CountChars(std::string_view iText)
{
    return static_cast<int>(VORCountChars(iText.data(), iText.size()));
}

#endif
