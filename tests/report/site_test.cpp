#include <filesystem>
#include <string>

#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "ReportTest.h"
#include "VORKTRReportTools.h"
#include "VORKTRReportingFloat.h"
#include "VORKTRReportingInt.h"
#include "VORKTRReportingList.h"
#include "VORKTRReportingTable.h"
#include "VORStatus.h"
#include "support/ExpectedSite.h"

namespace
{

namespace fs = std::filesystem;
using SiteTest = ReportTest;

const std::string End = "</BODY>\n</HTML>\n";

/// What follows the body's opening tag.
std::string BodyOf(const std::string& iPage)
{
    return iPage.substr(iPage.find(">\n", iPage.find("<BODY ")) + 2);
}

std::string Names(const std::string& iDirectory)
{
    std::string names;
    for (const auto& [name, bytes] : ReadTree(iDirectory))
        names += name + " ";
    return names;
}

TEST_F(SiteTest, SinglePageHoldsEveryItemInOrder)
{
    auto* const list = new VORKTRReportingList(':');
    list->addLine("Stress", 2.5, "MPa", "%.3f");
    list->addLine("Count", 42, "", "%5d");
    list->addLine("", "S<355", "");
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
         Title("Deep", 9), new Probe, list, table});
    EXPECT_EQ(report.RemoveObject(4), 0);
    EXPECT_EQ(Make("Frame <b>A</b> & B"), 0);
    ExpectSite(site, "single_page");
}

TEST_F(SiteTest, HeadingsDivideASiteWithFrames)
{
    ::setenv("WKS_FR_ZENOA", "R12", 1);
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
    const char* const unset = nullptr;
    const struct {
        const char *odt, *level, *content;
    } cases[] = {{unset, unset, "ZENOA"}, {unset, "", "ZENOA "}, {unset, "R12", "ZENOA R12"},
                 {"", unset, "ZENOA"},    {"", "", "ZENOA"},     {"", "R12", "ZENOA"},
                 {"1", unset, "ZENOA"},   {"1", "", "ZENOA"},    {"1", "R12", "ZENOA"}};
    VORKTRReportingBuffer single;
    Add({Title("", 2), Title("", 2)});
    for (const auto& one : cases) {
        one.odt ? ::setenv("KTRReportODT", one.odt, 1) : ::unsetenv("KTRReportODT");
        one.level ? ::setenv("WKS_FR_ZENOA", one.level, 1) : ::unsetenv("WKS_FR_ZENOA");
        EXPECT_EQ(Make(), 0);
        EXPECT_EQ(single.MakeReport(temporary.Path("single").c_str(), ""), 0);
        const std::string line =
            "\n<META NAME=\"Generator\" CONTENT=\"" + std::string(one.content) + "\">\n";
        for (const auto& [name, bytes] : ReadTree(temporary.Path()))
            EXPECT_EQ(bytes.find(line) != std::string::npos, fs::path(name).extension() == ".html")
                << name << line;
        fs::remove_all(site);
    }
}

TEST_F(SiteTest, UpdateRewritesTheSiteInPlace)
{
    for (int page = 2; page <= 11; ++page)
        Add({Title("P" + std::to_string(page), 1)});
    ASSERT_EQ(Make(), 0);
    const std::string last = Page("page11.html");
    WriteFile(site + "/notes.txt", "not the report's");
    WriteFile(site + "/reload.html", "stale");
    EXPECT_EQ(report.RemoveObject(3), 0);
    Add({Text("new")});
    EXPECT_EQ(report.Update(), 0);
    EXPECT_EQ(report.GetPagesNumber(), 10);
    EXPECT_EQ(BodyOf(Page("page5.html")), "\n<A NAME=\"0\"><H1>P6</H1></A>\n" + End);
    EXPECT_EQ(BodyOf(Page("page10.html")), "\n<A NAME=\"0\"><H1>P11</H1></A>\n<p>new</p>\n" + End);
    EXPECT_EQ(Page("page11.html"), last);
    std::string links = "<A HREF=\"page1.html\"><NOBR><H1>Site</H1></NOBR></A>\n";
    for (int page = 2; page <= 10; ++page)
        links += "<A HREF=\"page" + std::to_string(page) + ".html#0\"><NOBR><H1>P" +
                 std::to_string(page < 5 ? page : page + 1) + "</H1></NOBR></A>\n";
    EXPECT_EQ(BodyOf(Page("navigation.html")), links + End);

    for (const int index : {1, 2, 4, 5, 6, 7, 8, 9})
        EXPECT_EQ(report.RemoveObject(index), 0);
    EXPECT_EQ(report.Update(), 0);
    EXPECT_EQ(BodyOf(Page("index.html")), "<P class=\"maintitle\">Site</P>\n"
                                          "\n<A NAME=\"1\"><H1>P2</H1></A>\n<p>new</p>\n" +
                                              End);
    EXPECT_EQ(Names(site), "index.html main.css notes.txt page1.html page10.html page11.html "
                           "page2.html page3.html page4.html page5.html page6.html page7.html "
                           "page8.html page9.html ");
}

