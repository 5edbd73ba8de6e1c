#include <clocale>
#include <cmath>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "ReportTest.h"
#include "VORFatalError.h"
#include "VORKTRReportingFloat.h"
#include "VORStatus.h"
#include "support/Rendering.h"

namespace
{

using ItemsTest = ReportTest;
using Counts = std::pair<int, int>;

Counts RemovedAndDestroyed()
{
    return {Probe::Removed, Probe::Destroyed};
}

TEST_F(ItemsTest, KeepTheirPositionsInAReport)
{
    Probe stranger;
    int index = 99;
    EXPECT_EQ(report.InsertObjectAtIndex(&stranger, 0), VOR_E_FAIL);
    EXPECT_EQ(report.GetObjectIndex(nullptr, index), VOR_E_FAIL);
    std::vector<Probe*> items;
    for (const int capacity : {5, 5, 5, 5, 5, 10, 10, 10, 10, 10}) {
        items.push_back(new Probe(-7));
        EXPECT_EQ(report.AddObject(items.back()), 0);
        EXPECT_EQ(report.GetAllocatedNumber(), capacity);
    }
    const int refusals[] = {report.AddObject(nullptr),
                            report.InsertObjectAtIndex(nullptr, 2),
                            report.InsertObjectAtIndex(&stranger, -1),
                            report.InsertObjectAtIndex(&stranger, 10),
                            report.RemoveObject(-1),
                            report.RemoveObject(10),
                            report.RemoveObject(nullptr),
                            report.RemoveObject(&stranger),
                            report.GetObjectIndex(&stranger, index)};
    for (const int& status : refusals)
        EXPECT_EQ(status, VOR_E_FAIL) << "refusal " << &status - refusals;
    EXPECT_EQ(index, 99);
    EXPECT_EQ(stranger.GetBuffer(), nullptr);

    EXPECT_EQ(report.RemoveObject(1), -7);
    EXPECT_EQ(report.RemoveObject(1), VOR_E_FAIL);
    EXPECT_EQ(report.RemoveObject(items[4]), -7);
    EXPECT_EQ(RemovedAndDestroyed(), Counts(2, 2));
    auto* const inserted = new Probe;
    EXPECT_EQ(report.InsertObjectAtIndex(inserted, 1), 0);
    EXPECT_EQ(inserted->GetBuffer(), &report);
    EXPECT_EQ(report.GetObjectNumber(), 11);
    EXPECT_EQ(report.GetAllocatedNumber(), 15);
    const std::pair<Probe*, int> places[] = {{items[0], 0}, {inserted, 1}, {nullptr, 2},
                                             {items[2], 3}, {items[3], 4}, {items[9], 10}};
    for (const auto& [item, place] : places) {
        EXPECT_EQ(report.GetObjectIndex(item, index), 0);
        EXPECT_EQ(index, place);
    }
}

TEST_F(ItemsTest, ABagStandsForItsChildren)
{
    auto* const child = new Probe(0, 3);
    auto* const bag = Bag({child, new Probe(-5, 12), nullptr, new Probe(2, 7)});
    EXPECT_EQ(child->GetBuffer(), nullptr);
    EXPECT_EQ(bag->GetWidthInChar(), 12);
    Add({bag, Bag({new Probe(2), new Probe(-5)}), Bag({}), Bag({new Probe, Bag({new Probe})})});
    EXPECT_EQ(child->GetBuffer(), &report);
    ASSERT_EQ(Make(), 0);
    EXPECT_EQ(child->directory, site);

    // A child taken now learns the directory with the next run, an item of the report at once.
    auto* const late = new Probe;
    auto* const added = new Probe;
    auto* const inserted = new Probe;
    bag->AddObject(late);
    Add({added});
    EXPECT_EQ(report.InsertObjectAtIndex(inserted, 0), 0);
    EXPECT_EQ(late->GetBuffer(), &report);
    EXPECT_EQ(late->directory, "");
    EXPECT_EQ(added->directory, site);
    EXPECT_EQ(inserted->directory, site);
    ASSERT_EQ(Make(), 0);
    EXPECT_EQ(late->directory, site);

    bag->AddObject(new Probe(2));
    EXPECT_EQ(bag->GetAllocatedNumber(), 5);
    bag->AddObject(new Probe(4));
    EXPECT_EQ(bag->GetAllocatedNumber(), 10);
    EXPECT_EQ(report.RemoveObject(1), 4);
    EXPECT_EQ(report.RemoveObject(2), -5);
    EXPECT_EQ(report.RemoveObject(3), 0);
    EXPECT_EQ(RemovedAndDestroyed(), Counts(8, 8));
    {
        VORKTRReportingBuffer owner;
        owner.AddObject(Bag({new Probe, Bag({new Probe})}));
    }
    EXPECT_EQ(RemovedAndDestroyed(), Counts(8, 10));
}

TEST_F(ItemsTest, BaseCellsWrapTheItem)
{
    const Probe probe;
    EXPECT_EQ(Written([&](unsigned int iFile) {
                  probe.Report_in_List(iFile, "site", 0, 0, 0);
                  probe.Report_in_List(iFile, "site", 0, 0, 1);
                  probe.Report_in_Table(iFile, "site", 0, 0, 0);
                  probe.Report_in_Table(iFile, "site", 0, 0, 4);
              }),
              "<TD ALIGN=RIGHT>[site 0]</TD>\n<TD ALIGN=RIGHT COLSPAN=3>[site 0]</TD>\n"
              "<TD ALIGN=CENTER>[site 0]</TD>\n<TH ALIGN=CENTER>[site 0]</TH>\n");
}

TEST_F(ItemsTest, NewPageSaysWhyThereIsNone)
{
    auto* const title = Title("A", 1);
    Add({title});
    ASSERT_EQ(Make(), 0);
    unsigned int file = 0;
    ASSERT_EQ(VORFOpen((site + "/old.html").c_str(), "w", file), 0);
    const unsigned int open = file;
    EXPECT_EQ(title->NewPage(nullptr, file, site.c_str()), VOR_E_INVALIDARG);
    EXPECT_EQ(Counts(report.GetPagesNumber(), report.GetIndex()), Counts(1, 2));
    EXPECT_EQ(file, open);
    const VORUnicodeString heading("New");
    EXPECT_LT(title->NewPage(&heading, file, (site + "/none").c_str()), 0);
    EXPECT_EQ(Counts(report.GetPagesNumber(), report.GetIndex()), Counts(2, 2));
    EXPECT_EQ(Page("old.html"), "</BODY>\n</HTML>\n");
    EXPECT_EQ(title->NewPage(&heading, file, site.c_str()), 0);
    EXPECT_EQ(Counts(report.GetPagesNumber(), report.GetIndex()), Counts(3, 0));
    EXPECT_EQ(VORFClose(file), 0);
    EXPECT_EQ(Page("page3.html").rfind("<HTML>\n<HEAD>\n<TITLE>New</TITLE>\n", 0), 0u);
}

TEST_F(ItemsTest, ATitleWithoutReportIsFatal)
{
    VORSetFatalErrorHandler([](const char* iKey, const char* iPath, int iLine) {
        throw std::string(iKey) + " " + iPath + " " + std::to_string(iLine);
    });
    const auto errorOf = [](auto iAction) -> std::string {
        try {
            iAction();
        } catch (const std::string& error) {
            return error;
        }
        return "none";
    };
    const std::string error = "AssertionFailed:_Buffer VORAnalysisReportInterfaces/"
                              "VORRuxReportImpl.m/src/VORKTRReportingTitle ";
    const std::unique_ptr<VORKTRReportingTitle> title(Title("A", 1));
    unsigned int file = 0;
    EXPECT_EQ(errorOf([&] { title->Report(0, "", 0, 0); }), error + "77");
    EXPECT_EQ(errorOf([&] { title->NewPage(nullptr, file, ""); }), error + "129");
    VORSetFatalErrorHandler(nullptr);
}

TEST_F(ItemsTest, FloatsAlwaysHoldAPointAndKeepTheirBound)
{
    const struct {
        float value;
        const char* format;
        std::string text;
    } cases[] = {
        {-0.f, "%g", " -0."},
        {1e7f, "%g", " 1.e+07"},
        {3, "%+05.0f", " +0003."},
        {std::nanf(""), "%g", ".nan"},
        {-HUGE_VALF, "%g", "-.inf"},
        {3, "%g mm", " 3 .mm"},
        {3, "x=%g", " .x=3"},
        {-2.5f, "%g %g", "-2.5"},
        {2.5f, "%28.1f", " " + std::string(25, ' ') + "2.5"},
        {-2.5f, "%29.1f", std::string(25, ' ') + "-2.5"},
        {3, "%27.0f", " " + std::string(26, ' ') + "3."},
        {3, "%28.0f", " 3."},
        {1e30f, "%f", " 1.00000002e+30"},
    };
    ASSERT_TRUE(std::setlocale(LC_ALL, "de_DE.UTF-8")) << "this locale must be installed";
    for (const auto& one : cases)
        EXPECT_EQ(HtmlOf(VORKTRReportingFloat(one.value, one.format)), one.text) << one.format;
}

TEST_F(ItemsTest, ReplacementsAreNotSearchedAgain)
{
    const char* const cases[][4] = {{"aa", "a", "aa", "aaaa"},          {"aaa", "aa", "b", "ba"},
                                    {"abab", "ab", "b", "bb"},          {"€é€", "€", "", "é"},
                                    {"éaé€a", "a", "&a;", "é&a;é€&a;"}, {"abc", "", "y", "abc"}};
    for (const auto& [before, what, by, after] : cases) {
        VORUnicodeString text(before);
        VORKTRReportingText::ReplaceAllOccurrences(text, what, by);
        EXPECT_STREQ(text.ConvertToChar(), after);
    }
}

} // namespace
