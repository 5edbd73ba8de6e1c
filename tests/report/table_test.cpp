#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ReportTest.h"
#include "VORKTRReportingFile.h"
#include "VORKTRReportingList.h"
#include "VORKTRReportingTable.h"
#include "support/Rendering.h"

namespace
{

using Table = VORKTRReportingTable;

std::unique_ptr<Table> TableOf(unsigned long iStyle,
                               std::initializer_list<std::initializer_list<const char*>> iRows)
{
    auto table = std::make_unique<Table>(iStyle);
    for (const auto& row : iRows) {
        const int last = table->GetRowNumber();
        int column = 0;
        for (const char* const text : row)
            EXPECT_EQ(table->SetText(last, column++, text), 0);
    }
    return table;
}

TEST(Table, OwnsWhatItTakesAndDestroysItInOrder)
{
    struct Numbered : Probe {
        using Probe::Probe;
        ~Numbered() override { EXPECT_EQ(width, Destroyed); }
    };
    {
        Probe refused;
        Table table(0);
        for (const int status : {table.SetObj(-1, 0, &refused), table.SetObj(0, -1, &refused),
                                 table.SetObj(0, 0, nullptr), table.SetInt(-1, 0, 1, "%d"),
                                 table.SetFloat(0, -1, 1.f, "%g"), table.SetFloat(-1, 0, 1., "%g"),
                                 table.SetText(0, -1, "x")})
            EXPECT_EQ(status, Failure);
        EXPECT_EQ(TextOf(table) + HtmlOf(table), "");
        EXPECT_EQ(table.GetRowNumber() + table.GetColumnNumber() + table.GetWidthInChar(), 1);
        table.Reallocate(-1, 3);
        EXPECT_EQ(table.GetRowNumber(), 0);
        EXPECT_EQ(table.GetColumnNumber(), 4);
        for (int cell = 0; cell < 200; ++cell)
            EXPECT_EQ(table.SetObj(cell / 4, cell % 4, new Numbered(0, cell)), 0);
        auto* const list = new VORKTRReportingList(':');
        for (const int line : {200, 201})
            list->addLine("", new Numbered(0, line), "");
        EXPECT_EQ(table.SetObj(50, 0, list), 0);
        EXPECT_EQ(table.SetObj(50, 1, Bag({new Numbered(0, 202), new Numbered(0, 203)})), 0);
        EXPECT_EQ(table.SetInt(0, 0, 1, "%d"), 0);
        EXPECT_EQ(Probe::Destroyed, 1);
    }
    EXPECT_EQ(Probe::Destroyed, 205);
}

TEST(Table, AnItemMayGrowItOrItsListAsItEnds)
{
    struct Growing : Probe {
        explicit Growing(Table& ioTable) : table(ioTable) {}
        ~Growing() override
        {
            EXPECT_FALSE(Holds(TextOf(table), "next")); // whose place is empty until then
            table.SetText(0, 2 * table.GetColumnNumber(), "last");
        }
        Table& table;
    };
    struct Replaced : Growing {
        using Growing::Growing;
        ~Replaced() override { table.SetObj(0, 0, new Growing(table)); }
    };
    struct Adding : Probe {
        explicit Adding(VORKTRReportingList& ioList) : list(ioList) {}
        ~Adding() override
        {
            while (list.GetLineNumber() < 100)
                list.addLine("late", "value", "");
        }
        VORKTRReportingList& list;
    };
    VORKTRReportingList list(':');
    list.addLine("first", new Adding(list), "");
    Table table(VORKTRTableNotCentered);
    EXPECT_EQ(table.SetText(1, 0, "below"), 0);
    EXPECT_EQ(table.SetObj(0, 0, new Growing(table)), 0);
    EXPECT_EQ(table.SetObj(0, 0, new Growing(table)), 0);
    EXPECT_EQ(table.SetObj(0, 0, Text("next")), 0);
    EXPECT_EQ(table.SetText(0, 0, "first"), 0);
    EXPECT_EQ(table.GetColumnNumber(), 7);
    EXPECT_EQ(TextOf(table).substr(0, 9), "    first");
    EXPECT_EQ(table.SetObj(0, 0, new Replaced(table)), 0);
    EXPECT_EQ(table.SetText(0, 0, "second"), 0);
    EXPECT_TRUE(Holds(TextOf(table), " second "));
    EXPECT_EQ(table.SetObj(0, 0, new Replaced(table)), 0);
    EXPECT_EQ(table.SetObj(1, 0, new Growing(table)), 0);
}

/// A cell of one letter; its page shows the style byte that it is given.
struct StyleProbe : Probe {
    explicit StyleProbe(char iLetter) : Probe(0, 1), letter(1, iLetter) {}
    void ASCIIReport(VORUnicodeString& ioText) const override { ioText.Append(letter.c_str()); }
    void Report_in_Table(unsigned int iFile, const char*, unsigned char, unsigned int,
                         char iHeader) const override
    {
        const std::string mark = " " + std::to_string(int{iHeader});
        VORFWrite(iFile, mark.data(), mark.size(), nullptr);
    }

