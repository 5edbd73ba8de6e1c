#include <string>
#include <tuple>

#include <gtest/gtest.h>

#include "ReportTest.h"
#include "VORKTRReportingInt.h"
#include "VORKTRReportingList.h"
#include "VORKTRReportingTable.h"
#include "support/Rendering.h"

namespace
{

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
    VORKTRReportingList list('=');
    list.addLine("σ", Bag({Text("p"), new Probe, Text("qr")}), "mm");
    auto* const table = new VORKTRReportingTable(0x08);
    table->SetText(0, 0, "x");
    list.addLine("Table", table, "");
    list.addLine("None", nullptr, "kN");
    EXPECT_EQ(TextOf(list) + HtmlOf(list), Expected("list_of_items.txt"));
    for (const int capacity : {5, 5, 10, 10, 10, 10, 10, 15}) {
        EXPECT_EQ(list.addLine("", 1, "", "%d"), 0);
        EXPECT_EQ(list.GetAllocatedNumber(), capacity);
    }
    list.addLine("", new VORKTRReportingInt(7, "%d"), "");
    list.addLine("", 1.5f, "", "%g");
    EXPECT_TRUE(Holds(HtmlOf(list), ">7</TD>\n<TD COLSPAN=2>&nbsp;</TD>\n"));
}

} // namespace
