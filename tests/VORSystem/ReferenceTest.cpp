// Random inputs, on which the library agrees with slow references; and what they do not reach.

#include <climits>
#include <cmath>
#include <cstdlib>
#include <random>
#include <set>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include "TestSystem.h"
#include "support/NumberReference.h"
#include "support/PathReference.h"
#include "support/StringReference.h"

namespace
{

std::size_t Below(std::size_t iEnd)
{
    static std::mt19937_64 random;
    return static_cast<std::size_t>(random() % iEnd);
}

int Between(int iFirst, int iLast)
{
    const auto count = static_cast<std::size_t>(std::int64_t{iLast} - iFirst + 1);
    return static_cast<int>(iFirst + static_cast<std::int64_t>(Below(count)));
}

template <typename Values>
auto OneOf(const Values& iValues)
{
    return std::data(iValues)[Below(std::size(iValues))];
}

// Fewer where an emulator runs the tests.
int Rounds(int iUsual)
{
    return std::getenv("VOR_TEST_QUICK") ? iUsual / 10 : iUsual;
}

// Pieces of an alphabet, each of one byte or some.
std::string Random(const std::string& iAlphabet, std::size_t iLength, std::size_t iLongest = 1)
{
    std::string bytes;
    while (bytes.size() < iLength)
        bytes += iAlphabet.substr(Below(iAlphabet.size()), 1 + Below(iLongest));
    return bytes.substr(0, iLength);
}

double RandomFloat()
{
    constexpr double special[] = {0.0,      -0.0,      5e-324,   -2e-308, HUGE_VAL,  -HUGE_VAL,
                                  999999.5, 9.9999995, -1.7e308, NAN,     0.00009995};
    const double tie = Between(-10000, 10000) / 16.; // often halfway
    const double usual = tie * std::pow(10, Between(-15, 14)) / 7;
    const double choices[] = {tie, usual, static_cast<float>(usual), OneOf(special)};
    return OneOf(choices);
}

// Most are well formed for one kind of number.
std::string RandomFormat()
{
    const std::string flags[] = {"", "", "-", "+", " ", "0", "#", "'", "0-", " +", "#0+ "};
    const std::string sizes[] = {"", "", "1", "12", "40", ".", "20.6", "9.20", "30.40", "ll"};
    if (Below(4) == 0)
        return "%" + Random("%%%%dddxcgf*.0349999-+ #nsfa$~hl", Below(9));
    const std::string size = Below(2) == 0 ? OneOf(sizes) : "." + std::to_string(Below(14));
    const std::string around[] = {"", "", "a%%", "\u20AC"};
    return OneOf(around) + "%" + OneOf(flags) + size + OneOf(std::string("fffFeEgGaAdddiuoxXc")) +
           OneOf(around);
}

TEST(NumberFormat, AgreesWithPrintfWhateverTheLocale)
{
    ASSERT_TRUE(std::setlocale(LC_ALL, CommaLocale)) << "this locale must be installed";
    for (int round = Rounds(60000); round > 0; --round) {
        const std::string format = RandomFormat();
        const std::size_t room = Below(2) == 0 ? 8192 : Below(40);
        const int positive = Between(0, INT_MAX) >> Below(31); // any magnitude
        const int number = Below(2) == 0 ? positive : ~positive;
        const double value = RandomFloat();
        ASSERT_EQ(FaultOf(number, format, room), "") << format << " " << number;
        ASSERT_EQ(FaultOf(value, format, room), "") << format << " " << value;
    }
    EXPECT_STREQ(std::localeconv()->decimal_point, ",") << "the process has lost its locale";
    const std::string longest = "%4095.4095f";
    EXPECT_EQ(FaultOf(-1.5, longest, 8192) + FaultOf(7, "%.4095d", 8192), "");
    EXPECT_EQ(FaultOf(-1.5, "%.4096f", 8192) + FaultOf(7, "%4096d", 8192), "");
}

TEST(NumberFormat, TakesOtherNumbersAndNone)
{
    char text[24] = "#######";
    EXPECT_EQ(VORIntFormat("<%d>").Write(1LL << 62, text, 24), 21);
    EXPECT_STREQ(text, "<4611686018427387904>");
    EXPECT_EQ(VORIntFormat("%x").Write(-1LL, text, 9), 16);
    EXPECT_STREQ(text, "ffffffff");
    EXPECT_EQ(VORFormatFloat(-NAN, "%.2f|", text, 24), 5); // not every printf shows its sign
    EXPECT_STREQ(text, "-nan|");
    EXPECT_EQ(VORFormatInt(-42, nullptr, text, 24) + VORFormatFloat(1e300, "%f", nullptr, 0), 311);
    VORUnicodeString number("old");
    number.BuildFromNum(7, "\u20AC%-199d|");
    EXPECT_EQ(number.ConvertToChar(), "\u20AC7" + std::string(198, ' ') + "|");
}

TEST(UnicodeString, AgreesWithItsReference)
{
    // Both sides of every border of UTF-8, and whole characters in which there is something to
    // find.
    const std::string alphabet = "\x7F\x80\x8F\x90\x9F\xA0\xBF\xC0\xC1\xC2\xDF\xE0\xE1\xEC\xED"
                                 "\xEE\xEF\xF0\xF1\xF3\xF4\xF5\xF8\xFF"
                                 "aaab\u00E9\u20AC\U0001F600\u00E9\u20ACaaab\u00E9";
    for (int round = Rounds(20000); round > 0; --round) {
        const std::string bytes = Random(alphabet, Below(30), 4);
        ASSERT_EQ(FaultOf({bytes, Below(bytes.size() + 1), Between(-3, 32), Between(-2, 5),
                           Random(alphabet, 1 + Below(3), 4), Random(alphabet, Below(3), 4)}),
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
    EXPECT_TRUE(VORUnicodeString(char32_t{0x10FFFF}, 1) == "\U0010FFFF");
    EXPECT_EQ(VORUnicodeString("\U0010FFFF").GetLengthInChar(), 1);
    EXPECT_TRUE(VORUnicodeString(U'x', -1) == nullptr);
    EXPECT_TRUE(VORUnicodeString("ab", 5) == "ab");
    EXPECT_THROW(VORUnicodeString(U'\u20AC', 715827883), std::length_error); // of 3 bytes
    std::set<const char*> places; // few when an append rarely moves the text
    for (int i = 0; i < 100000; ++i)
        places.insert(text.Append("\u00E9").ConvertToChar());
    EXPECT_LT(places.size(), 100u);
    const VORUnicodeString twice = text + text;
    EXPECT_TRUE((text += text) == twice);
    EXPECT_TRUE(VORUnicodeString(std::move(text)) == twice && text.GetLengthInChar() == 0);
}

TEST(Path, AgreesWithItsReference)
{
    for (int round = Rounds(20000); round > 0; --round) {
        const std::string directory = Random("//ab\u00E9.", Below(6));
        const std::string name = Random("//ab\u00E9.", Below(6));
        ASSERT_TRUE(MakesPath(directory, name, Below(14))) << directory << " " << name;
        ASSERT_TRUE(SplitsPath(directory + name, Below(10))) << directory << name;
    }
}

} // namespace
