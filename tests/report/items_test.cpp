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
#include "VORKTRReportingFile.h"
#include "VORKTRReportingFloat.h"
#include "VORKTRReportingInt.h"
#include "VORKTRReportingList.h"
#include "VORKTRReportingTable.h"
#include "VORStatus.h"
#include "support/Rendering.h"

namespace
{

using ItemsTest = ReportTest;
using Counts = std::pair<int, int>;

TEST_F(ItemsTest, KeepTheirPositionsInAReport)
{
    struct Seeking : Probe { // is found until it is gone
        using Probe::Probe;
        ~Seeking() override
        {
            int index = 0;
            EXPECT_EQ(GetBuffer()->GetObjectIndex(this, index), 0);
        }
    };
    Probe stranger;
    int index = 99;
    EXPECT_EQ(report.InsertObjectAtIndex(&stranger, 0), VOR_E_FAIL);
    std::vector<Probe*> items;
    for (const int capacity : {5, 5, 5, 5, 5, 10, 10, 10, 10, 10}) {
        items.push_back(&Add(new Seeking(-7)));
        EXPECT_EQ(report.GetAllocatedNumber(), capacity);
    }
    const int refusals[] = {
        report.AddObject(nullptr),      report.InsertObjectAtIndex(nullptr, 2),
        report.RemoveObject(nullptr),   report.InsertObjectAtIndex(&stranger, -1),
        report.RemoveObject(&stranger), report.InsertObjectAtIndex(&stranger, 10),
        report.RemoveObject(-1),        report.GetObjectIndex(&stranger, index),
        report.RemoveObject(10),        report.GetObjectIndex(nullptr, index)};
    for (const int& status : refusals)
        EXPECT_EQ(status, VOR_E_FAIL) << "refusal " << &status - refusals;
    EXPECT_TRUE(index == 99 && !stranger.GetBuffer());

    EXPECT_EQ(report.RemoveObject(1), -7);
    EXPECT_EQ(report.RemoveObject(1), VOR_E_FAIL);
    EXPECT_EQ(report.RemoveObject(items[4]), -7);
    EXPECT_EQ(Counts(Probe::Removed, Probe::Destroyed), Counts(2, 2));
    auto* const inserted = new Probe;
    EXPECT_EQ(report.InsertObjectAtIndex(inserted, 1), 0);
    EXPECT_EQ(Counts(report.GetObjectNumber(), report.GetAllocatedNumber()), Counts(11, 15));
    const std::pair<Probe*, int> places[] = {{items[0], 0}, {inserted, 1}, {nullptr, 2},
                                             {items[2], 3}, {items[3], 4}, {items[9], 10}};
    for (const auto& [item, place] : places)
        EXPECT_TRUE(report.GetObjectIndex(item, index) == 0 && index == place) << place;
    for (const std::size_t removed : {9u, 0u, 3u, 2u}) // wherever the search before ended
        EXPECT_EQ(report.RemoveObject(items[removed]), -7) << removed;
}

TEST_F(ItemsTest, MayThrowOrBringOthersWhenTaken)
{
    struct Refusing : Probe {
        void SetBuffer(VORKTRReportingBuffer*) override { throw std::runtime_error("refused"); }
    };
    struct Leading : Probe {
        void SetBuffer(VORKTRReportingBuffer* iBuffer) override { iBuffer->AddObject(first); }
        Probe* first = new Probe;
    };
    auto* const bag = Bag({new Probe, new Probe, new Probe, new Probe, new Probe});
    Add({bag, new Probe, new Probe, new Probe});
    const auto& second = Add(new Leading);
    EXPECT_EQ(Counts(report.GetObjectNumber(), report.GetAllocatedNumber()), Counts(6, 10));
    int index = 0;
    EXPECT_TRUE(report.GetObjectIndex(second.first, index) == 0 && index == 4);
    Add({new Probe, new Probe, new Probe, new Probe});
    EXPECT_THROW(report.AddObject(new Refusing), std::runtime_error);
    EXPECT_THROW(report.InsertObjectAtIndex(new Refusing, 0), std::runtime_error);
    EXPECT_THROW(bag->AddObject(new Refusing), std::runtime_error);
    EXPECT_EQ(Probe::Destroyed, 3); // they were owned from the call on
    EXPECT_EQ(Counts(report.GetObjectNumber(), report.GetAllocatedNumber()), Counts(10, 10));
    EXPECT_EQ(Counts(bag->GetObjectNumber(), bag->GetAllocatedNumber()), Counts(5, 5));
}

TEST_F(ItemsTest, ABagStandsForItsChildren)
{
    auto* const child = new Probe(0, 3);
    auto* const bag = Bag({child, new Probe(-5, 12), nullptr, new Probe(2, 7)});
    EXPECT_TRUE(!child->GetBuffer() && bag->GetWidthInChar() == 12);
    Add({bag, Bag({new Probe(2), new Probe(-5)}), Bag({}), Bag({new Probe, Bag({new Probe})})});
    EXPECT_EQ(child->GetBuffer(), &report);
    ASSERT_EQ(Make(), 0);

    // A child taken now learns the directory with the next run, an item of the report at once.
    auto* const late = new Probe;
    auto* const inserted = new Probe;
    bag->AddObject(late);
    const auto& added = Add(new Probe);
    EXPECT_EQ(report.InsertObjectAtIndex(inserted, 0), 0);
    EXPECT_EQ(late->GetBuffer(), &report);
    EXPECT_EQ(late->directory + added.directory + inserted->directory, site + site);
    ASSERT_EQ(Make(), 0);
    EXPECT_EQ(late->directory, site);

    for (const int capacity : {5, 10}) {
        bag->AddObject(new Probe(capacity));
        EXPECT_EQ(bag->GetAllocatedNumber(), capacity);
    }
    for (const auto& [index, status] : {Counts(1, 10), Counts(2, -5), Counts(3, 0)})
        EXPECT_EQ(report.RemoveObject(index), status);
    EXPECT_EQ(Counts(Probe::Removed, Probe::Destroyed), Counts(8, 8));
    VORKTRReportingBuffer().AddObject(Bag({new Probe, Bag({new Probe})}));
    EXPECT_EQ(Counts(Probe::Removed, Probe::Destroyed), Counts(8, 10));
}

TEST_F(ItemsTest, NewPageSaysWhyThereIsNone)
{
    const auto& title = Add(Title("A", 1));
    ASSERT_EQ(Make(), 0);
    const VORUnicodeString heading("New");
    unsigned int file = 0;
    EXPECT_EQ(title.NewPage(nullptr, file, site.c_str()), VOR_E_INVALIDARG);
    EXPECT_EQ(Counts(report.GetPagesNumber(), report.GetIndex()), Counts(1, 2));
    EXPECT_LT(title.NewPage(&heading, file, (site + "/none").c_str()), 0);
    EXPECT_EQ(Counts(report.GetPagesNumber(), report.GetIndex()), Counts(2, 2));
    EXPECT_EQ(title.NewPage(&heading, file, site.c_str()), 0);
    EXPECT_EQ(Counts(report.GetPagesNumber(), report.GetIndex()), Counts(3, 0));
    EXPECT_EQ(VORFClose(file), 0);
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

TEST_F(ItemsTest, HaveANumberForEachKindAndTextInPieces)
{
    std::string kinds;
    for (const int kind :
         {Probe().GetType(), VORKTRReportingBag().GetType(), VORKTRReportingText("").GetType(),
          VORKTRReportingTable(0).GetType(), VORKTRReportingList('=').GetType(),
          VORKTRReportingTitle("", 1).GetType(),
          VORKTRReportingFile(VORKTRReportingImage, "").GetType(),
          VORKTRReportingFloat(0, "").GetType(), VORKTRReportingInt(0, "").GetType()})
        kinds += std::to_string(kind);
    EXPECT_EQ(kinds, "012345678");
    VORKTRReportingText text;
    EXPECT_EQ(text.WriteUnicode("a") + text.WriteInt(7, "%d") + text.WriteFloat(1.5f, "%g"), 0);
    EXPECT_EQ(TextOf(text), "a7 1.5");
    VORUnicodeString replaced("a€b€"); // what is put in is not searched again
    VORKTRReportingText::ReplaceAllOccurrences(replaced, "€", "€a");
    EXPECT_STREQ(replaced.ConvertToChar(), "a€ab€a");
    VORUnicodeString html("a<\n");
    VORKTRReportTools::AppendEscaped(html, html);
    EXPECT_STREQ(html.ConvertToChar(), "a<\na&lt;<BR>\n");
}

TEST_F(ItemsTest, NumbersLookTheSameByThemselvesAndInTables)
{
    const std::string blanks(25, ' ');
    const struct {
        float value;
        const char* format;
        std::string text;
    } floats[] = {
        {-0.f, "%g", " -0."},
        {1e7f, "%g", " 1.e+07"},
        {3, "%+05.0f", " +0003."},
        {std::nanf(""), "%g", ".nan"},
        {-HUGE_VALF, "%g", "-.inf"},
        {3, "%g mm", " 3 .mm"},
        {-2.5f, "%g %g", "-2.5"},
        {-2.5f, "%29.1f", blanks + "-2.5"},
        {3, "%27.0f", "  " + blanks + "3."},
        {3, "%28.0f", " 3."},
        {1e30f, "%f", " 1.00000002e+30"},
        {1.5f, "%A", " 0X1.8P+0"},
    };
    const std::pair<const char*, std::string> ints[] = {
        {"%i", "42"}, {"%#x", "0x2a"}, {"%c", "*"}, {"%-4d|", "42  |"}, {"%d%d", "42"}};
    ASSERT_TRUE(std::setlocale(LC_ALL, CommaLocale)) << "this locale must be installed";
    EXPECT_EQ(VORKTRReportingList::float_separator(), ',');
    VORKTRReportingTable table(0x10);
    std::string cells;
    for (const auto& [value, format, text] : floats) {
        EXPECT_EQ(HtmlOf(VORKTRReportingFloat(value, format)), text) << format;
        table.SetFloat(0, table.GetColumnNumber(), value, format);
        cells += "<TD ALIGN=RIGHT>" + text + "</TD>\n";
    }
    for (const auto& [format, text] : ints) {
        EXPECT_EQ(HtmlOf(VORKTRReportingInt(42, format)), text) << format;
        table.SetInt(0, table.GetColumnNumber(), 42, format);
        cells += "<TD ALIGN=CENTER>" + text + "</TD>\n";
    }
    EXPECT_EQ(HtmlOf(table),
              "<P>\n\n<TABLE BORDER=0 CELLPADDING=5>\n<TR>\n" + cells + "</TR>\n</TABLE>\n</P>\n");
    char text[VORKTRReportingFloat::TextSize];
    EXPECT_EQ(VORKTRReportingFloat::WriteText(1e15 / 3, VORFloatFormat("%.20f"), text), 19);
    EXPECT_STREQ(text, " 333333333333333.31");
    EXPECT_EQ(VORKTRReportingFloat::WriteText(3.f, VORFloatFormat("%27.0f"), text), 29);
    EXPECT_EQ(VORKTRReportingFloat::WriteText(3.f, VORFloatFormat("%28.0f"), text), 3); // no room
}

TEST_F(ItemsTest, EscapesWhateverItsPlaceInAText)
{
    const std::map<char, std::string> escapes = {{'&', "&amp;"},
                                                 {'<', "&lt;"},
                                                 {'>', "&gt;"},
                                                 {'\n', "<BR>\n"},
                                                 {'\t', "<TT>&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;</TT>"}};
    for (int code = 1; code < 256; ++code) {
        const std::string one(1, static_cast<char>(code));
        const auto found = escapes.find(one[0]);
        const std::string& html = found == escapes.end() ? one : found->second;
        std::string expected;
        const std::string page = Written([&](unsigned int iFile) {
            for (int place = 0; place < 33; ++place) {
                const std::string before = Repeat(place, "="), after = Repeat(35 - place, "=");
                const std::string text = before + one + after + one;
                VORKTRReportingText(text).Report(iFile, "", 0, 0);
                expected += "<p>" + before + html + after + html + "</p>\n";
            }
        });
        ASSERT_EQ(page, expected) << code;
    }
}

VORKTRReportingObj* InTable(VORKTRReportingObj* iItem)
{
    auto* const table = new VORKTRReportingTable(0);
    table->SetObj(0, 0, iItem);
    return table;
}

VORKTRReportingObj* InList(VORKTRReportingObj* iItem)
{
    auto* const list = new VORKTRReportingList('=');
    list->addLine("", iItem, "");
    return list;
}

TEST_F(ItemsTest, NestTwoThousandDeepOnAUsualStack)
{
    constexpr int depth = 2000;
    const struct {
        VORKTRReportingObj* (*wrap)(VORKTRReportingObj*);
        const char *before, *after, *last; // what each level adds to the text, and all of them
        int width;
    } cases[] = {{[](VORKTRReportingObj* iItem) -> VORKTRReportingObj* { return Bag({iItem}); }, "",
                  "", "", 0},
                 {InTable, " ", " ", "\n", 2},
                 {InList, "   ", "\n", "", 3}};
    for (const auto& one : cases) {
        VORKTRReportingObj* item = Text("x");
        for (int level = 0; level < depth; ++level)
            item = one.wrap(item);
        Add({item});
        EXPECT_EQ(item->GetWidthInChar(), 1 + depth * one.width);
        EXPECT_EQ(CellTextOf(*item),
                  Repeat(depth, one.before) + "x" + Repeat(depth, one.after) + one.last);
        EXPECT_EQ(Make(), 0);
        EXPECT_TRUE(Holds(Page("index.html"), ">x</"));
        EXPECT_EQ(report.RemoveObject(item), 0);
    }
}

} // namespace
