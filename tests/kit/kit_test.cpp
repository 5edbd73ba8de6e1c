#include <climits>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "VORKTRArrayTable.h"
#include "VORKTRCharset.h"
#include "VORKTRFigure.h"
#include "VORKTRHeading.h"
#include "VORKTRLink.h"
#include "VORKTRLook.h"
#include "VORKTRNumber.h"
#include "VORKTRProse.h"
#include "VORKTRReportTools.h"
#include "VORKTRReportingFloat.h"
#include "VORKTRReportingInt.h"
#include "VORKTRReportingList.h"
#include "VORKTRTableCaption.h"
#include "VORStatus.h"
#include "report/ReportTest.h"
#include "support/FailingMemory.h"
#include "support/Rendering.h"

namespace fs = std::filesystem;

namespace
{

using Site = ReportTest;

TEST_F(Site, LookReplacesTheStylesheetsOfTheSiteInEveryRun)
{
    auto& look = Add(new VORKTRLook);
    EXPECT_EQ(Make(), VOR_S_OK);
    EXPECT_FALSE(fs::exists(site + "/navigation.css")); // a site of one page has none
    Add(new VORKTRHeading("A", 1));
    Add(new VORKTRHeading("B", 1));
    report.Update();
    EXPECT_TRUE(Holds(Page("main.css"), "@media print"));
    EXPECT_TRUE(Holds(Page("navigation.css"), "--ink:")); // what both sheets share
    EXPECT_EQ(report.TakeWriteStatus(), VOR_S_OK);

    WriteFile(temporary.Path("main.css"), "p{}");
    report.RemoveObject(&look);
    Add(new VORKTRLook(temporary.Path().c_str()));
    report.Update();
    EXPECT_EQ(Page("main.css"), "p{}");
    EXPECT_TRUE(Holds(Page("navigation.css"), "capitalize")); // the report's own
    EXPECT_EQ(report.TakeWriteStatus(), VOR_E_FILE_NOT_FOUND);
}

// A scan of 1,024 bytes finds the character set whatever a title of 350 bytes needs in front of it.
TEST_F(Site, EveryPageThatBeginsNamesItsCharacterSetEarly)
{
    const std::string longest(350, 'x');
    Add(new VORKTRCharset);
    for (int order : {1, 2, 3, 1})
        Add(new VORKTRHeading(longest.c_str(), order));
    EXPECT_EQ(Make(longest.c_str()), VOR_S_OK);
    for (const char* name : {"page1", "page2", "page3", "page4", "navigation"}) {
        const std::string html = Page(name + std::string(".html"));
        EXPECT_LT(html.find("<META CHARSET=\"utf-8\">\n"), 1000u) << name;
        EXPECT_EQ(html.find("<META CHARSET"), html.rfind("<META CHARSET")) << name;
    }
}

TEST_F(Site, LinksLeadToWhatStandsBefore)
{
    WriteFile(temporary.Path("a.png"), "PNG");
    auto& heading = Add(new VORKTRHeading("Model", 1));
    auto& figure =
        Add(new VORKTRFigure(temporary.Path("a.png").c_str(), "<Mode> 1", "A\t\"bow\"", 30));
    auto& caption = Add(new VORKTRTableCaption("Loads & supports"));
    auto& late = *new VORKTRTableCaption("Late");
    Add(new VORKTRHeading("Check", 2));
    auto& sub = Add(new VORKTRHeading("Sub", 3));
    Add(new VORKTRHeading("End", 2));
    auto& prose = Add(new VORKTRProse("See\n"));
    prose.AddLink(heading).Add(", ").AddLink(figure).Add(", ").AddLink(caption).Add(", ");
    prose.AddLink(sub).Add(", ").AddLink(late).Add(" & <so> on");
    Add(&late);
    SetEnv("KTRReportODT", "1");
    EXPECT_EQ(Make(), VOR_S_OK);
    EXPECT_TRUE(Holds(Page("page2.html"),
                      "<FIGURE ID=\"Figure1\">\n<IMG SRC=\"file1.png\" ALT=\"A &quot;bow&quot;\" "
                      "WIDTH=30>\n<FIGCAPTION>Figure 1: &lt;Mode&gt; 1</FIGCAPTION>"));
    EXPECT_TRUE(Holds(Page("page2.html"), "ID=\"Table1\" CLASS=\"tablecaption\" ALIGN=CENTER>"
                                          "Table 1: Loads &amp; supports</DIV>"));
    const VORUnicodeString elsewhere(temporary.Path());
    figure.SetBufferData(&elsewhere); // only the first directory counts
    EXPECT_EQ(report.TakeWriteStatus(), VOR_S_OK);
    EXPECT_TRUE(fs::exists(site + "/file1.png"));
    EXPECT_TRUE(Holds(Page("page4.html"),
                      "<P>See <A HREF=\"page2.html#0\">Model</A>, "
                      "<A HREF=\"page2.html#Figure1\">Figure 1</A>, "
                      "<A HREF=\"page2.html#Table1\">Table 1</A>, "
                      "<A HREF=\"page3.html#1\">Sub</A>, Table ? &amp; &lt;so&gt; on</P>\n"));
    EXPECT_TRUE(Holds(TextOf(prose), "See Model, Figure 1, Table 1, Sub, Table 2 & <so> on\n"));

    // Numbers go on in the next run; a target that is gone leaves its name.
    EXPECT_EQ(report.RemoveObject(&figure), VOR_S_OK);
    EXPECT_FALSE(fs::exists(site + "/file1.png"));
    report.Update();
    EXPECT_TRUE(Holds(Page("page4.html"), "</A>, Figure 1, <A HREF=\"page2.html#Table3\">Table 3"));
    EXPECT_EQ(report.TakeWriteStatus(), VOR_S_OK);
}

TEST_F(Site, SinglePageHasLinksWithinIt)
{
    auto& link = Add(new VORKTRLink(Add(new VORKTRHeading("Only", 1))));
    EXPECT_EQ(HtmlOf(link), "Only");
    EXPECT_EQ(Make(), VOR_S_OK);
    EXPECT_EQ(HtmlOf(link), "<A HREF=\"#2\">Only</A>");
    EXPECT_EQ(link.GetWidthInChar(), 4);
}

TEST_F(Site, FigureKeepsItsFileWhenMemoryRunsOut)
{
    fs::create_directory(site);
    const VORUnicodeString directory(site);
    for (int allocation = 1; allocation < 20; ++allocation) {
        WriteFile(temporary.Path("a.png"), "PNG");
        auto& figure = Add(new VORKTRFigure(temporary.Path("a.png").c_str(), "", ""));
        FailingMemory::FailAt(allocation);
        try {
            figure.SetBufferData(&directory);
        } catch (const std::bad_alloc&) {
        }
        FailingMemory::FailAt(0);
        figure.SetBufferData(&directory);
        EXPECT_EQ(report.RemoveObject(&figure), VOR_S_OK) << allocation;
    }
    EXPECT_TRUE(fs::is_empty(site) && !fs::exists(temporary.Path("a.png")));
}

TEST(Caption, TakesANumberForTheFirstTextOnly)
{
    VORKTRTableCaption::InitTableNumber();
    VORKTRReportTools::InitFigureNumber();
    const VORKTRTableCaption first("A caption that is too long for one line of a cell by far");
    const VORKTRTableCaption second("Second");
    EXPECT_EQ(first.GetWidthInChar(), 39);
    EXPECT_EQ(CellTextOf(first),
              "Table 1: A caption that is too long for\none line of a cell by far");
    EXPECT_EQ(TextOf(second), "\n" + Repeat(32, " ") + "Table 2: Second\n");
    EXPECT_EQ(TextOf(second), "\n" + Repeat(32, " ") + "Table 2: Second\n");
    const VORKTRFigure figure("mode.png", "Mode", "");
    EXPECT_EQ(TextOf(figure),
              "\n" + Repeat(36, " ") + "[Image]\n" + Repeat(33, " ") + "Figure 1: Mode\n\n");
    EXPECT_TRUE(Holds(HtmlOf(figure), " ALT=\"\">\n"));
    VORKTRTableCaption::InitTableNumber();
    EXPECT_TRUE(Holds(HtmlOf(second), "Table 1: Second"));
}

TEST(Prose, BreaksBetweenWords)
{
    const std::string eighty = Repeat(20, "\u00e4b\u00b2 ");
    const struct {
        std::string text;
        int indent;
        std::string lines;
    } cases[] = {
        {"", 0, "\n"},
        {"  a \t b\n\nc ", 2, "  a b c\n\n"},
        {eighty.substr(0, eighty.size() - 1) + "x", 0,
         eighty.substr(0, eighty.size() - 1) + "x\n\n"},
        {eighty + "x", 0, eighty.substr(0, eighty.size() - 1) + "\nx\n\n"},
        {"a " + Repeat(81, "w") + " b", 0, "a\n" + Repeat(81, "w") + "\nb\n\n"},
        {Repeat(10, "1234567 "), 4, "    " + Repeat(8, "1234567 ") + "1234567\n    1234567\n\n"},
        {"no\u00a0break", 0, "no\u00a0break\n\n"},
        {"far", INT_MAX, Repeat(79, " ") + "far\n\n"},
        {"near by", INT_MIN, "near by\n\n"},
    };
    for (const auto& [text, indent, lines] : cases)
        EXPECT_EQ(TextOf(VORKTRProse(text.c_str(), indent)), lines) << text;
    const VORKTRProse cell("Every bar is safe", 4, 9);
    EXPECT_EQ(CellTextOf(cell), "Every bar\nis safe");
    EXPECT_EQ(cell.GetWidthInChar(), 9);
    EXPECT_EQ(Written([&](unsigned int iFile) { cell.Report_in_Table(iFile, "", 0, 0, 1); }),
              "<TH ALIGN=LEFT>Every bar is safe</TH>\n");
    VORKTRReportingList list(':');
    list.addLine("Verdict", new VORKTRProse("safe & sound"), "%");
    EXPECT_EQ(TextOf(list), "  Verdict : safe & sound %\n");
}

TEST(Number, KeepsItsPrecision)
{
    const struct {
        VORKTRNumber number;
        std::string text;
    } cases[] = {
        {VORKTRNumber(2.1e11, "%.0f"), "210000000000"},
        {VORKTRNumber(0.1, "%.17g"), "0.10000000000000001"},
        {VORKTRNumber(-1.5, "%8.2f"), "   -1.50"},
        {VORKTRNumber(2.5, "%d"), "2.5"},
        {VORKTRNumber(1.0, ("%.2f " + Repeat(100, "x")).c_str()), "1.00 " + Repeat(100, "x")},
        {VORKTRNumber(9007199254740993), "9007199254740993"},
        {VORKTRNumber(std::size_t{7413}, "%6d"), "  7413"},
        {VORKTRNumber(-3), "-3"},
        {VORKTRNumber(0, "%c"), ""},
    };
    for (const auto& [number, text] : cases) {
        EXPECT_EQ(HtmlOf(number) + TextOf(number), text + text);
        EXPECT_EQ(number.GetWidthInChar(), static_cast<int>(text.size()));
    }
}

TEST(Number, AlignsWithTheFloatsOfAList)
{
    VORKTRReportingList list('=');
    list.addLine("a", new VORKTRNumber(12.5, "%.2f"), "");
    EXPECT_TRUE(Holds(HtmlOf(list), "<TD ALIGN=RIGHT>12.50</TD>\n<TD ALIGN=LEFT>&nbsp;"));
    list.addLine("b", new VORKTRNumber(7), "");
    list.addLine("c", 1.0, "", "%.1f");
    const std::string html = HtmlOf(list);
    EXPECT_TRUE(Holds(html, "<TD ALIGN=RIGHT>12</TD>\n<TD ALIGN=CENTER>.</TD>\n"
                            "<TD ALIGN=LEFT>50</TD>\n<TD ALIGN=LEFT>&nbsp;"));
    EXPECT_TRUE(Holds(html, "<TD ALIGN=RIGHT>7</TD>\n<TD COLSPAN=2>&nbsp;</TD>\n"));
}

constexpr const char* Formats[] = {"%.3f", "%g", "%d", "%.0f", "% 5d", "%s", "%6.1e m\u00b2", "%c"};
const char* const Texts[] = {"",       "node",          "a < b & c",    "two\nlines",
                             "ends\n", "\u03c3 \u00b2", "\tx\n\nthird", "a somewhat longer text"};

struct Row {
    float real;
    int number;
    double wide;
    long long large;
    std::string text;
    VORUnicodeString unicode;
};

/// An array table of random columns, and a reporting table of the same cells.
struct RandomTable {
    RandomTable(unsigned int iSeed, int iRows)
        : random(iSeed), rows(static_cast<std::size_t>(iRows)), begin(Pick(iRows)),
          end(begin + Pick(iRows - begin + 1)), hasHeadings(Pick(3) > 0),
          style(static_cast<unsigned long>(Pick(32))), table(style, iRows), expected(style)
    {
        for (Row& row : rows) {
            const int number = Pick(2000000) - 1000000;
            row = {static_cast<float>(number) / 7e3f,
                   number,
                   number * 1e10 / 7,
                   number * 10000000000LL,
                   Texts[Pick(8)],
                   Texts[Pick(8)]};
        }
        EXPECT_EQ(table.SetRows(begin, end), VOR_S_OK);
        if (Pick(2) == 1) {
            table.AddIndexColumn(Text("#"), 100);
            Expect(Text("#"), [](int iRow) { return new VORKTRReportingInt(100 + iRow, "%d"); });
        }
        Add<VORKTRReportingText>(&Row::text);
        for (int count = Pick(3); count > 0; --count) {
            Add<VORKTRReportingFloat>(&Row::real, Formats[Pick(8)]);
            Add<VORKTRReportingInt>(&Row::number, Formats[Pick(8)]);
            Add<VORKTRNumber>(&Row::wide, Formats[Pick(8)]);
            Add<VORKTRNumber>(&Row::large, Formats[Pick(8)]);
            Add<VORKTRReportingText>(&Row::unicode);
        }
    }

