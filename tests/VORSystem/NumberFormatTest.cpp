#include <algorithm>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <random>
#include <regex>
#include <string>

#include <gtest/gtest.h>

#include "TestSystem.h"
#include "VORNumberFormat.h"
#include "VORUnicodeString.h"

namespace
{

constexpr std::size_t Room = 8192;

// The text, which the function and the checked format agree on.
template <typename Checked, typename Number, typename Function>
std::string Format(Number iValue, const char* iFormat, Function iFunction)
{
    char text[Room];
    const std::string plain(text, static_cast<std::size_t>(iFunction(iValue, iFormat, text, Room)));
    const Checked format(iFormat);
    const std::string checked(text, static_cast<std::size_t>(format.Write(iValue, text, Room)));
    EXPECT_EQ(checked, plain) << iFormat;
    EXPECT_EQ(format.GetLength(iValue), static_cast<int>(plain.size())) << iFormat;
    return plain;
}

std::string Format(int iValue, const char* iFormat)
{
    return Format<VORIntFormat>(iValue, iFormat, VORFormatInt);
}

std::string Format(double iValue, const char* iFormat)
{
    return Format<VORFloatFormat>(iValue, iFormat, VORFormatFloat);
}

// What is expected: printf under the locale "C".
template <typename Number>
std::string Printf(Number iValue, const std::string& iFormat)
{
    const std::string previous = std::setlocale(LC_NUMERIC, nullptr);
    std::setlocale(LC_NUMERIC, "C");
    char text[Room];
    const int length = std::snprintf(text, Room, iFormat.c_str(), iValue);
    std::setlocale(LC_NUMERIC, previous.c_str());
    return {text, static_cast<std::size_t>(length)};
}

std::size_t Below(std::size_t iEnd)
{
    static std::mt19937_64 random;
    return static_cast<std::size_t>(random() % iEnd);
}

double RandomFloat()
{
    constexpr double special[] = {0.0,      -0.0,      5e-324,   -2e-308, HUGE_VAL,  -HUGE_VAL,
                                  999999.5, 9.9999995, -1.7e308, NAN,     0.00009995};
    const double tie = (static_cast<double>(Below(20001)) - 10000) / 16; // often halfway
    const double usual = tie * std::pow(10, static_cast<double>(Below(30)) - 15) / 7;
    const double choices[] = {tie, usual, static_cast<float>(usual),
                              special[Below(std::size(special))]};
    return choices[Below(4)];
}

TEST(NumberFormat, GivesTheBytesOfPrintfWhateverTheLocale)
{
    ASSERT_TRUE(std::setlocale(LC_ALL, CommaLocale)) << "this locale must be installed";
    const std::string sizes[] = {"", "1", "12", "40", ".", "20.6", "9.20", "30.40"};
    for (const std::string flags : {"", "-", "+", " ", "0", "#", "'", "0-", " +", "#0+ "}) {
        for (int i = 0; i < 16000; ++i) {
            const std::string size =
                i % 2 == 0 ? sizes[Below(std::size(sizes))] : "." + std::to_string(Below(14));
            const std::string conversion = "%" + flags + size;
            const std::string around = flags == "" ? "" : "a%%";
            const std::string format = around + conversion + "fFeEgGaA"[i / 2 % 8] + around;
            const double value = RandomFloat();
            ASSERT_EQ(Format(value, format.c_str()), Printf(value, format)) << format;
            const std::string intFormat = conversion + "diuoxXcd"[i / 2 % 8];
            const auto number = static_cast<int>(Below(SIZE_MAX) >> Below(64)); // any magnitude
            std::string usual = intFormat; // not every printf ignores the sign of an unsigned one
            if (std::strchr("uoxX", usual.back()))
                usual.erase(std::remove_if(usual.begin(), usual.end(),
                                           [](char c) { return c == '+' || c == ' '; }),
                            usual.end());
            ASSERT_EQ(Format(number, intFormat.c_str()), Printf(number, usual)) << intFormat;
        }
    }
    EXPECT_EQ(Format(-NAN, "%.2f|") + Format(-NAN, "%+07G"), "-nan|   -NAN"); // not everywhere
    EXPECT_STREQ(std::localeconv()->decimal_point, ",") << "the process has lost its locale";
}

TEST(NumberFormat, LetsOnlyWellFormedFormatsReachPrintf)
{
    // With these two digits a number of up to four is small enough, any longer one too large.
    const std::regex wellFormed("([^%]|%%)*(%[-+ #0]*(3[03]{0,3})?([.]0*(3[03]{0,3})?)?[dxc]"
                                "([^%]|%%)*)?");
    const std::string letters = "%%%%dddxc*.03-+ #nsfa$";
    for (int i = 0; i < 50000; ++i) {
        std::string format = "%";
        for (std::size_t length = Below(8); length > 0; --length)
            format += letters[Below(letters.size())];
        const bool isGood = std::regex_match(format, wellFormed);
        ASSERT_EQ(Format(65, format.c_str()), isGood ? Printf(65, format) : "65") << format;
    }
    for (const char* const format : {"%99999999999d", "%4096d", "%.4096d", "%lg"})
        EXPECT_EQ(Format(-42, format), "-42") << format;
    for (const char* const format : {"%d", "%g%g", "%.*f", "%n", "%s", "%lc", "%4096g"})
        EXPECT_EQ(Format(2.5, format), "2.5") << format;
    EXPECT_EQ(Format(-42, nullptr) + Format(2.5, nullptr), "-422.5");
    EXPECT_EQ(Format(300, "%hhd") + Format(-1, "%llx") + Format(0.125, "%.2Lf"), "300ffffffff0.12");
}

TEST(NumberFormat, KeepsToTheBuffer)
{
    char text[24] = "#######";
    EXPECT_EQ(VORIntFormat("<%d>").Write(1LL << 62, text, 24), 21);
    EXPECT_STREQ(text, "<4611686018427387904>");
    EXPECT_EQ(VORIntFormat("%x").Write(-1LL, text, 9), 16);
    EXPECT_STREQ(text, "ffffffff");
    EXPECT_EQ(VORFloatFormat("%.3f").Write(-1.5, text, 4), 6);
    EXPECT_STREQ(text, "-1.");
    EXPECT_EQ(VORFormatInt(12345, "<%d>", text, 4), 7);
    EXPECT_EQ(std::string(text, 5), std::string("<12\0f", 5));
    EXPECT_EQ(VORFormatFloat(1e300, "%f", nullptr, 0), 308);
    VORUnicodeString number("old");
    number.BuildFromNum(7, "\u20AC%-199d|");
    EXPECT_EQ(number.ConvertToChar(), "\u20AC7" + std::string(198, ' ') + "|");
}

} // namespace
