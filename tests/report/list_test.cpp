#include <cstddef>
#include <cstdlib>
#include <new>
#include <string>
#include <tuple>

#include <gtest/gtest.h>

#include "VORKTRReportingFloat.h"
#include "VORKTRReportingInt.h"
#include "VORKTRReportingList.h"
#include "VORKTRReportingTable.h"
#include "VORKTRReportingText.h"
#include "support/Rendering.h"

namespace
{

constexpr std::size_t None = ~std::size_t{0};
std::size_t FailingSize = None; // the next allocation of this size fails

void* Allocate(std::size_t iSize) noexcept
{
    if (iSize != FailingSize)
        return std::malloc(iSize);
    FailingSize = None;
    return nullptr;
}

} // namespace

void* operator new(std::size_t iSize)
{
    if (void* const memory = Allocate(iSize))
        return memory;
    throw std::bad_alloc();
}

void* operator new(std::size_t iSize, const std::nothrow_t&) noexcept
{
    return Allocate(iSize);
}

void operator delete(void* ioMemory) noexcept
{
    std::free(ioMemory);
}

void operator delete(void* ioMemory, std::size_t) noexcept
{
    std::free(ioMemory);
}

namespace
{

template <typename Item, typename Action>
void ExpectSuccessWithoutMemoryFor(Action iAction)
{
    FailingSize = sizeof(Item);
    EXPECT_EQ(iAction(), 0);
    EXPECT_EQ(FailingSize, None) << "there was memory";
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

TEST(List, LineWithoutMemoryForItsValueHasNone)
{
    VORKTRReportingList list('=');
    ExpectSuccessWithoutMemoryFor<VORKTRReportingFloat>(
        [&] { return list.addLine("Bc", 1.5f, "kN", "%g"); });
    ExpectSuccessWithoutMemoryFor<VORKTRReportingText>([&] { return list.addLine("", "t", ""); });
    ExpectSuccessWithoutMemoryFor<VORKTRReportingInt>(
        [&] { return list.addLine("D", 8, "", "%d"); });
    list.addLine("A", 5, "", "%d");
    EXPECT_EQ(TextOf(list), "  Bc = \n       \n  D  = \n  A  = 5 \n"); // the unit counts
    EXPECT_EQ(list.GetWidthInChar(), 9);
    EXPECT_EQ(HtmlOf(list), "<P>\n<TABLE BORDER=0>\n<TR>\n<TD ALIGN=LEFT>A</TD>\n"
                            "<TD ALIGN=CENTER>=</TD>\n<TD ALIGN=RIGHT>5</TD>\n"
                            "<TD ALIGN=LEFT>&nbsp;</TD>\n</TR>\n</TABLE>\n</P>\n\n");
}

TEST(Table, CellWithoutMemoryForItsItemIsEmpty)
{
    VORKTRReportingTable table(0x08);
    table.SetText(0, 0, "old");
    ExpectSuccessWithoutMemoryFor<VORKTRReportingFloat>(
        [&] { return table.SetFloat(0, 0, 1.5f, "%g"); });
    ExpectSuccessWithoutMemoryFor<VORKTRReportingText>([&] { return table.SetText(0, 1, "t"); });
    EXPECT_EQ(CellTextOf(table), "***\n***\n***\n");
}

} // namespace
