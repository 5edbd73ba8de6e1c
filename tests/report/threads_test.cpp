#include <regex>
#include <string>
#include <thread>
#include <vector>

#include "ReportTest.h"
#include "VORComponent.h"
#include "VORIKTRReportingSettingAtt.h"
#include "VORKTRReportingFile.h"
#include "VORKTRReportingFloat.h"
#include "VORKTRReportingList.h"
#include "VORKTRReportingTable.h"
#include "VORStatus.h"
#include "support/ExpectedSite.h"

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

void Fill(VORKTRReportingBuffer& ioReport, const TemporaryDirectory& iPlace)
{
    for (int page = 0; page < 5; ++page) {
        ioReport.AddObject(Title("Page " + std::to_string(page), 1));
        ioReport.AddObject(Text("a < b\n"));
        auto* const list = new VORKTRReportingList('=');
        list->addLine("first mode", 12.5 * page, "Hz", "%.2f");
        auto* const table = new VORKTRReportingTable(0x09);
        for (int row = 0; row < 50; ++row)
            table->SetFloat(row, row % 3, row / 7., row % 2 ? "%.3f" : "%9.2e");
        const std::string image = iPlace.Path(std::to_string(page) + ".gif");
        WriteFile(image, image.substr(iPlace.Path().size()));
        auto* const file = new VORKTRReportingFile(VORKTRReportingImage, image.c_str());
        ioReport.AddObject(Bag({list, table, file}));
    }
}

/// All that one report writes, without the numbers that the process shares.
std::map<std::string, std::string> SiteOfUser(int iNumber)
{
    const TemporaryDirectory place;
    const std::string paper = "paper" + std::to_string(iNumber);
    Paper = place.Path(paper + ".png");
    WriteFile(Paper, "paper");
    VORKTRReportingBuffer report;
    Fill(report, place);
    const std::string site = place.Path("site");
    EXPECT_EQ(report.MakeReport(site.c_str(), "Site"), 0);
    EXPECT_EQ(report.Update(), 0);
    EXPECT_EQ(report.TakeWriteStatus(), 0);
    VORUnicodeString text;
    report.MakeTextReport("Site", text);
    std::map<std::string, std::string> all = {{"text", text.ConvertToChar()}};
    for (const auto& [name, bytes] : ReadTree(site))
        all[std::regex_replace(name, std::regex(paper), "paper")] = std::regex_replace(
            std::regex_replace(bytes, std::regex(paper), "paper"), std::regex("Figure \\d+"), "");
    return all;
}

using Threads = ReportTest;

TEST_F(Threads, DifferentReportsAreMadeInDifferentThreadsAtOnce)
{
    SetEnv("KTRReportODT", "1");
    VORRegisterComponent("VORKTRReportingSettingCtrl",
                         []() -> VORBaseUnknown* { return new PaperSettings; });
    const auto alone = SiteOfUser(0);
    EXPECT_EQ(alone.size(), 17u);
    std::vector<std::thread> threads;
    for (int number = 1; number <= 5; ++number)
        threads.emplace_back([number, &alone] {
            for (int time = 0; time < 3; ++time)
                EXPECT_TRUE(SiteOfUser(number) == alone) << "thread " << number;
        });
    for (std::thread& thread : threads)
        thread.join();
}

} // namespace
