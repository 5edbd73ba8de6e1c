#include <algorithm>
#include <filesystem>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "ReportTest.h"
#include "VORKTRReportingFloat.h"
#include "VORKTRReportingInt.h"
#include "VORKTRReportingTable.h"
#include "VORStatus.h"
#include "support/ExpectedSite.h"
#include "support/Rendering.h"

namespace
{

namespace fs = std::filesystem;
using SiteTest = ReportTest;

/// The names of a site's files, each before the body of its page.
std::string Bodies(const std::string& iSite)
{
    std::string bodies;
    for (const auto& [name, bytes] : ReadTree(iSite))
        bodies += "[" + name + "]\n" + BodyOf(bytes);
    return bodies;
}

TEST_F(SiteTest, SinglePageHoldsEveryItemInOrder)
{
    auto* const table = new VORKTRReportingTable(0x01);
    for (const int row : {0, 1}) {
        table->SetObj(row, 0, new Probe);
        table->SetFloat(row, 1, 1.5f, "%g");
        table->SetInt(row, 2, 7, "%d");
        table->SetText(row, 3, "a<b");
    }
    Add({Title("Loads & <i>forces</i>", 1), Text("a<b & c>d\n\tTräger \"q\" &amp;"),
         new VORKTRReportingInt(42, "%5d"), new VORKTRReportingFloat(-2.5f, "%.3f"),
         Title("Removed", 1), Bag({Title("Träger", 2), Text(""), Bag({Title("Nested", 1)})}),
         Title("Deep", 9), new Probe, table});
    EXPECT_EQ(report.RemoveObject(4), 0);
    EXPECT_EQ(Make("Frame <b>A</b> & B"), 0);
    ExpectSite(site, "single_page");
}

TEST_F(SiteTest, HeadingsDivideASiteWithFrames)
{
    SetEnv("WKS_FR_ZENOA", "R12");
    Add({Text("Before\tall"), Title("Scope", 3), Title("Loads <&>", 0),
         new VORKTRReportingFloat(2.5f, "%.3f"), Title("Wind", 3), Text("x < y\nz"),
         Title("Results", 2),
         Bag({Title("Träger", 1), new VORKTRReportingInt(7, "%3d"), new Probe, Title("Deep", 9),
              Title("Last", 2), Text("end & stop")}),
         Text("after")});
    EXPECT_EQ(Make("Frame & <b>Co</b>"), 0);
    ExpectSite(site, "frames");
}

TEST_F(SiteTest, GeneratorLineFollowsTheEnvironment)
{
    const char* const cases[][3] = {{nullptr, nullptr, "ZENOA"},
                                    {nullptr, "", "ZENOA "},
                                    {"", "R12", "ZENOA"},
                                    {"1", "R12", "ZENOA"}};
    for (const auto& [odt, level, content] : cases) {
        SetEnv("KTRReportODT", odt);
        SetEnv("WKS_FR_ZENOA", level);
        EXPECT_EQ(Make() + report.MakeReloadPage(), 0);
        for (const char* const page : {"index.html", "reload.html"})
            EXPECT_TRUE(Holds(Page(page), "\n<META NAME=\"Generator\" CONTENT=\"" +
                                              std::string(content) + "\">\n"));
    }
}

TEST_F(SiteTest, UpdateRewritesTheSiteInPlace)
{
    for (int page = 2; page <= 11; ++page)
        Add({Title("P" + std::to_string(page), 1)});
    ASSERT_EQ(Make(), 0);
    WriteFile(site + "/notes.txt", "not the report's");
    EXPECT_EQ(report.RemoveObject(3), 0);
    Add({Text("new")});
    EXPECT_EQ(report.Update(), 0);
    EXPECT_EQ(report.GetPagesNumber(), 10);
    std::string bodies = Bodies(site);
    for (const int index : {1, 2, 4, 5, 6, 7, 8, 9})
        EXPECT_EQ(report.RemoveObject(index), 0);
    EXPECT_EQ(report.Update(), 0);
    EXPECT_EQ(bodies + "\n" + Bodies(site), Expected("updates.txt"));
}

TEST_F(SiteTest, UpdateDeletesThePagesWhoseCharacterItCountsTo)
{
    ASSERT_EQ(Make(), 0);
    for (const auto& [pages, left] :
         {std::pair(45, ".0129:"), {48, "129:"}, {49, "29:"}, {57, ":"}, {58, ""}}) {
        const std::string names = ".0129:";
        std::string found;
        for (const char name : names)
            WriteFile(site + "/page" + name + ".html", "");
        report.GetPagesNumber() = pages;
        EXPECT_EQ(report.Update(), 0);
        std::copy_if(names.begin(), names.end(), std::back_inserter(found),
                     [&](char iName) { return fs::exists(site + "/page" + iName + ".html"); });
        EXPECT_EQ(found, left) << pages;
    }
}

TEST_F(SiteTest, ASecondRunGoesOnCountingAndTitlesKeepTheirDirectory)
{
    Add({Title("A", 1), new Probe, Title("B", 1)});
    ASSERT_EQ(Make(), 0);
    const std::string second = temporary.Path("second");
    ASSERT_EQ(report.MakeReport(second.c_str(), "Second"), 0);
    EXPECT_EQ(Bodies(temporary.Path()), Expected("second_run.txt"));
}

TEST_F(SiteTest, ReloadPageOpensTheLatestHeading)
{
    EXPECT_EQ(report.MakeReloadPage(), VOR_E_FAIL);
    Add({Title("One", 1), Title("Two", 3)});
    ASSERT_EQ(Make("A & <B>"), 0);
    EXPECT_EQ(report.MakeReloadPage(), 0);
    EXPECT_EQ(Page("reload.html"), Expected("reload_of_page.html"));
    Add({Title("Three", 1), Title("Four", 3)});
    EXPECT_EQ(report.Update(), 0);
    EXPECT_FALSE(fs::exists(site + "/reload.html"));
    EXPECT_EQ(report.MakeReloadPage(), 0);
    EXPECT_EQ(Page("reload.html"), Expected("reload_of_frames.html"));
    fs::remove(site + "/reload.html");
    fs::create_directory(site + "/reload.html");
    EXPECT_EQ(report.MakeReloadPage(), VOR_E_FAIL);
}

TEST_F(SiteTest, FailuresBeforeTheItemsEndTheRun)
{
    for (const int status :
         {report.BeginReport(), report.Flush(), report.FinishReport(), report.Update()})
        EXPECT_EQ(status, VOR_E_FAIL);
    for (const int status : {VOR_E_FILE_NOT_FOUND, VOR_S_OK})
        EXPECT_EQ(report.TakeWriteStatus(), status);
    for (const int status : {VOR_S_OK, VOR_E_INVALIDARG, VOR_E_FAIL})
        report.NoteWriteStatus(status);
    EXPECT_EQ(report.TakeWriteStatus(), VOR_E_INVALIDARG);
    EXPECT_EQ(report.MakeReport(temporary.Path("no/parent").c_str(), ""), VOR_E_FAIL);
    const std::pair<std::string, int> cases[] = {{"main.css", 1},        {"index.html", 1},
                                                 {"navigation.css", 2},  {"index.html", 2},
                                                 {"navigation.html", 2}, {"page1.html", 2}};
    std::string written;
    for (const auto& [blocked, titles] : cases) {
        fs::remove_all(site);
        fs::create_directories(site + "/" + blocked);
        {
            VORKTRReportingBuffer failing; // closes at its end the pages that are left open
            for (int i = 0; i < titles; ++i)
                failing.AddObject(Title("", 1));
            EXPECT_EQ(failing.MakeReport(site.c_str(), "Site"), VOR_E_FAIL) << blocked;
            EXPECT_LT(failing.TakeWriteStatus(), 0) << blocked;
            EXPECT_EQ(failing.Flush(), VOR_E_FAIL);
            EXPECT_EQ(failing.TakeWriteStatus(), VOR_E_INVALID_HANDLE) << blocked;
        }
        written += Bodies(site) + "\n";
    }
    EXPECT_EQ(written, Expected("failed_runs.txt"));

    Add({Title("One", 1), Title("Two", 1)});
    EXPECT_EQ(Make(), VOR_E_FAIL); // page1.html is still in its way
    const auto& late = Add(new Probe);
    EXPECT_EQ(late.directory, ""); // told by the run that gets to its items
    fs::remove(site + "/page1.html");
    EXPECT_EQ(Make(), 0);
    EXPECT_EQ(late.directory, site);
    for (unsigned int expected = 3, file = 0; expected > 0; --expected) { // closed by that run
        ASSERT_EQ(VORFOpen(NullDevice, "w", file), 0);
        EXPECT_LE(file, 3u);
    }
}

} // namespace