    int Pick(int iCount) { return static_cast<int>(random() % static_cast<unsigned>(iCount)); }
    VORUnicodeString Text(const char* iText) const { return hasHeadings ? iText : ""; }

    /// One time out of two.
    template <typename Item, typename Value, typename... Format>
    void Add(Value Row::*iValue, Format... iFormat)
    {
        if (Pick(2) == 0)
            return;
        const VORUnicodeString heading = Text(columns == 0 ? "first" : Texts[Pick(8)]);
        const VORUnicodeString unit = Text(Pick(2) == 1 ? "mm" : "");
        table.AddColumn(heading, unit, &(rows[0].*iValue), iFormat..., sizeof(Row));
        Expect(unit == "" ? heading : heading + "\n" + unit, [&](int iRow) {
            return new Item(rows[static_cast<std::size_t>(iRow)].*iValue, iFormat...);
        });
    }

    template <typename MakeItem>
    void Expect(const VORUnicodeString& iHeading, MakeItem iMake)
    {
        if (hasHeadings)
            expected.SetText(0, columns, iHeading);
        for (int row = begin; row < end; ++row)
            expected.SetObj(row - begin + (hasHeadings ? 1 : 0), columns, iMake(row));
        ++columns;
    }

    std::mt19937 random;
    std::vector<Row> rows;
    int begin;
    int end;
    bool hasHeadings;
    unsigned long style;
    int columns = 0;
    VORKTRArrayTable table;
    VORKTRReportingTable expected;
};

// Of the tables the first are so large that they leave in several blocks.
TEST(ArrayTable, LooksAsAReportingTableOfTheSameCells)
{
    const auto looksOf = [](const VORKTRReportingObj& iTable) {
        return HtmlOf(iTable) + TextOf(iTable) + CellTextOf(iTable);
    };
    for (unsigned int seed = 0; seed < 400 && !HasFailure(); ++seed) {
        const RandomTable random(seed, seed < 2 ? 20000 : 6);
        EXPECT_TRUE(looksOf(random.table) == looksOf(random.expected)) << seed;
        EXPECT_EQ(random.table.GetWidthInChar(), random.expected.GetWidthInChar()) << seed;
    }
}

TEST(ArrayTable, RefusesWhatItCannotShow)
{
    VORKTRArrayTable table(0, 3);
    EXPECT_EQ(table.AddColumn("a", "", static_cast<const std::string*>(nullptr)), VOR_E_INVALIDARG);
    EXPECT_EQ(HtmlOf(table) + TextOf(table), "");
    for (const auto& [begin, end] : {std::pair{-1, 2}, {2, 1}, {0, 4}})
        EXPECT_EQ(table.SetRows(begin, end), VOR_E_INVALIDARG);
    VORKTRArrayTable empty(0, 0);
    EXPECT_EQ(empty.AddColumn("a", "", std::vector<float>().data(), "%g"), VOR_S_OK);
    EXPECT_EQ(CellTextOf(empty), " a \n");
    VORKTRArrayTable bare(VORKTRTableRuled, 0);
    EXPECT_EQ(bare.AddColumn("", "", std::vector<float>().data(), "%g"), VOR_S_OK);
    EXPECT_EQ(TextOf(bare), "");
}

} // namespace
