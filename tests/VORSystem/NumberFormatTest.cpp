#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <locale.h>
#include <random>
#include <regex>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "VORNumberFormat.h"
#include "VORUnicodeString.h"

namespace
{

constexpr std::size_t Room = 8192;

std::string Format(int iValue, const char* iFormat)
{
    char text[Room];
    return {text, static_cast<std::size_t>(VORFormatInt(iValue, iFormat, text, Room))};
}

std::string Format(double iValue, const char* iFormat)
{
    char text[Room];
    return {text, static_cast<std::size_t>(VORFormatFloat(iValue, iFormat, text, Room))};
}

template <typename Number>
std::string Printf(Number iValue, const std::string& iFormat)
{
    char text[Room];
    return {text, static_cast<std::size_t>(std::snprintf(text, Room, iFormat.c_str(), iValue))};
}

std::mt19937_64 Random;

std::size_t Below(std::size_t iEnd)
{
    return Random() % iEnd;
}

double RandomFloat()
{
    constexpr double special[] = {0.0,      -0.0,      5e-324,   -2e-308, HUGE_VAL, -HUGE_VAL,
                                  999999.5, 9.9999995, -1.7e308, NAN,     -NAN,     0.00009995};
    const auto bits = Random();
    double anyBits;
    std::memcpy(&anyBits, &bits, sizeof anyBits);
    const double tie = (static_cast<double>(Below(20001)) - 10000) / 16; // often halfway
    const double usual = tie * std::pow(10, static_cast<double>(Below(30)) - 15) / 7;
    const double choices[] = {anyBits, tie, usual, special[Below(std::size(special))]};
    return choices[Below(4)];
}

std::string RandomFormat(const std::string& iConversions)
{
    std::string format = Below(4) ? "%" : "a%%b%";
    for (std::size_t flags = Below(5); flags > 0; --flags)
        format += "-+ #0'"[Below(6)];
    if (Below(2))
        format += std::to_string(1 + Below(40));
    if (Below(2))
        format += "." + (Below(20) ? std::to_string(Below(41)) : "");
    return format + iConversions[Below(iConversions.size())] + (Below(4) ? "" : "%%.%%");
}

// What is expected comes from printf under the locale "C".
class NumberFormat : public testing::Test
{
protected:
    void SetUp() override
    {
        Random.seed(2);
        std::setlocale(LC_ALL, "C");
    }
};

TEST_F(NumberFormat, GivesTheBytesOfPrintfUnderEveryLocale)
{
    struct Case {
        double value;
        std::string format;
        std::string expected;
    };
    std::vector<Case> cases;
    for (int i = 0; i < 200000; ++i) {
        const double value = RandomFloat();
        const std::string format = RandomFormat("fFeEgGaA");
        cases.push_back({value, format, Printf(value, format)});
        ASSERT_EQ(Format(value, format.c_str()), cases.back().expected) << format;
        const auto number = static_cast<int>(Random() >> Below(64)); // all magnitudes and signs
        const std::string intFormat = RandomFormat("diuoxXcd");
        ASSERT_EQ(Format(number, intFormat.c_str()), Printf(number, intFormat)) << intFormat;
    }
    ASSERT_TRUE(std::setlocale(LC_ALL, "de_DE.UTF-8")) << "this locale must be installed";
    ASSERT_EQ(Printf(1.5, "%.1f"), "1,5");
    for (const Case& one : cases)
        ASSERT_EQ(Format(one.value, one.format.c_str()), one.expected) << one.format;
    EXPECT_EQ(Printf(1.5, "%.1f"), "1,5") << "the process has lost its locale";
    EXPECT_EQ(uselocale(nullptr), LC_GLOBAL_LOCALE);
}

TEST_F(NumberFormat, LetsOnlyWellFormedFormatsReachPrintf)
{
    // With these two digits a number of up to four is small enough, any longer one too large.
    const std::regex wellFormed("([^%]|%%)*(%[-+ #0]*(3[03]{0,3})?([.]0*(3[03]{0,3})?)?[dxc]"
                                "([^%]|%%)*)?");
    const std::string letters = "%%%%dddxc*.03-+ #nsfa$";
    int accepted = 0;
    for (int i = 0; i < 50000; ++i) {
        std::string format = "%";
        for (std::size_t length = Below(8); length > 0; --length)
            format += letters[Below(letters.size())];
        const bool isGood = std::regex_match(format, wellFormed);
        accepted += isGood;
        ASSERT_EQ(Format(65, format.c_str()), isGood ? Printf(65, format) : "65") << format;
    }
    EXPECT_GT(accepted, 1000);
    for (const char* const format : {"%99999999999d", "%4096d", "%.4096d", "%hn", "%1$d", "%lg"})
        EXPECT_EQ(Format(-42, format), "-42") << format;
    for (const char* const format : {"%d", "%g%g", "%.*f", "%n", "%s", "%lc", "%4096g", "%g %"})
        EXPECT_EQ(Format(2.5, format), "2.5") << format;
    EXPECT_EQ(Format(-42, nullptr) + Format(2.5, nullptr), "-422.5");
    EXPECT_EQ(Format(300, "%hhd") + Format(-1, "%llx") + Format(0.125, "%.2Lf"), "300ffffffff0.12");
}

TEST_F(NumberFormat, KeepsToTheBuffer)
{
    char text[8] = "#######";
    EXPECT_EQ(VORFormatInt(12345, "<%d>", text, 4), 7);
    EXPECT_EQ(std::string(text, 5), std::string("<12\0#", 5));
    EXPECT_EQ(VORFormatFloat(1e300, "%f", nullptr, 0), 308);
    VORUnicodeString number("old");
    number.BuildFromNum(7, "\xE2\x82\xAC%-199d|");
    EXPECT_TRUE(number == ("\xE2\x82\xAC"
                           "7" +
                           std::string(198, ' ') + "|")
                              .c_str());
}

} // namespace
