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

TEST(Table, GrowsToTheCellThatIsSet)
{
    Table table(0x08);
    EXPECT_EQ(TextOf(table) + HtmlOf(table), "");
    EXPECT_EQ(table.GetWidthInChar(), 1);
    EXPECT_EQ(table.SetText(0, 0, "a"), 0);
    EXPECT_EQ(table.SetText(2, 1, "b"), 0);
    EXPECT_EQ(table.SetText(0, 5, "c"), 0);
    EXPECT_EQ(table.SetText(1, 0, "d"), 0);
    EXPECT_EQ(table.GetRowNumber(), 3);
    EXPECT_EQ(table.GetColumnNumber(), 6);
    EXPECT_EQ(CellTextOf(table), "**********\n*a* ****c*\n*d* **** *\n* *b**** *\n**********\n");
}

TEST(Table, OwnsWhatItTakes)
{
    {
        Table table(0);
        Probe refused;
        EXPECT_EQ(table.SetObj(-1, 0, &refused), Failure);
        EXPECT_EQ(table.SetObj(0, -1, &refused), Failure);
        EXPECT_EQ(table.SetObj(0, 0, nullptr), Failure);
        EXPECT_EQ(table.SetInt(-1, 0, 1, "%d"), Failure);
        EXPECT_EQ(table.SetFloat(0, -1, 1.f, "%g"), Failure);
        EXPECT_EQ(table.SetFloat(-1, 0, 1., "%g"), Failure);
        EXPECT_EQ(table.SetText(0, -1, "x"), Failure);
        EXPECT_EQ(table.GetRowNumber() + table.GetColumnNumber(), 0);
        EXPECT_EQ(table.SetObj(0, 0, new Probe), 0);
        EXPECT_EQ(table.SetObj(2, 3, new Probe), 0);
        EXPECT_EQ(Probe::Destroyed, 0);
        EXPECT_EQ(table.SetInt(0, 0, 1, "%d"), 0);
        EXPECT_EQ(Probe::Destroyed, 1);
    }
    EXPECT_EQ(Probe::Destroyed, 3);
}

/// A cell that shows the style byte it is given.
class StyleProbe : public Probe
{
public:
    void Report_in_Table(unsigned int iFile, const char*, unsigned char, unsigned int,
                         char iHeader) const override
    {
        const std::string mark = std::to_string(int{iHeader}) + "\n";
        VORFWrite(iFile, mark.data(), mark.size(), nullptr);
    }
};

TEST(Table, CellsAreToldTheStyleOfTheirRowAndColumn)
{
    // The bits of the style that each of two columns takes in one to three rows.
    const std::vector<std::vector<int>> tables[] = {
        {{7, 3}}, {{5, 1}, {6, 2}}, {{5, 1}, {4, 0}, {6, 2}}};
    for (int style = 0; style < 32; ++style) {
        const bool isCentered = style < 16;
        const std::string border = style % 16 < 8 ? "0" : "2";
        for (const auto& rows : tables) {
            Table table(static_cast<unsigned long>(style));
            std::string html = isCentered ? "<BR>\n<CENTER>\n" : "<P>\n\n";
            html += "<TABLE BORDER=" + border + " CELLPADDING=5>\n";
            for (const std::vector<int>& bits : rows) {
                const int row = table.GetRowNumber();
                EXPECT_EQ(table.SetObj(row, 0, new StyleProbe), 0);
                EXPECT_EQ(table.SetObj(row, 1, new StyleProbe), 0);
                html += "<TR>\n" + std::to_string(style & bits[0]) + "\n" +
                        std::to_string(style & bits[1]) + "\n</TR>\n";
            }
            EXPECT_EQ(HtmlOf(table), html + "</TABLE>\n" + (isCentered ? "</CENTER>\n" : "</P>\n"));
        }
    }
}

TEST(Table, StylesDrawRulesAndSeparators)
{
    std::string text;
    for (int rows = 1; rows <= 3; ++rows) {
        for (const unsigned long style : {0x00ul, 0x01ul, 0x02ul, 0x03ul, 0x04ul, 0x08ul, 0x15ul}) {
            Table table(style);
            for (int cell = 0; cell < 3 * rows; ++cell)
                table.SetText(cell / 3, cell % 3, std::string(1, "abcdefghi"[cell]).c_str());
            text += std::to_string(rows) + " rows, style " + std::to_string(style) + "\n" +
                    CellTextOf(table);
        }
    }
    EXPECT_EQ(text, Expected("table_styles.txt"));
}

