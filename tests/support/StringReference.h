#ifndef StringReference_h
#define StringReference_h

#include <algorithm>
#include <string>

#include "VORUnicodeString.h"

/// The characters of some bytes, slowly: at each place the sequence that its lead byte announces,
/// when it is valid by the value that it stands for, else one byte.
inline std::u32string Decode(const std::string& iBytes)
{
    constexpr char32_t marks[] = {0, 0, 0xC0, 0xE0, 0xF0};
    constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    std::u32string chars;
    for (std::size_t at = 0, length = 1; at < iBytes.size(); at += length) {
        const char32_t lead = static_cast<unsigned char>(iBytes[at]);
        length = lead < 0xC0 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
        const std::string tail = iBytes.substr(at + 1, length - 1);
        char32_t value = lead - marks[length];
        for (const char byte : tail)
            value = (byte & 0xC0) == 0x80 ? value << 6 | (byte & 0x3F) : 0x3FFFFFF;
        if (length > 1 && (tail.size() < length - 1 || value < smallest[length] ||
                           value > 0x10FFFF || value >> 11 == 0xD800 >> 11))
            length = 1;
        chars += length > 1 || lead < 0x80 ? value : 0xDC00 + lead;
    }
    return chars;
}

/// The bytes of some characters.
inline std::string Encode(const std::u32string& iChars)
{
    std::string bytes;
    for (const char32_t one : iChars)
        bytes += VORUnicodeString(one, 1).ToString();
    return bytes;
}

/// True when a text is these bytes and, one by one, the characters that they stand for.
inline bool IsText(const VORUnicodeString& iText, const std::string& iBytes)
{
    std::u32string chars;
    for (int i = 0; i < iText.GetLengthInChar(); ++i)
        chars += iText[i];
    return iText.ToString() == iBytes && chars == Decode(iBytes);
}

/// Some bytes, a part of them, and what is done with it.
struct StringCase {
    std::string bytes;
    std::size_t cut; ///< Where the bytes are parted, at most their number.
    int position, length;
    std::string what, by;
};

/// The operation whose result is not that of the slow reference; "" when all are right.
inline std::string FaultOf(const StringCase& iCase)
{
    const std::u32string chars = Decode(iCase.bytes);
    const std::u32string by = Decode(iCase.by);
    const std::u32string what = Decode(iCase.what);
    const VORUnicodeString text(iCase.bytes);
    if (!IsText(text, iCase.bytes) || Encode(chars) != iCase.bytes)
        return "construction";

    VORUnicodeString built(iCase.bytes.c_str(), static_cast<int>(iCase.cut)); // ends at a NUL
    const std::string rest = iCase.bytes.substr(built.ToString().size());
    const VORUnicodeString sum = built + VORUnicodeString(rest);
    if (!IsText(built.AppendBytes(rest), iCase.bytes) || !IsText(sum, iCase.bytes))
        return "Append";

    const auto from = std::min(chars.size(), static_cast<std::size_t>(std::max(0, iCase.position)));
    std::u32string expected = chars;
    expected.replace(from, static_cast<std::size_t>(std::max(0, iCase.length)), by);
    built.ReplaceSubString(iCase.position, iCase.length, iCase.by);
    if (!IsText(built, Encode(expected)))
        return "ReplaceSubString";

    const std::size_t found = what.empty() ? chars.npos : chars.find(what, from);
    if (text.FindPosition(iCase.what, iCase.position) != static_cast<int>(found))
        return "FindPosition";
    expected = chars;
    for (std::size_t at = 0; !what.empty() && (at = expected.find(what, at)) != expected.npos;
         at += by.size())
        expected.replace(at, what.size(), by);
    built = text;
    built.ReplaceAll(iCase.what, iCase.by);
    return IsText(built, Encode(expected)) ? "" : "ReplaceAll";
}

#endif
