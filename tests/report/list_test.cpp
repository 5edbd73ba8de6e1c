#include <new>
#include <string>
#include <tuple>
#include <utility>

#include <gtest/gtest.h>

#include "ReportTest.h"
#include "VORKTRReportingList.h"
#include "VORKTRReportingTable.h"
#include "support/FailingMemory.h"
#include "support/Rendering.h"

namespace
{

template <typename Action>
void ExpectSuccessWithoutMemory(Action iAction)
{
    FailingMemory::FailAt(1);
    EXPECT_EQ(iAction(), 0);
    EXPECT_GT(FailingMemory::GetCount(), 0) << "no memory was asked for";
    FailingMemory::FailAt(0);
}

TEST(List, AlignsItsColumns)
{
    VORKTRReportingList units('=');
    units.addLine("Mass", 12.5f, "kg", "%.2f");
    units.addLine("Parts", 42, "", "%d");
    units.addLine("", "a<b", "mm²");
    units.addLine("σ max", -0.25, "N/mm²", "%g");
    VORKTRReportingList noUnits(':');
    noUnits.addLine("A", 5, "", "%d");
    noUnits.addLine("Bcd", "text", "");
    noUnits.addLine("", "α", "");
    VORKTRReportingList empty('=');
    std::string all;
    for (VORKTRReportingList* const list : {&units, &noUnits, &empty})
        all += TextOf(*list) + CellTextOf(*list) + HtmlOf(*list);
    EXPECT_EQ(all, Expected("lists.txt"));

    int label = 0, value = 0, unit = 0;
    units.GetColsWidth(label, value, unit);
    EXPECT_EQ(std::tuple(label, value, unit), std::tuple(5, 6, 5));
    EXPECT_EQ(units.GetWidthInChar(), 20);
    EXPECT_EQ(noUnits.GetWidthInChar(), 10);
    EXPECT_EQ(empty.GetWidthInChar(), 3);
}

TEST(List, TakesLinesOfAnyItem)
{
    {
        VORKTRReportingList list('=');
        list.addLine("σ", Bag({Text("p"), new Probe, Text("qr")}), "mm");
        auto* const table = new VORKTRReportingTable(0x08);
        table->SetText(0, 0, "x");
        list.addLine("Table", table, "");
        list.addLine("None", nullptr, "kN");
        EXPECT_EQ(TextOf(list) + HtmlOf(list), Expected("list_of_items.txt"));
        EXPECT_EQ(Probe::Destroyed, 0);
    }
    EXPECT_EQ(Probe::Destroyed, 1);
    VORKTRReportingList list('=');
    for (const int capacity : {5, 5, 5, 5, 5, 10, 10, 10, 10, 10, 15}) {
        EXPECT_EQ(list.addLine("", 1, "", "%d"), 0);
        EXPECT_EQ(list.GetAllocatedNumber(), capacity);
    }
}

TEST(List, LineWithoutMemoryForItsValueHasNone)
{
    VORKTRReportingList list('=');
    list.addLine("Bc", nullptr, "kN"); // room for the next
    ExpectSuccessWithoutMemory([&] { return list.addLine("Bc", 1.5f, "kN", "%g"); });
    ExpectSuccessWithoutMemory([&] { return list.addLine("", "t", ""); });
    ExpectSuccessWithoutMemory([&] { return list.addLine("D", 8, "", "%d"); });
    list.addLine("A", 5, "", "%d");
    EXPECT_EQ(TextOf(list), "  Bc = \n  Bc = \n       \n  D  = \n  A  = 5 \n"); // the unit counts
    EXPECT_EQ(list.GetWidthInChar(), 9);
}

TEST(Table, CellWithoutMemoryForItsItemIsEmpty)
{
    VORKTRReportingTable table(0x08);
    table.SetText(0, 0, "old");
    table.Reallocate(0, 1);
    ExpectSuccessWithoutMemory([&] { return table.SetFloat(0, 0, 1.5f, "%g"); });
    ExpectSuccessWithoutMemory([&] { return table.SetText(0, 1, "t"); });
    EXPECT_EQ(CellTextOf(table), "***\n***\n***\n");
}

TEST(Table, GridWithoutMemoryKeepsItsSize)
{
    VORKTRReportingTable table(0x08);
    table.SetText(0, 0, "a");
    for (const auto& [row, column] : {std::pair(0, 99), std::pair(49, 1)}) { // 100 cells
        FailingMemory::FailAtSize(100 * sizeof(VORKTRValue));
        EXPECT_THROW(table.SetObj(row, column, new Probe), std::bad_alloc);
        FailingMemory::FailAtSize(100 * sizeof(VORKTRValue));
        EXPECT_THROW(table.SetText(row, column, "b"), std::bad_alloc);
        EXPECT_EQ(std::pair(table.GetRowNumber(), table.GetColumnNumber()), std::pair(1, 1));
        EXPECT_EQ(CellTextOf(table), "***\n*a*\n***\n");
    }
    EXPECT_EQ(Probe::Destroyed, 2);
    table.SetText(1, 1, "b");
    EXPECT_EQ(CellTextOf(table), "*****\n*a* *\n* *b*\n*****\n");
}

} // namespace