TEST(Table, PadsItsCellsAndCentresItselfWhileItFits)
{
    const auto nested = CellTextOf;
    const auto onPage = TextOf;
    // Width without and with padding, indent, blanks on both sides of each cell.
    const struct {
        std::string (*draw)(const VORKTRReportingObj&);
        unsigned long style;
        int columns, bare, width, indent, left, right;
    } cases[] = {
        {onPage, 0x08, 1, 5, 7, 36, 1, 1},  {onPage, 0x08, 1, 75, 77, 1, 1, 1},
        {onPage, 0x08, 1, 76, 78, 1, 1, 1}, {onPage, 0x08, 1, 77, 79, 0, 1, 1},
        {onPage, 0x08, 1, 78, 79, 0, 0, 1}, {onPage, 0x08, 1, 79, 79, 0, 0, 0},
        {onPage, 0x08, 1, 80, 80, 0, 0, 0}, {onPage, 0x08, 1, 81, 81, 0, 0, 0},
        {onPage, 0x08, 2, 75, 79, 0, 1, 1}, {onPage, 0x08, 2, 76, 78, 1, 0, 1},
        {onPage, 0x08, 2, 77, 79, 0, 0, 1}, {onPage, 0x08, 2, 78, 78, 1, 0, 0},
        {onPage, 0x08, 3, 77, 77, 1, 0, 0}, {onPage, 0x18, 1, 5, 7, 2, 1, 1},
        {onPage, 0x18, 1, 75, 77, 2, 1, 1}, {onPage, 0x18, 1, 76, 78, 1, 1, 1},
        {onPage, 0x18, 1, 77, 79, 0, 1, 1}, {onPage, 0x18, 1, 81, 81, 0, 0, 0},
        {nested, 0x08, 1, 5, 5, 0, 0, 0},   {nested, 0x08, 2, 76, 76, 0, 0, 0},
        {nested, 0x18, 1, 77, 77, 2, 0, 0}, {nested, 0x18, 1, 78, 78, 1, 0, 0},
        {nested, 0x18, 1, 79, 79, 0, 0, 0},
    };
    for (const auto& [draw, style, columns, bare, width, indent, left, right] : cases) {
        Table table(style);
        const std::string rule = Repeat(indent, " ") + Repeat(width, "*") + "\n";
        std::string row = Repeat(indent, " ") + "*";
        for (int column = 0; column < columns; ++column) {
            const std::string cell = Repeat(column == 0 ? bare - 2 * columns : 1, "²");
            table.SetText(0, column, cell.c_str());
            row += Repeat(left, " ") + cell + Repeat(right, " ") + "*";
        }
        EXPECT_EQ(table.GetWidthInChar(), bare);
        EXPECT_EQ(draw(table), rule + row + "\n" + rule) << columns << " columns, " << bare;
    }
}

TEST(Table, CentresLinesInTheirCells)
{
    EXPECT_EQ(CellTextOf(*TableOf(0x08, {{"a\nb\nc\nd", "x", "p\nq\n", "", "y\n\nz", "r\n\n"}})),
              "************\n"
              "*a* * **y* *\n"
              "*b*x*p** *r*\n"
              "*c* *q**z* *\n"
              "*d* * ** * *\n"
              "************\n");
    EXPECT_EQ(CellTextOf(*TableOf(0x08, {{"wide5"}, {"ab"}, {"abcd"}, {"mm²"}, {"σ α\nµ"}})),
              "*******\n"
              "*wide5*\n"
              "*  ab *\n"
              "* abcd*\n"
              "* mm² *\n"
              "* σ α *\n"
              "*  µ  *\n"
              "*******\n");
    Table outer(0x08); // its cell prints wider than it says
    outer.SetObj(0, 0, TableOf(0x10, {{"x"}}).release());
    outer.SetText(0, 1, "y");
    EXPECT_EQ(CellTextOf(outer), "*******\n*   x *y*\n*******\n");
}

TEST(Table, CellsHoldItemsOfEveryKind)
{
    VORKTRReportingBuffer report;
    auto* const title = Title("Loads", 1);
    title->SetBuffer(&report);
    auto* const list = new VORKTRReportingList('=');
    list->addLine("F", 1, "kN", "%d");
    list->addLine("No", 20, "", "%d");
    auto* const bag = Bag({Text("p\n"), Text("qr")});
    Table table(0x08);
    table.SetObj(0, 0, title);
    table.SetObj(0, 1, list);
    table.SetObj(1, 0, TableOf(0x08, {{"a", "b"}}).release());
    table.SetObj(1, 1, bag);
    table.SetObj(2, 1, new VORKTRReportingFile(VORKTRReportingImage, "pic.png"));
    EXPECT_EQ(TextOf(table), Expected("table_of_items.txt"));
    EXPECT_EQ(HtmlOf(table), Expected("table_of_items.html"));
    const std::unique_ptr<int[]> widths(table.GetColsWidth());
    EXPECT_EQ(std::vector<int>(widths.get(), widths.get() + 2), std::vector<int>({5, 10}));
    EXPECT_EQ(table.GetWidthInChar(), 18);
    EXPECT_EQ(Written([&](unsigned int iFile) { bag->Report_in_List(iFile, "", 0, 0, 1); }),
              "<TD ALIGN=RIGHT COLSPAN=3><p>p<BR>\n</p>\n<p>qr</p>\n</TD>\n");
}

TEST(Table, NestsFiftyDeep)
{
    auto table = TableOf(0x08, {{"x"}});
    for (int depth = 2; depth <= 50; ++depth) {
        auto outer = std::make_unique<Table>(0x08);
        outer->SetObj(0, 0, table.release());
        table = std::move(outer);
    }
    const std::string half = Repeat(50, Repeat(101, "*") + "\n");
    EXPECT_EQ(TextOf(*table), half + Repeat(50, "*") + "x" + Repeat(50, "*") + "\n" + half);
    EXPECT_EQ(table->GetWidthInChar(), 101);
}

} // namespace
