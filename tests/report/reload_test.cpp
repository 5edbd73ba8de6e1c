#include <cstdlib>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "ReportTest.h"
#include "support/Rendering.h"

namespace
{

using ReloadPage = ReportTest;

std::string FrameSet(const std::string& iGenerator, const std::string& iFrames)
{
    return "<HTML>\n<HEAD>\n<TITLE>A & <B></TITLE>\n<META NAME=\"Generator\" CONTENT=\"" +
           iGenerator + "\">\n</HEAD>\n \n" + iFrames + "</FRAMESET>\n</HTML>\n";
}

TEST_F(ReloadPage, OfOnePageOpensItsLatestHeading)
{
    const std::string frames = "<FRAMESET ROWS=\"*,1\" BORDER=0>\n"
                               "<FRAME NAME=\"TextFrame\" SRC=\"index.html#3\">\n"
                               "<FRAME NAME=\"OtherFrame\">\n";
    EXPECT_EQ(report.MakeReloadPage(), Failure);
    Add({Title("One", 1), Title("Two", 3)});
    ASSERT_EQ(Make("A & <B>"), 0);
    ::setenv("WKS_FR_ZENOA", "R5", 1);
    EXPECT_EQ(report.MakeReloadPage(), 0);
    EXPECT_EQ(Page("reload.html"), FrameSet("ZENOA R5", frames));
    ::setenv("KTRReportODT", "", 1);
    EXPECT_EQ(report.MakeReloadPage(), 0);
    EXPECT_EQ(Page("reload.html"), FrameSet("ZENOA", frames));
    EXPECT_EQ(report.Update(), 0);
    EXPECT_FALSE(std::filesystem::exists(site + "/reload.html"));
    std::filesystem::create_directory(site + "/reload.html");
    EXPECT_EQ(report.MakeReloadPage(), Failure);
}

TEST_F(ReloadPage, WithFramesOpensTheLastPage)
{
    Add({Title("One", 1), Title("Two", 1), Title("Three", 3)});
    ASSERT_EQ(Make("A & <B>"), 0);
    for (const std::string anchor : {"1", "0", "-1"}) {
        EXPECT_EQ(report.MakeReloadPage(), 0);
        EXPECT_EQ(Page("reload.html"),
                  FrameSet("ZENOA", "<FRAMESET COLS=\"20%,*\">\n"
                                    "<FRAME NAME=\"NavigationFrame\" SRC=\"navigation.html\">\n"
                                    "<FRAME NAME=\"TextFrame\" SRC=\"page3.html#" +
                                        anchor + "\">\n"));
        --report.GetIndex();
    }
}

} // namespace
