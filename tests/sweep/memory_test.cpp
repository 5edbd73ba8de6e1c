#include <climits>
#include <memory>
#include <new>
#include <tuple>

#include <gtest/gtest.h>

#include "Program.h"
#include "VORFile.h"
#include "VORKTRReportingList.h"
#include "VORKTRReportingTable.h"
#include "support/ExpectedSite.h"
#include "support/FailingMemory.h"
#include "support/Rendering.h"

namespace
{

namespace fs = std::filesystem;

int CountDescriptors()
{
    const fs::directory_iterator open("/proc/self/fd");
    return static_cast<int>(std::distance(begin(open), end(open)));
}

Outcome RunProgram(int iAllocation, bool iForGood)
{
    const TemporaryDirectory root;
    WriteSources(root);
    const std::string path = root.Path();
    PrepareEnvironment(path + "/images");
    Outcome outcome;
    int filled = INT_MAX; // allocations until all items were made
    int read = 0;         // allocated by the test itself
    const auto readTo = [&](Files& oFiles) {
        const int before = FailingMemory::Living;
        oFiles = ReadTree(path);
        read += FailingMemory::Living - before;
    };
    const int descriptors = CountDescriptors();
    const int living = FailingMemory::Living;
    FailingMemory::FailAt(iAllocation, iForGood);
    std::unique_ptr<Program> program;
    try {
        program = std::make_unique<Program>(path);
        filled = FailingMemory::Count;
        outcome.isWhole = program->Write();
    } catch (const std::bad_alloc&) {
    }
    outcome.points = FailingMemory::Count;
    outcome.mayLack = iAllocation <= filled;
    FailingMemory::FailAt(0);
    readTo(outcome.files);
    if (program)
        program->Rewrite();
    readTo(outcome.rewritten);
    FailingMemory::FailAt(1, true); // a report ends without any
    program.reset();
    FailingMemory::FailAt(0);
    outcome.left = FailingMemory::Living - living - read + CountDescriptors() - descriptors;
    return outcome;
}

TEST(Memory, NoFailureIsSilentOrHarmful)
{
    if (fs::is_directory("/dev/shm"))
        SetEnv("TMPDIR", "/dev/shm"); // quick
    RunProgram(0, false);             // the process makes some things once
    const Outcome right = RunProgram(0, false);
    for (const bool isForGood : {false, true})
        Sweep(right, [&](int iAllocation) { return RunProgram(iAllocation, isForGood); });
}

template <typename Action>
void ExpectSuccessWithoutMemory(Action iAction)
{
    FailingMemory::FailAt(1);
    const int status = iAction();
    const int allocations = FailingMemory::Count;
    FailingMemory::FailAt(0);
    EXPECT_EQ(status, 0);
    EXPECT_GT(allocations, 0) << "no memory was asked for";
}

constexpr const char* LongFormat = "too long for a string without memory: %g";

TEST(Memory, ALineOrCellWithoutItHasNoValueAndAGridItsSize)
{
    VORKTRReportingList list('=');
    list.addLine("Bc", nullptr, "kN"); // room for the next
    ExpectSuccessWithoutMemory([&] { return list.addLine("Bc", 1.5f, "kN", LongFormat); });
    ExpectSuccessWithoutMemory([&] { return list.addLine("", "t", ""); });
    ExpectSuccessWithoutMemory([&] { return list.addLine("D", 8, "", LongFormat); });
    list.addLine("A", 5, "", "%d");
    EXPECT_EQ(TextOf(list), "  Bc = \n  Bc = \n       \n  D  = \n  A  = 5 \n"); // the unit counts
    EXPECT_EQ(list.GetWidthInChar(), 9);

    VORKTRReportingTable table(0x08);
    table.SetText(0, 0, "a");
    for (const auto& [row, column, missing] : // the last has more cells than 32 bits can count
         {std::tuple(0, 999, 1), std::tuple(49, 1, 1), std::tuple(65535, 65535, 2)}) {
        auto* const item = new VORKTRReportingList('=');
        const int living = FailingMemory::Living;
        FailingMemory::FailAt(missing);
        EXPECT_THROW(table.SetObj(row, column, item), std::bad_alloc);
        EXPECT_LT(FailingMemory::Living, living) << "the item is not freed";
        EXPECT_EQ(std::pair(table.GetRowNumber(), table.GetColumnNumber()), std::pair(1, 1));
    }
    FailingMemory::FailAt(1, true);
    EXPECT_EQ(table.SetInt(0, 1, 7, LongFormat), 0); // its number needs memory, its cell none
    FailingMemory::FailAt(0);
    table.SetText(1, 1, "b");
    EXPECT_EQ(CellTextOf(table), "*****\n*a* *\n* *b*\n*****\n");
    ExpectSuccessWithoutMemory([&] { return table.SetText(0, 0, "t"); });
    ExpectSuccessWithoutMemory([&] { return table.SetFloat(1, 0, 1.5f, LongFormat); });
    EXPECT_EQ(CellTextOf(table), "****\n** *\n**b*\n****\n");
}

TEST(Memory, HandlesEndWithoutAPlaceForTheirFiles)
{
    unsigned int file = 0, count = 0;
    FailingMemory::FailAt(1, true);
    while (VORFReserve(file, VOR_E_FAIL) == VOR_S_OK)
        ++count;
    FailingMemory::FailAt(0);
    EXPECT_LT(count, 1000u);
    while (VORFReserve(file, VOR_E_FAIL) == VOR_S_OK)
        ++count;
    EXPECT_EQ(count, 65536u);
    EXPECT_EQ(file, 0u);
}

} // namespace
