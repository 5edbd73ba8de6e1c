#include "VORKTREscape.h"

#include <cstddef>

using namespace VORReport;

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

} // namespace

std::string_view VORReport::EscapeOf(char iCharacter)
{
    for (const Escape& escape : Escapes) {
        if (escape.character == iCharacter)
            return escape.html;
    }
    return {};
}

std::size_t VORReport::CountUnescaped(std::string_view iText)
{
    std::size_t at = 0;
    while (at < iText.size() && !IsEscaped(iText[at]))
        ++at;
    return at;
}
