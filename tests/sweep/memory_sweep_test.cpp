#include <climits>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <new>

#include <gtest/gtest.h>

#include "Program.h"
#include "support/ExpectedSite.h"
#include "support/FailingMemory.h"

namespace
{

namespace fs = std::filesystem;

int CountDescriptors()
{
    int count = 0;
    for ([[maybe_unused]] const auto& entry : fs::directory_iterator("/proc/self/fd"))
        ++count;
    return count;
}

/// Allocations of one run.
struct Allocations {
    int filled = INT_MAX; ///< Until all items were made.
    int all = 0;
    int left = 0; ///< Not freed.
};

Outcome RunProgram(int iAllocation, bool iForGood, Allocations& oAllocations)
{
    const TemporaryDirectory root;
    fs::create_directory(root.Path("images"));
    ::setenv("VORGraphicPath", root.Path("images").c_str(), 1);
    for (const auto& [name, bytes] : Sources)
        WriteFile(root.Path(name), bytes);
    const std::string path = root.Path();
    Outcome outcome;
    outcome.text.reserve(100000);
    oAllocations.filled = INT_MAX;
    int read = 0; // allocated by the test itself
    const auto readTo = [&](Files& oFiles) {
        const int before = FailingMemory::GetLiving();
        oFiles = ReadTree(path);
        read += FailingMemory::GetLiving() - before;
    };
    const int descriptors = CountDescriptors();
    const int living = FailingMemory::GetLiving();
    FailingMemory::FailAt(iAllocation, iForGood);
    std::unique_ptr<Program> program;
    try {
        program = std::make_unique<Program>(path);
        oAllocations.filled = FailingMemory::GetCount();
        outcome.isWhole = program->Write();
        outcome.text = program->text.ConvertToChar();
    } catch (const std::bad_alloc&) {
    }
    oAllocations.all = FailingMemory::GetCount();
    FailingMemory::FailAt(0);
    readTo(outcome.files);
    if (program && !iForGood)
        program->Rewrite();
    readTo(outcome.rewritten);
    FailingMemory::FailAt(1, true); // a report ends without any
    program.reset();
    FailingMemory::FailAt(0);
    oAllocations.left = FailingMemory::GetLiving() - living - read;
    EXPECT_EQ(CountDescriptors(), descriptors);
    return outcome;
}

class MemorySweep : public testing::TestWithParam<bool>
{
};

TEST_P(MemorySweep, NoFailureIsSilentOrHarmful)
{
    ::setenv("KTRReportODT", "1", 1);
    if (fs::is_directory("/dev/shm"))
        ::setenv("TMPDIR", "/dev/shm", 1); // quick
    Allocations run;
    RunProgram(0, false, run); // the process makes some things once
    const Outcome right = RunProgram(0, false, run);
    ASSERT_TRUE(right.isWhole);
    const int allocations = run.all;
    int seen = 0;
    int allocation = 0;
    do {
        SCOPED_TRACE("allocation " + std::to_string(++allocation));
        Outcome outcome = RunProgram(allocation, GetParam(), run);
        EXPECT_EQ(run.left, 0);
        seen += outcome.isWhole ? 0 : 1;
        // A cell or a list's value without memory is left empty.
        outcome.isWhole = outcome.isWhole && allocation > run.filled;
        ExpectWholeOrHarmless(outcome, right);
    } while (allocation <= run.all);
    EXPECT_GE(allocation, allocations);
    EXPECT_GT(seen, allocations * 9 / 10);
}

INSTANTIATE_TEST_SUITE_P(OnceAndForGood, MemorySweep, testing::Bool());

} // namespace
