#include <climits>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <new>

#include <gtest/gtest.h>

#include "Program.h"
#include "support/ExpectedSite.h"

namespace
{

// The allocations of the process, as long as they are counted.
bool IsCounting = false;
int Count = 0;
int Failing = 0; // the allocation that fails; 0 for none
bool IsForGood = false;
int Living = 0; // allocated and not yet freed, counted or not

void* Allocate(std::size_t iSize)
{
    if (IsCounting && ++Count >= Failing && Failing > 0 && (IsForGood || Count == Failing))
        return nullptr;
    ++Living;
    return std::malloc(iSize > 0 ? iSize : 1);
}

void* AllocateOrThrow(std::size_t iSize)
{
    if (void* const place = Allocate(iSize))
        return place;
    throw std::bad_alloc();
}

void Free(void* iPlace)
{
    Living -= iPlace ? 1 : 0;
    std::free(iPlace);
}

} // namespace

void* operator new(std::size_t iSize)
{
    return AllocateOrThrow(iSize);
}
void* operator new[](std::size_t iSize)
{
    return AllocateOrThrow(iSize);
}
void* operator new(std::size_t iSize, const std::nothrow_t&) noexcept
{
    return Allocate(iSize);
}
void* operator new[](std::size_t iSize, const std::nothrow_t&) noexcept
{
    return Allocate(iSize);
}
void operator delete(void* iPlace) noexcept
{
    Free(iPlace);
}
void operator delete[](void* iPlace) noexcept
{
    Free(iPlace);
}
void operator delete(void* iPlace, std::size_t) noexcept
{
    Free(iPlace);
}
void operator delete[](void* iPlace, std::size_t) noexcept
{
    Free(iPlace);
}

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
    int left = 0;         ///< Not freed.
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
        const int before = Living;
        oFiles = ReadTree(path);
        read += Living - before;
    };
    const int descriptors = CountDescriptors();
    const int living = Living;
    Count = 0;
    Failing = iAllocation;
    IsForGood = iForGood;
    IsCounting = true;
    std::unique_ptr<Program> program;
    try {
        program = std::make_unique<Program>(path);
        oAllocations.filled = Count;
        outcome.isWhole = program->Write();
        outcome.text = program->text.ConvertToChar();
    } catch (const std::bad_alloc&) {
    }
    IsCounting = false;
    readTo(outcome.files);
    if (program)
        program->Rewrite();
    readTo(outcome.rewritten);
    program.reset();
    oAllocations.left = Living - living - read;
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
    const int allocations = Count;
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
    } while (allocation <= Count);
    EXPECT_GE(allocation, allocations);
    EXPECT_GT(seen, allocations * 9 / 10);
}

INSTANTIATE_TEST_SUITE_P(OnceAndForGood, MemorySweep, testing::Bool());

} // namespace
