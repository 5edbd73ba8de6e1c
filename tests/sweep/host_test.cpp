#include <algorithm>
#include <cstdlib>
#include <memory>
#include <new>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "Program.h"
#include "VORFile.h"
#include "VORHostDisk.h"
#include "VORKTRReportingTitle.h"
#include "support/ExpectedSite.h"
#include "support/FailingMemory.h"

namespace
{

Files ReadRoot()
{
    Files files;
    for (const auto& [name, bytes] : VORHostDisk::ReadAll()) {
        if (name != "root/")
            files[name.substr(5)] = bytes;
    }
    return files;
}

Outcome RunProgram(int iOperation, bool iForGood)
{
    PrepareEnvironment("root/images");
    VORHostDisk::Clear();
    for (const auto& [name, bytes] : Sources)
        VORHostDisk::PutFile("root/" + name, bytes);
    VORHostDisk::FailAt(iOperation, iForGood);
    Outcome outcome;
    {
        Program program("root");
        outcome.isWhole = program.Write();
        outcome.points = VORHostDisk::GetOperationCount();
        outcome.files = ReadRoot();
        VORHostDisk::FailAt(0, false);
        program.Rewrite();
        outcome.rewritten = ReadRoot();
    }
    outcome.left = VORHostDisk::GetOpenFileCount();
    return outcome;
}

/// Written before main begins, and when all but static objects has ended.
struct StaticReport {
    ~StaticReport()
    {
        if (!IsWritten())
            std::abort();
    }
    bool IsWritten()
    {
        report.MakeReport("static", "");
        return VORHostDisk::ReadAll()["static/index.html"].find("<BODY B") != std::string::npos;
    }
    VORKTRReportingBuffer report;
    bool isEarly = IsWritten();
} Static;

TEST(Host, GivesTheBytesOfTheSystemsOwnLayer)
{
    const TemporaryDirectory directory;
    WriteSources(directory);
    ASSERT_EQ(std::system((WRITE_PROGRAM " " + directory.Path()).c_str()), 0);
    EXPECT_EQ(RunProgram(0, true).files, ReadTree(directory.Path()));
    EXPECT_TRUE(Static.isEarly);
}

TEST(Host, NoFailureIsSilentOrHarmful)
{
    const Outcome right = RunProgram(0, false);
    for (const bool isForGood : {false, true})
        Sweep(right, [&](int iOperation) { return RunProgram(iOperation, isForGood); });
    EXPECT_EQ(RunProgram(1, true).files.size(), Sources.size() + 1) << "nothing is written";
}

// Fails an operation of the disk and an allocation, 0 for none. Returns how many there were of
// each.
std::pair<int, int> RunWithout(int iOperation, int iAllocation)
{
    VORHostDisk::PutFile("images/Corp.gif", "the background");
    VORHostDisk::PutFile("failing/main.css", "older");
    auto failing = std::make_unique<VORKTRReportingBuffer>();
    for (const char* const heading : {"One", "Two"})
        failing->AddObject(new VORKTRReportingTitle(heading, 1));
    VORHostDisk::FailAt(iOperation, false);
    FailingMemory::FailAt(iAllocation);
    try {
        failing->MakeReport("failing", "");
    } catch (const std::bad_alloc&) {
    }
    const std::pair points(VORHostDisk::GetOperationCount(), int{FailingMemory::Count});
    FailingMemory::FailAt(0);
    VORHostDisk::FailAt(0, false);
    if (0 < iOperation && iOperation <= points.first) {
        failing->MakeReport("failing", ""); // a page that is still open tells as this closes it
        EXPECT_LT(failing->TakeWriteStatus(), 0) << iAllocation << " " << iOperation;
    }
    unsigned int other = 0; // which the report must not close
    EXPECT_EQ(VORFOpen("other", "w", other), 0);
    failing.reset();
    EXPECT_EQ(VORFClose(other) + VORHostDisk::GetOpenFileCount(), 0) << iAllocation;
    VORHostDisk::Clear();
    EXPECT_TRUE(Static.IsWritten()) << iAllocation;
    return points;
}

TEST(Host, WithoutMemoryAPageKeepsItsNumberAndAReportItsStatus)
{
    PrepareEnvironment("images");
    for (int operation = 0, operations = 0; operation <= operations; ++operation) {
        std::pair points(0, 0);
        for (int allocation = 1; points.second >= allocation - 1; ++allocation)
            points = RunWithout(operation, allocation);
        operations = std::max(operations, points.first);
    }
}

TEST(Host, PagesAreDeletedOnlyWhenTheStylesheetHasAPath)
{
    for (const std::size_t length : {239u, 244u}) { // "/navigation.css" makes it 254 or 259
        const std::string directory(length, 'd');
        VORKTRReportingBuffer report;
        ASSERT_EQ(report.MakeReport(directory.c_str(), ""), 0);
        VORHostDisk::PutFile(directory + "/page1.html", "");
        report.GetPagesNumber() = '1';
        EXPECT_EQ(report.Update(), 0);
        EXPECT_EQ(VORHostDisk::ReadAll().count(directory + "/page1.html"), length > 240 ? 1u : 0u);
    }
}

} // namespace