TEST_F(SiteTest, UpdateDeletesThePagesWhoseCharacterItCountsTo)
{
    ASSERT_EQ(Make(), 0);
    const struct {
        int pages;
        std::string left;
    } cases[] = {
        {45, "page..html page0.html page1.html page10.html page2.html page9.html page:.html "},
        {48, "page1.html page10.html page2.html page9.html page:.html "},
        {49, "page10.html page2.html page9.html page:.html "},
        {57, "page10.html page:.html "},
        {58, "page10.html "}};
    for (const auto& one : cases) {
        for (const char* const name : {".", "0", "1", "2", "9", ":", "10"})
            WriteFile(site + "/page" + name + ".html", "");
        report.GetPagesNumber() = one.pages;
        EXPECT_EQ(report.Update(), 0);
        EXPECT_EQ(Names(site), "index.html main.css " + one.left);
    }
}

TEST_F(SiteTest, ASecondRunGoesOnCountingAndTitlesKeepTheirDirectory)
{
    Add({Title("A", 1), new Probe, Title("B", 1)});
    ASSERT_EQ(Make(), 0);
    const std::string second = temporary.Path("second");
    ASSERT_EQ(report.MakeReport(second.c_str(), "Second"), 0);
    EXPECT_EQ(Names(second), "index.html main.css navigation.css navigation.html page1.html ");
    EXPECT_EQ(BodyOf(ReadFile(second + "/navigation.html")),
              "<A HREF=\"page1.html\"><NOBR><H1>Second</H1></NOBR></A>\n"
              "<A HREF=\"page4.html#0\"><NOBR><H1>A</H1></NOBR></A>\n[second 1]"
              "<A HREF=\"page5.html#0\"><NOBR><H1>B</H1></NOBR></A>\n" +
                  End);
    EXPECT_EQ(BodyOf(Page("page4.html")), "\n<A NAME=\"0\"><H1>A</H1></A>\n[second 1]" + End);
}

TEST_F(SiteTest, FailuresBeforeTheItemsEndTheRun)
{
    for (const int status :
         {report.BeginReport(), report.Flush(), report.FinishReport(), report.Update()})
        EXPECT_EQ(status, VOR_E_FAIL);
    EXPECT_EQ(report.MakeReport(temporary.Path("no/parent").c_str(), ""), VOR_E_FAIL);
    const struct {
        std::string blocked;
        int titles;
        std::string written;
    } cases[] = {
        {"main.css", 1, "main.css/ "},
        {"index.html", 1, "index.html/ main.css "},
        {"navigation.css", 2, "main.css navigation.css/ "},
        {"index.html", 2, "index.html/ main.css navigation.css "},
        {"navigation.html", 2, "index.html main.css navigation.css navigation.html/ "},
        {"page1.html", 2, "index.html main.css navigation.css navigation.html page1.html/ "}};
    for (const auto& one : cases) {
        fs::remove_all(site);
        fs::create_directories(site + "/" + one.blocked);
        VORKTRReportingBuffer failing;
        for (int i = 0; i < one.titles; ++i)
            failing.AddObject(Title("", 1));
        EXPECT_EQ(failing.MakeReport(site.c_str(), "Site"), VOR_E_FAIL) << one.blocked;
        EXPECT_EQ(Names(site), one.written);
    }
    // Its report closed the page that the last run left open.
    EXPECT_EQ(BodyOf(Page("navigation.html")),
              "<A HREF=\"page1.html\"><NOBR><H1>Site</H1></NOBR></A>\n");

    // A single page says why it cannot be opened.
    fs::remove(site + "/index.html");
    fs::create_symlink("none/index.html", site + "/index.html");
    EXPECT_EQ(Make(), VOR_E_FILE_NOT_FOUND);
}