    std::string letter;
};

TEST(Table, StylesDrawRulesSeparatorsAndHeaders)
{
    std::string text;
    for (int rows = 1; rows <= 3; ++rows) {
        for (const unsigned long style : {0x00ul, 0x01ul, 0x02ul, 0x03ul, 0x04ul, 0x08ul, 0x1Ful}) {
            Table table(style);
            for (int cell = 0; cell < 3 * rows; ++cell)
                table.SetObj(cell / 3, cell % 3, new StyleProbe("abcdefghi"[cell]));
            text += std::to_string(rows) + " rows, style " + std::to_string(style) + "\n" +
                    CellTextOf(table) + HtmlOf(table);
        }
    }
    EXPECT_EQ(text, Expected("table_styles.txt"));
}

TEST(Table, GivesUpItsBlanksAndPlaceAroundThePageWidth)
{
    std::string text;
    for (const unsigned long style : {0x00ul, 0x08ul, 0x10ul, 0x18ul}) {
        for (const int width : {5, 76, 77, 78, 79, 80, 81}) {
            Table table(style);
            table.SetText(0, 0, Repeat(width - 2, "²").c_str());
            text += TextOf(table) + CellTextOf(table);
        }
    }
    for (int width = 75; width <= 78; ++width) {
        const auto table = TableOf(0x08, {{Repeat(width - 4, "²").c_str(), "b"}});
        EXPECT_EQ(table->GetWidthInChar(), width);
        text += TextOf(*table) + CellTextOf(*table);
    }
    EXPECT_EQ(text, Expected("table_places.txt"));
}

TEST(Table, CentresLinesInTheirCells)
{
    Table outer(0x08); // its cell prints wider than it says
    outer.SetObj(0, 0, TableOf(0x10, {{"x"}}).release());
    outer.SetText(0, 1, "y");
    EXPECT_EQ(CellTextOf(*TableOf(0x08, {{"a\nb\nc\nd", "x", "p\nq\n", "", "y\n\nz", "r\n\n\n"}})) +
                  CellTextOf(*TableOf(0x08, {{"wide5"}, {"ab"}, {"abcd"}, {"mm²"}, {"σ αβ\nµ"}})) +
                  CellTextOf(outer),
              Expected("table_lines.txt"));
    VORUnicodeString row;
    const int widths[] = {3, 3};
    for (const int number : {-1, 0, 1})
        TableOf(0x10, {{"a", "b"}})->PrintRow(row, number, ">", "(", ")", widths);
    EXPECT_STREQ(row.ConvertToChar(), "> ( a ) ( b ) \n");
}

TEST(Table, CellsHoldItemsOfEveryKind)
{
    VORKTRReportingBuffer report;
    auto* const title = Title("Loads", 1);
    title->SetBuffer(&report);
    auto* const list = new VORKTRReportingList('=');
    list->addLine("F", 1, "kN", "%d");
    list->addLine("No", 20, "", "%d");
    Table table(0x08);
    table.SetObj(0, 0, title);
    table.SetObj(0, 1, list);
    table.SetObj(1, 0, TableOf(0x08, {{"a", "b"}}).release());
    table.SetObj(1, 1, Bag({Text("p\n"), Text("qr")}));
    table.SetObj(2, 1, new VORKTRReportingFile(VORKTRReportingImage, "pic.png"));
    EXPECT_EQ(TextOf(table), Expected("table_of_items.txt"));
    EXPECT_EQ(HtmlOf(table), Expected("table_of_items.html"));
    const std::unique_ptr<int[]> widths(table.GetColsWidth());
    EXPECT_EQ(std::vector<int>(widths.get(), widths.get() + 2), std::vector<int>({5, 10}));
    EXPECT_EQ(table.GetWidthInChar(), 18);
}

} // namespace
