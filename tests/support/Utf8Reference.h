#ifndef Utf8Reference_h
#define Utf8Reference_h

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

#endif
