#include <algorithm>
#include <random>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "VORUnicodeString.h"

namespace
{

// The slow reference: at each place the sequence that its lead byte announces, when it is valid by
// the value that it stands for, else one byte.
std::u32string Decode(const std::string& iBytes)
{
    constexpr unsigned int marks[] = {0, 0, 0xC0, 0xE0, 0xF0};
    constexpr unsigned int smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    std::u32string chars;
    for (std::size_t at = 0, length = 1; at < iBytes.size(); at += length) {
        const unsigned int lead = static_cast<unsigned char>(iBytes[at]);
        length = lead < 0xC0 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
        unsigned int value = lead - marks[length];
        const std::string tail = iBytes.substr(at + 1, length - 1);
        for (const char one : tail) {
            const unsigned int byte = static_cast<unsigned char>(one);
            value = byte >> 6 == 2 ? value << 6 | (byte & 0x3F) : 0x3FFFFFF;
        }
        if (length > 1 && (tail.size() < length - 1 || value < smallest[length] ||
                           value > 0x10FFFF || value >> 11 == 0xD800 >> 11))
            length = 1;
        chars += length > 1 || lead < 0x80 ? value : 0xDC00 + lead;
    }
    return chars;
}

std::string Encode(const std::u32string& iChars)
{
    std::string bytes;
    for (const char32_t one : iChars)
        bytes += VORUnicodeString(one, 1).ConvertToChar();
    return bytes;
}

std::u32string Chars(const VORUnicodeString& iText)
{
    std::u32string chars;
    for (int i = 0; i < iText.GetLengthInChar(); ++i)
        chars += iText[i];
    return chars;
}

TEST(UnicodeString, AgreesWithTheReferenceOnRandomBytes)
{
    std::mt19937 random(1);
    const auto below = [&](std::size_t iEnd) { return random() % iEnd; };
    const auto randomBytes = [&](std::size_t iLength) {
        // Both sides of every border of UTF-8, and text in which there is something to find.
        const std::string borders = "A\x7F\x80\x8F\x90\x9F\xA0\xBF\xC0\xC1\xC2\xDF\xE0\xE1\xEC\xED"
                                    "\xEE\xEF\xF0\xF1\xF3\xF4\xF5\xF8\xFF";
        const std::string letters = "aaab\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80";
        const std::string& alphabet = below(2) ? borders : letters;
        std::string bytes;
        while (bytes.size() < iLength)
            bytes += alphabet.substr(below(alphabet.size()), 1 + below(4));
        return bytes.substr(0, iLength);
    };
    for (int round = 0; round < 30000; ++round) {
        const std::string bytes = randomBytes(below(30));
        const std::u32string chars = Decode(bytes);
        const VORUnicodeString text(bytes.c_str());
        ASSERT_EQ(text.ConvertToChar(), bytes);
        ASSERT_EQ(Chars(text), chars);
        ASSERT_EQ(Encode(chars), bytes);

        const std::size_t cut = below(bytes.size() + 1);
        VORUnicodeString changed(bytes.c_str(), static_cast<int>(cut));
        ASSERT_EQ(Chars(changed += bytes.c_str() + cut), chars);

        const std::string by = randomBytes(below(3));
        const auto position = static_cast<int>(below(chars.size() + 6)) - 3;
        const auto length = static_cast<int>(below(8)) - 2;
        const auto from = std::min(chars.size(), static_cast<std::size_t>(std::max(0, position)));
        std::u32string expected = chars;
        expected.replace(from, static_cast<std::size_t>(std::max(0, length)), Decode(by));
        changed.ReplaceSubString(position, length, by.c_str());
        ASSERT_EQ(changed.ConvertToChar(), Encode(expected));
        ASSERT_EQ(Chars(changed), Decode(Encode(expected)));

        const std::string what = randomBytes(1 + below(3));
        const std::u32string whatChars = Decode(what);
        ASSERT_EQ(text.FindPosition(what.c_str(), position),
                  static_cast<int>(chars.find(whatChars, from)));
        expected = chars;
        for (std::size_t at = 0; (at = expected.find(whatChars, at)) != expected.npos;) {
            expected.replace(at, whatChars.size(), Decode(by));
            at += Decode(by).size();
        }
        changed = text;
        changed.ReplaceAll(what.c_str(), by.c_str());
        ASSERT_EQ(changed.ConvertToChar(), Encode(expected));
    }
}

TEST(UnicodeString, KeepsItsLimits)
{
    VORUnicodeString text("\xFF\xC3");
    text += text;
    EXPECT_EQ(text.GetLengthInChar(), 4);
    EXPECT_EQ(text[-1], 0u);
    EXPECT_EQ(text[4], 0u);
    EXPECT_EQ(text.FindPosition(""), -1);
    text.ReplaceAll(text, text + "!");
    EXPECT_TRUE(text == "\xFF\xC3\xFF\xC3!");
    EXPECT_TRUE(VORUnicodeString(char32_t{0xD800}, 2) == "\xEF\xBF\xBD\xEF\xBF\xBD");
    EXPECT_TRUE(VORUnicodeString(U'x', -1) == nullptr);
    EXPECT_TRUE(VORUnicodeString("ab", 5) == "ab");
    std::set<const char*> places; // few when an append rarely moves the text
    for (int i = 0; i < 100000; ++i)
        places.insert(text.Append("\xC3\xA9").ConvertToChar());
    EXPECT_LT(places.size(), 100u);
}

} // namespace
