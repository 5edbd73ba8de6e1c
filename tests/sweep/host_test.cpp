#include <cstdlib>
#include <memory>
#include <new>
#include <string>

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

TEST(Host, GivesTheBytesOfTheSystemsOwnLayer)
{
    const TemporaryDirectory directory;
    WriteSources(directory);
    ASSERT_EQ(std::system((WRITE_PROGRAM " " + directory.Path()).c_str()), 0);
    EXPECT_EQ(RunProgram(0, true).files, ReadTree(directory.Path()));
}

TEST(Host, NoFailureIsSilentOrHarmful)
{
    const Outcome right = RunProgram(0, false);
    for (const bool isForGood : {false, true})
        Sweep(right, [&](int iOperation) { return RunProgram(iOperation, isForGood); });
    EXPECT_EQ(RunProgram(1, true).files.size(), Sources.size() + 1) << "nothing is written";
}

// Fails an operation of the disk, 0 for none, and an allocation; returns whether that was reached.
bool RunWithout(int iAllocation, int iOperation)
{
    VORHostDisk::Clear();
    auto failing = std::make_unique<VORKTRReportingBuffer>();
    for (const char* const heading : {"One", "Two"})
        failing->AddObject(new VORKTRReportingTitle(heading, 1));
    VORHostDisk::FailAt(iOperation, false);
    FailingMemory::FailAt(iAllocation);
    try {
        failing->MakeReport("failing", "");
    } catch (const std::bad_alloc&) {
    }
    const bool isReached = FailingMemory::Count >= iAllocation;
    FailingMemory::FailAt(0);
    const bool hasFailed = iOperation > 0 && VORHostDisk::GetOperationCount() >= iOperation;
    VORHostDisk::FailAt(0, false);
    if (hasFailed) { // a page that is still open tells with the next run, which closes it
        failing->MakeReport("failing", "");
        EXPECT_LT(failing->TakeWriteStatus(), 0) << iAllocation << " " << iOperation;
    }
    unsigned int other = 0; // which the report must not close
    EXPECT_EQ(VORFOpen("other", "w", other), 0);
    failing.reset();
    EXPECT_EQ(VORFClose(other) + VORHostDisk::GetOpenFileCount(), 0) << iAllocation;
    return isReached;
}

TEST(Host, WithoutMemoryAPageKeepsItsNumberAndAReportItsStatus)
{
    for (int operation = 0; operation < 60; ++operation) {
        if (operation == 1)
            continue; // the look for the directory, which is then made
        for (int allocation = 1; RunWithout(allocation, operation);)
            ++allocation;
    }
}

/// Before main begins, and when all but static objects has ended.
struct StaticReport {
    ~StaticReport()
    {
        if (Write().find("<BODY B") == std::string::npos)
            std::abort();
    }
    std::string Write()
    {
        report.MakeReport("static", "");
        return VORHostDisk::ReadAll()["static/index.html"];
    }
    VORKTRReportingBuffer report;
    std::string early = Write();
} Static;

TEST(Host, AStaticReportIsWrittenBeforeMainAndAfterIt)
{
    EXPECT_NE(Static.early.find("<BODY BGCOLOR=\"#EEF3FF\">"), std::string::npos);
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
