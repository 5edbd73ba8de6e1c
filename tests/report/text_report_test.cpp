#include <string>

#include <gtest/gtest.h>

#include "ReportTest.h"
#include "support/Rendering.h"

namespace
{

using TextReport = ReportTest;

TEST_F(TextReport, BannerCentresTheTitleAndCutsItBetweenCharacters)
{
    Add({Text("one\n"), Text("two\n")});
    VORUnicodeString text("Before\n");
    for (const std::string& title :
         {std::string("Four"), std::string("µ°€ab"), std::string(), Repeat(73, "é"),
          Repeat(74, "x"), Repeat(73, "x") + "²y", Repeat(100, "€")})
        EXPECT_EQ(report.MakeTextReport(title.c_str(), text), 0);
    EXPECT_EQ(text.ConvertToChar(), Expected("banners.txt"));
}

TEST_F(TextReport, HeadingsAreDrawnByTheirLevel)
{
    std::string text;
    for (int level = 0; level <= 7; ++level) {
        for (const int length : {0, 7, 75, 76, 77, 78, 79, 80, 81}) {
            const VORKTRReportingTitle title(Repeat(length, "µ").c_str(), level);
            text += TextOf(title);
            EXPECT_EQ(CellTextOf(title), Repeat(length, "µ"));
            EXPECT_EQ(title.GetWidthInChar(), length);
        }
    }
    EXPECT_EQ(text, Expected("headings.txt"));
}

} // namespace
