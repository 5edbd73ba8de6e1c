// Where the library gets its memory from the program's operator new: a DLL has its own.

#include <new>
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
    for (const auto& [row, column] : {std::pair(0, 99), std::pair(49, 1)}) {
        auto* const probe = new Probe;
        FailingMemory::FailAt(1);
        EXPECT_THROW(table.SetObj(row, column, probe), std::bad_alloc);
        FailingMemory::FailAt(1);
        EXPECT_THROW(table.SetText(row, column, "b"), std::bad_alloc);
        EXPECT_EQ(std::pair(table.GetRowNumber(), table.GetColumnNumber()), std::pair(1, 1));
        EXPECT_EQ(CellTextOf(table), "***\n*a*\n***\n");
    }
    EXPECT_EQ(Probe::Destroyed, 2);
    table.SetText(1, 1, "b");
    EXPECT_EQ(CellTextOf(table), "*****\n*a* *\n* *b*\n*****\n");
}

} // namespace
