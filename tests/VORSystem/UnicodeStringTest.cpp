#include <random>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "VORUnicodeString.h"
#include "support/StringReference.h"

namespace
{

std::size_t Below(std::size_t iEnd)
{
    static std::mt19937 random;
    return random() % iEnd;
}

// Both sides of every border of UTF-8, and whole characters in which there is something to find.
std::string RandomBytes(std::size_t iLength)
{
    const std::string alphabet = "\x7F\x80\x8F\x90\x9F\xA0\xBF\xC0\xC1\xC2\xDF\xE0\xE1\xEC\xED"
                                 "\xEE\xEF\xF0\xF1\xF3\xF4\xF5\xF8\xFF"
                                 "aaab\u00E9\u20AC\U0001F600\u00E9\u20ACaaab\u00E9";
    std::string bytes;
    while (bytes.size() < iLength)
        bytes += alphabet.substr(Below(alphabet.size()), 1 + Below(4));
    return bytes.substr(0, iLength);
}

TEST(UnicodeString, AgreesWithTheReferenceOnRandomBytes)
{
    for (int round = 0; round < 30000 && !HasFailure(); ++round) {
        const std::string bytes = RandomBytes(Below(30));
        EXPECT_EQ(FaultOf({bytes, Below(bytes.size() + 1), static_cast<int>(Below(36)) - 3,
                           static_cast<int>(Below(8)) - 2, RandomBytes(1 + Below(3)),
                           RandomBytes(Below(3))}),
                  "")
            << bytes;
    }
}

TEST(UnicodeString, KeepsItsLimits)
{
    VORUnicodeString text("\xFF\xC3");
    text += text;
    EXPECT_EQ(text.GetLengthInChar(), 4);
    EXPECT_EQ(text[-1] + text[4], 0u);
    EXPECT_EQ(text.FindPosition(""), -1);
    text.ReplaceAll(text, text + "!");
    EXPECT_TRUE(text == "\xFF\xC3\xFF\xC3!");
    EXPECT_TRUE(VORUnicodeString(char32_t{0xD800}, 2) == "\uFFFD\uFFFD");
    EXPECT_TRUE(VORUnicodeString(U'x', -1) == nullptr);
    EXPECT_TRUE(VORUnicodeString("ab", 5) == "ab");
    std::set<const char*> places; // few when an append rarely moves the text
    for (int i = 0; i < 100000; ++i)
        places.insert(text.Append("\u00E9").ConvertToChar());
    EXPECT_LT(places.size(), 100u);
}

} // namespace
