#include <clocale>
#include <cmath>
#include <cstdlib>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "ReportTest.h"
#include "VORKTRReportingFloat.h"
#include "VORKTRReportingInt.h"
#include "VORKTRReportingList.h"
#include "VORKTRReportingTable.h"
#include "support/Rendering.h"

namespace
{

using TextReport = ReportTest;

std::string Banner(int iLeft, const std::string& iTitle, int iRight)
{
    const std::string stars = " " + Repeat(78, "*") + "\n";
    const std::string sides = " *" + Repeat(76, " ") + "*\n";
    return stars + sides + " *" + Repeat(iLeft, " ") + iTitle + Repeat(iRight, " ") + "*\n" +
           sides + stars + "\n";
}

TEST_F(TextReport, BannerCentresTheTitleAndCutsItBetweenCharacters)
{
    const struct {
        std::string title;
        int left;
        std::string shown;
        int right;
    } cases[] = {
        {"Four", 36, "Four", 36},
        {"Fives", 35, "Fives", 36},
        {"µ°€", 36, "µ°€", 37},
        {Repeat(73, "é"), 1, Repeat(73, "é"), 2},
        {Repeat(74, "x"), 1, Repeat(74, "x"), 1},
        {Repeat(75, "x"), 1, Repeat(74, "x"), 1},
        {Repeat(100, "x"), 1, Repeat(74, "x"), 1},
        {Repeat(73, "x") + "²y", 1, Repeat(73, "x") + "²", 1},
        {Repeat(75, "€"), 1, Repeat(74, "€"), 1},
    };
    for (const auto& [title, left, shown, right] : cases) {
        VORUnicodeString text;
        EXPECT_EQ(report.MakeTextReport(title.c_str(), text), 0);
        EXPECT_EQ(text.ConvertToChar(), Banner(left, shown, right));
    }
}

TEST_F(TextReport, AppendsTheItemsThatAreLeft)
{
    Add({Text("one\n"), Text("two\n"), Text("three\n")});
    EXPECT_EQ(report.RemoveObject(1), 0);
    VORUnicodeString text("Before\n");
    EXPECT_EQ(report.MakeTextReport("Four", text), 0);
    EXPECT_EQ(report.MakeTextReport("", text), 0);
    EXPECT_EQ(text.ConvertToChar(),
              "Before\n" + Banner(36, "Four", 36) + "one\nthree\none\nthree\n");
}

TEST_F(TextReport, HeadingsAreDrawnByTheirLevel)
{
    const auto heading = [](int iLevel, const std::string& iText) {
        return TextOf(VORKTRReportingTitle(iText.c_str(), iLevel));
    };
    const std::string rule = " " + Repeat(78, "-") + "\n";
    const int boxed[][3] = {{0, 38, 38}, {5, 35, 36}, {75, 0, 1},
                            {76, 0, 0},  {77, 0, 0},  {90, 0, 0}};
    for (const auto& [length, left, right] : boxed) {
        const std::string text = Repeat(length, "µ");
        EXPECT_EQ(heading(1, text), "\n\n" + rule + " |" + Repeat(left, " ") + text +
                                        Repeat(right, " ") + "|\n" + rule + "\n");
    }
    const int centred[][2] = {{0, 40}, {7, 36}, {77, 1}, {78, 1},
                              {79, 0}, {80, 0}, {81, 0}, {85, 0}};
    for (const auto& [length, left] : centred) {
        const std::string text = Repeat(length, "µ");
        const std::string margin = Repeat(left, " ");
        const std::string line = "\n" + margin + text + "\n";
        EXPECT_EQ(heading(2, text), "\n" + line + margin + Repeat(length, "=") + "\n\n");
        EXPECT_EQ(heading(3, text), line + margin + Repeat(length, "-") + "\n\n");
        EXPECT_EQ(heading(4, text), line + "\n");
        EXPECT_EQ(heading(5, text), "\n    " + text + "\n\n");
        EXPECT_EQ(heading(6, text), "\n       " + text + "\n\n");
        for (int level = 1; level <= 6; ++level) {
            const VORKTRReportingTitle title(text.c_str(), level);
            EXPECT_EQ(CellTextOf(title), text);
            EXPECT_EQ(title.GetWidthInChar(), length);
        }
    }
}

VORKTRReportingTable* NumbersOfEveryFormat()
{
    constexpr std::pair<int, const char*> ints[] = {
        {42, "%d"}, {-42, "%6d"},  {42, "%+d"}, {42, "%05d"},  {255, "%x"},
        {8, "%#o"}, {7, "<%-3d>"}, {5, "%f"},   {12, "%3d%%"}, {-1, "%u"},
        {65, "%c"}, {255, "%X"},   {9, "%i"},   {5, "%s"}};
    constexpr std::pair<float, const char*> floats[] = {
        {2.5f, "%.3f"},   {-2.5f, "%.3f"},   {3, "%g"},          {1e7f, "%.0e"}, {255, "%a"},
        {1e6f, "%G"},     {.5f, "%8.2f mm"}, {1234567, "%'.1f"}, {-0.f, "%.1f"}, {NAN, "%f"},
        {INFINITY, "%f"}, {1, "%29.1f"},     {1, "%28.1f"},      {2.5f, "%s"}};
    auto* const table = new VORKTRReportingTable(0);
    for (const auto& [value, format] : ints)
        table->SetInt(table->GetRowNumber(), 0, value, format);
    int row = 0;
    for (const auto& [value, format] : floats)
        table->SetFloat(row++, 1, value, format);
    return table;
}

TEST_F(TextReport, NumbersAreTheSameInEveryLocale)
{
    auto* const text = Text("x = ");
    text->WriteFloat(2.5f, "%.2f");
    text->WriteInt(-5, ", n =%3d\n");
    auto* const list = new VORKTRReportingList('=');
    list->addLine("Mass", 1234.5, "kg", "%.1f");
    Add({text, list, NumbersOfEveryFormat(), new VORKTRReportingInt(7, "%d"),
         new VORKTRReportingFloat(-1.5f, "%g")});
    ::setenv("KTRReportODT", "1", 1);
    for (const std::string locale : {"C", "de_DE.UTF-8"}) {
        ASSERT_TRUE(std::setlocale(LC_ALL, locale.c_str())) << locale << " must be installed";
        EXPECT_EQ(VORKTRReportingList::float_separator(), locale == "C" ? '.' : ',');
        VORUnicodeString plain;
        report.MakeTextReport("", plain);
        EXPECT_EQ(plain.ConvertToChar(), Expected("numbers.txt")) << locale;
        EXPECT_EQ(Make("Numbers"), 0);
        EXPECT_EQ(Page("index.html"), Expected("numbers.html")) << locale;
        EXPECT_EQ(std::setlocale(LC_ALL, nullptr), locale);
    }
}

} // namespace
