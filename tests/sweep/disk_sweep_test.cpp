#include <cstdlib>

#include <gtest/gtest.h>

#include "Program.h"
#include "VORHostDisk.h"

namespace
{

int Operations = 0; // of the latest run

Files ReadRoot()
{
    Files files;
    for (const auto& [name, bytes] : VORHostDisk::ReadAll())
        files[name.substr(5)] = bytes;
    return files;
}

Outcome RunProgram(int iOperation, bool iForGood)
{
    VORHostDisk::Clear();
    for (const auto& [name, bytes] : Sources)
        VORHostDisk::PutFile("root/" + name, bytes);
    VORHostDisk::FailAt(iOperation, iForGood);
    Outcome outcome;
    {
        Program program("root");
        outcome.isWhole = program.Write();
        outcome.text = program.text.ConvertToChar();
        outcome.files = ReadRoot();
        Operations = VORHostDisk::GetOperationCount();
        if (!iForGood) {
            VORHostDisk::FailAt(0, false);
            program.Rewrite();
            outcome.rewritten = ReadRoot();
        }
    }
    EXPECT_EQ(VORHostDisk::GetOpenFileCount(), 0);
    return outcome;
}

class DiskSweep : public testing::TestWithParam<bool>
{
};

TEST_P(DiskSweep, NoFailureIsSilentOrHarmful)
{
    ::setenv("KTRReportODT", "1", 1);
    ::setenv("VORGraphicPath", "root/images", 1);
    const Outcome right = RunProgram(0, false);
    ASSERT_TRUE(right.isWhole);
    const int operations = Operations;
    int seen = 0;
    int operation = 0;
    do {
        SCOPED_TRACE("operation " + std::to_string(++operation));
        const Outcome outcome = RunProgram(operation, GetParam());
        ExpectWholeOrHarmless(outcome, right);
        seen += outcome.isWhole ? 0 : 1;
    } while (operation <= Operations);
    EXPECT_GE(operation, operations);
    EXPECT_GT(seen, operations * 9 / 10);
}

TEST(Update, DeletesPagesOnlyWhenTheStylesheetHasAPath)
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

INSTANTIATE_TEST_SUITE_P(OnceAndForGood, DiskSweep, testing::Bool());

} // namespace
