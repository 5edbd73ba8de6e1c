#include "VORKTREscape.h"

#include <cstddef>

namespace
{

struct Escape {
    char character;
    std::string_view html;
};

constexpr Escape Escapes[] = {{'&', "&amp;"},
                              {'<', "&lt;"},
                              {'>', "&gt;"},
                              {'\n', "<BR>\n"},
                              {'\t', "<TT>&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;</TT>"}};

// True for the characters of the table, and nothing else, without a branch.
constexpr bool IsEscaped(char iCharacter)
{
    bool isEscaped = false;
    for (const Escape& escape : Escapes)
        isEscaped |= iCharacter == escape.character;
    return isEscaped;
}

constexpr std::size_t BlockSize = 16;

// A loop of fixed length, which compilers turn into a few operations on all 16 characters.
bool HoldsEscaped(const char* iBlock)
{
    unsigned char found = 0;
    for (std::size_t i = 0; i < BlockSize; ++i)
        found |= static_cast<unsigned char>(IsEscaped(iBlock[i]));
    return found != 0;
}

} // namespace

std::string_view EscapeOf(char iCharacter)
{
    for (const Escape& escape : Escapes) {
        if (escape.character == iCharacter)
            return escape.html;
    }
    return {};
}

std::size_t CountUnescaped(std::string_view iText)
{
    std::size_t at = 0;
    while (iText.size() - at >= BlockSize && !HoldsEscaped(iText.data() + at))
        at += BlockSize;
    while (at < iText.size() && !IsEscaped(iText[at]))
        ++at;
    return at;
}