TEST_F(SiteTest, FailuresOfPagesCostOnlyTheirItems)
{
    fs::create_directories(site + "/page2.html");
    for (const char* const name : {"index.html", "main.css", "page4.html"})
        fs::create_symlink("/dev/full", site + "/" + name);
    Add({Title("A", 1), Text("lost"), Title("B", 1), Text("b"), Title("C", 2)});
    EXPECT_EQ(Make(), 0);
    EXPECT_EQ(BodyOf(Page("page1.html")), "<P class=\"maintitle\">Site</P>\n" + End);
    EXPECT_EQ(BodyOf(Page("page3.html")), "\n<A NAME=\"0\"><H1>B</H1></A>\n<p>b</p>\n" + End);
    EXPECT_EQ(BodyOf(Page("navigation.html")),
              "<A HREF=\"page1.html\"><NOBR><H1>Site</H1></NOBR></A>\n"
              "<A HREF=\"page2.html#2\"><NOBR><H1>A</H1></NOBR></A>\n"
              "<A HREF=\"page3.html#0\"><NOBR><H1>B</H1></NOBR></A>\n"
              "<A HREF=\"page4.html#0\"><NOBR><H2>C</H2></NOBR></A>\n" +
                  End);
    EXPECT_EQ(report.RemoveObject(0), 0);
    EXPECT_EQ(report.Update(), 0); // a single page on a full disk
}

TEST_F(SiteTest, ADirectoryThatMayNotBeWrittenEndsTheRun)
{
    fs::create_directory(site);
    fs::permissions(site, fs::perms{0555});
    fs::permissions(temporary.Path(), fs::perms{0555});
    const auto runUnprivileged = [&] {
        constexpr unsigned int nobody = 65534; // to root every access is granted
        if (::geteuid() == 0 && (::setgid(nobody) != 0 || ::setuid(nobody) != 0))
            ::_exit(2);
        VORUnicodeString directory(site.c_str());
        const int refused = VORFileAccess(directory, 2, 0);
        const bool isNotMade = report.MakeReport(temporary.Path("new").c_str(), "") == VOR_E_FAIL;
        const bool isRefused = refused < 0 && report.MakeReport(directory, "") == refused;
        const bool hasNoStyle = report.MakeStylesheets(directory, 0) == VOR_E_FAIL;
        ::_exit(isNotMade && isRefused && hasNoStyle ? 0 : 1);
    };
    EXPECT_EXIT(runUnprivileged(), testing::ExitedWithCode(0), "");
    fs::permissions(temporary.Path(), fs::perms{0755});
    EXPECT_EQ(Names(temporary.Path()), "site/ ");
}

TEST_F(SiteTest, BrowserIsStartedByTheLauncher)
{
    const std::string page = temporary.Path("a page.html");
    const std::string arguments = temporary.Path("arguments");
    EXPECT_EQ(VORKTRReportTools::StartBrowser(page.c_str(), 0), -1);
    ::setenv("VORCommandPath", (temporary.Path("none") + ":" + temporary.Path()).c_str(), 1);
    EXPECT_EQ(VORKTRReportTools::StartBrowser(page.c_str(), 0), -1);
    const std::string launcher = temporary.Path("RunNs.sh");
    WriteFile(launcher, "#!/bin/sh\nprintf '<%s>' \"$@\" >'" + arguments + "'\nexit 3\n");
    fs::permissions(launcher, fs::perms{0755});
    const int status = VORKTRReportTools::StartBrowser(page.c_str(), 1);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 3) << status;
    EXPECT_EQ(ReadFile(arguments), "<" + temporary.Path("a") + "><page.html>");
    fs::remove(arguments);
    ::setenv("KTR_ODT", "", 1);
    EXPECT_EQ(VORKTRReportTools::StartBrowser(page.c_str(), 0), 0);
    EXPECT_FALSE(fs::exists(arguments));
}

} // namespace
