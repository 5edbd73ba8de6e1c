#include <clocale>
#include <cmath>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "ReportTest.h"
#include "VORKTRReportTools.h"
#include "VORKTRReportingFloat.h"
#include "VORStatus.h"
#include "support/Rendering.h"

namespace
{

using ItemsTest = ReportTest;
using Counts = std::pair<int, int>;

TEST_F(ItemsTest, KeepTheirPositionsInAReport)
{
    Probe stranger;
    int index = 99;
    EXPECT_EQ(report.InsertObjectAtIndex(&stranger, 0), VOR_E_FAIL);
    EXPECT_EQ(report.GetObjectIndex(nullptr, index), VOR_E_FAIL);
    std::vector<Probe*> items;
    for (const int capacity : {5, 5, 5, 5, 5, 10, 10, 10, 10, 10}) {
        items.push_back(new Probe(-7));
        Add({items.back()});
        EXPECT_EQ(report.GetAllocatedNumber(), capacity);
    }
    const int refusals[] = {
        report.AddObject(nullptr),      report.InsertObjectAtIndex(nullptr, 2),
        report.RemoveObject(nullptr),   report.InsertObjectAtIndex(&stranger, -1),
        report.RemoveObject(&stranger), report.InsertObjectAtIndex(&stranger, 10),
        report.RemoveObject(-1),        report.GetObjectIndex(&stranger, index),
        report.RemoveObject(10)};
    for (const int& status : refusals)
        EXPECT_EQ(status, VOR_E_FAIL) << "refusal " << &status - refusals;
    EXPECT_EQ(index, 99);
    EXPECT_EQ(stranger.GetBuffer(), nullptr);

    EXPECT_EQ(report.RemoveObject(1), -7);
    EXPECT_EQ(report.RemoveObject(1), VOR_E_FAIL);
    EXPECT_EQ(report.RemoveObject(items[4]), -7);
    EXPECT_EQ(Counts(Probe::Removed, Probe::Destroyed), Counts(2, 2));
    auto* const inserted = new Probe;
    EXPECT_EQ(report.InsertObjectAtIndex(inserted, 1), 0);
    EXPECT_EQ(inserted->GetBuffer(), &report);
    EXPECT_EQ(Counts(report.GetObjectNumber(), report.GetAllocatedNumber()), Counts(11, 15));
    const std::pair<Probe*, int> places[] = {{items[0], 0}, {inserted, 1}, {nullptr, 2},
                                             {items[2], 3}, {items[3], 4}, {items[9], 10}};
    for (const auto& [item, place] : places) {
        EXPECT_EQ(report.GetObjectIndex(item, index), 0);
        EXPECT_EQ(index, place);
    }
    for (const int removed : {9, 0, 3, 2}) // wherever the search for the one before ended
        EXPECT_EQ(report.RemoveObject(items[static_cast<std::size_t>(removed)]), -7) << removed;
}

TEST_F(ItemsTest, AnItemHandedOverIsOwnedAlsoWhenTheCallThrows)
{
    struct Refusing : Probe {
        void SetBuffer(VORKTRReportingBuffer*) override { throw std::runtime_error("refused"); }
    };
    auto* const bag = Bag({new Probe, new Probe, new Probe, new Probe, new Probe});
    Add({bag, new Probe, new Probe, new Probe, new Probe});
    EXPECT_THROW(report.AddObject(new Refusing), std::runtime_error);
    EXPECT_THROW(report.InsertObjectAtIndex(new Refusing, 0), std::runtime_error);
    EXPECT_THROW(bag->AddObject(new Refusing), std::runtime_error);
    EXPECT_EQ(Probe::Destroyed, 3);
    EXPECT_EQ(Counts(report.GetObjectNumber(), report.GetAllocatedNumber()), Counts(5, 5));
    EXPECT_EQ(Counts(bag->GetObjectNumber(), bag->GetAllocatedNumber()), Counts(5, 5));
}

TEST_F(ItemsTest, AnItemIsInItsPlaceUntilItIsGone)
{
    struct Seeking : Probe {
        using Probe::Probe;
        ~Seeking() override
        {
            int index = -1;
            EXPECT_EQ(GetBuffer()->GetObjectIndex(this, index), 0);
            EXPECT_EQ(index, width);
        }
    };
    VORKTRReportingBuffer other;
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(other.AddObject(new Seeking(0, i)), 0);
    EXPECT_EQ(other.RemoveObject(1), 0);
}

TEST_F(ItemsTest, AnItemMayBringAnother)
{
    struct Leading : Probe {
        void SetBuffer(VORKTRReportingBuffer* iBuffer) override { iBuffer->AddObject(first); }
        Probe* first = new Probe;
    };
    Add({new Probe, new Probe, new Probe, new Probe});
    auto* const second = new Leading;
    Add({second});
    EXPECT_EQ(Counts(report.GetObjectNumber(), report.GetAllocatedNumber()), Counts(6, 10));
    int index = 0;
    EXPECT_EQ(report.GetObjectIndex(second->first, index), 0);
    EXPECT_EQ(index, 4);
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
    EXPECT_EQ(late->directory + added->directory + inserted->directory, site + site);
    ASSERT_EQ(Make(), 0);
    EXPECT_EQ(late->directory, site);

    bag->AddObject(new Probe(2));
    EXPECT_EQ(bag->GetAllocatedNumber(), 5);
    bag->AddObject(new Probe(4));
    EXPECT_EQ(bag->GetAllocatedNumber(), 10);
    EXPECT_EQ(report.RemoveObject(1), 4);
    EXPECT_EQ(report.RemoveObject(2), -5);
    EXPECT_EQ(report.RemoveObject(3), 0);
    EXPECT_EQ(Counts(Probe::Removed, Probe::Destroyed), Counts(8, 8));
    VORKTRReportingBuffer().AddObject(Bag({new Probe, Bag({new Probe})}));
    EXPECT_EQ(Counts(Probe::Removed, Probe::Destroyed), Counts(8, 10));
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
    const std::string error = "AssertionFailed:_Buffer.*VORAnalysisReportInterfaces/"
                              "VORRuxReportImpl.m/src/VORKTRReportingTitle.*";
    const VORKTRReportingTitle title("A", 1);
    unsigned int file = 0;
    EXPECT_DEATH(title.Report(0, "", 0, 0), error + "77");
    EXPECT_DEATH(title.NewPage(nullptr, file, ""), error + "129");
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
    ASSERT_TRUE(std::setlocale(LC_ALL, CommaLocale)) << "this locale must be installed";
    for (const auto& one : cases)
        EXPECT_EQ(HtmlOf(VORKTRReportingFloat(one.value, one.format)), one.text) << one.format;
    char text[VORKTRReportingFloat::TextSize];
    EXPECT_EQ(VORKTRReportingFloat::WriteText(1e15 / 3, VORFloatFormat("%.20f"), text), 19);
    EXPECT_STREQ(text, " 333333333333333.31");
}

TEST_F(ItemsTest, EscapesWhateverItsPlaceInAText)
{
    const std::map<char, std::string> escapes = {{'&', "&amp;"},
                                                 {'<', "&lt;"},
                                                 {'>', "&gt;"},
                                                 {'\n', "<BR>\n"},
                                                 {'\t', "<TT>&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;</TT>"}};
    for (int code = 0; code < 256; ++code) {
        const auto one = static_cast<char>(code);
        std::string text, html;
        for (std::size_t place = 0; place < 33; ++place) {
            text.assign(33 + place % 3, '=');
            text[place] = text.back() = one;
            html.clear();
            for (const char c : text)
                html += escapes.count(c) ? escapes.at(c) : std::string(1, c);
            VORUnicodeString escaped;
            VORKTRReportTools::AppendEscaped(escaped, text);
            ASSERT_EQ(escaped.ToString(), html) << code << " " << place;
        }
        ASSERT_EQ(HtmlOf(VORKTRReportingText(text)), "<p>" + html + "</p>\n") << code;
    }
}

} // namespace
