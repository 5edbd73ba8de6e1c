#ifndef VORKTREscape_h
#define VORKTREscape_h

#include <string_view>

namespace VORReport
{

/// What stands for a character in HTML; empty when it stands for itself.
std::string_view EscapeOf(char iCharacter);

/// Number of characters at the beginning of a text that stand for themselves in HTML.
std::size_t CountUnescaped(std::string_view iText);

/// Hands the HTML of a text to iAppend, piece by piece.
template <typename Append>
void EscapeHtml(std::string_view iText, Append&& iAppend)
{
    for (;;) {
        const std::size_t plain = CountUnescaped(iText);
        iAppend(iText.substr(0, plain));
        if (plain == iText.size())
            return;
        iAppend(EscapeOf(iText[plain]));
        iText.remove_prefix(plain + 1);
    }
}

} // namespace VORReport

#endif
