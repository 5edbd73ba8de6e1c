#include <regex>
#include <string>
#include <thread>
#include <vector>

#include "ReportTest.h"
#include "VORComponent.h"
#include "VORIKTRReportingSettingAtt.h"
#include "VORStatus.h"
#include "support/ExpectedSite.h"
#include "sweep/Program.h"

namespace
{

thread_local std::string Paper;

/// Each thread's user has an image of their own.
struct PaperSettings : VORIKTRReportingSettingAtt {
    int GetDefaultBackground(unsigned char& oDefault) override { return oDefault = 0, VOR_S_OK; }
    int GetBackgroundPath(VORUnicodeString& oPath) override
    {
        return oPath = Paper.c_str(), VOR_S_OK;
    }
};

/// All that one report writes, without the numbers that the process shares.
Files FilesOfUser(int iNumber)
{
    const TemporaryDirectory root;
    const std::string paper = "paper" + std::to_string(iNumber);
    Paper = root.Path(paper + ".png");
    WriteFile(Paper, "paper");
    WriteSources(root);
    EXPECT_TRUE(Program(root.Path()).Write());
    const std::regex own(paper + "|Figure \\d+");
    Files files;
    for (const auto& [name, bytes] : ReadTree(root.Path()))
        files[std::regex_replace(name, own, "")] = std::regex_replace(bytes, own, "");
    return files;
}

using Threads = ReportTest;

TEST_F(Threads, DifferentReportsAreMadeInDifferentThreadsAtOnce)
{
    PrepareEnvironment("");
    VORRegisterComponent("VORKTRReportingSettingCtrl",
                         []() -> VORBaseUnknown* { return new PaperSettings; });
    const Files alone = FilesOfUser(0);
    std::vector<std::thread> threads;
    for (int number = 1; number <= 5; ++number)
        threads.emplace_back([number, &alone] {
            for (int time = 0; time < 9; ++time)
                EXPECT_TRUE(FilesOfUser(number) == alone) << "thread " << number;
        });
    for (std::thread& thread : threads)
        thread.join();
}

} // namespace
