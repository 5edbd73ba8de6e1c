#include <cstdlib>

#include <gtest/gtest.h>

#include "Program.h"
#include "VORHostDisk.h"
#include "support/ExpectedSite.h"

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
