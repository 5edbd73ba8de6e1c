#include <chrono>
#include <ctime>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "IncludedFile.h"
#include "VORMsgCatalog.h"
#include "VORStatus.h"
#include "support/Rendering.h"

namespace
{

namespace fs = std::filesystem;
using std::chrono::system_clock;

TEST_F(IncludedFile, IsMovedUnderANumberedName)
{
    fs::create_directory(temporary.Path("dir.d"));
    const char* const names[][2] = {{"a.gif", "file1.gif"},
                                    {"b.tar.gz", "file2.gz"},
                                    {"dir.d/plain", "file3"},
                                    {".hidden", "file4.hidden"}};
    for (const auto& [name, moved] : names) {
        WriteFile(site + "/" + moved, "an older and longer file");
        EXPECT_EQ(HtmlOf(*Send(AddFile(Source(name, name)))), Embedded(moved));
        EXPECT_EQ(Page(moved), name);
        EXPECT_FALSE(fs::exists(temporary.Path(name)));
    }
    EXPECT_EQ(report.GetIncludedFilesNumber(), 4);

    WriteFile(site + "/file5.gif", "its own target");
    EXPECT_EQ(HtmlOf(*Send(AddFile(site + "/./file5.gif"))), Embedded("file5.gif"));
    EXPECT_EQ(Page("file5.gif"), "its own target");
}

TEST_F(IncludedFile, BearsTheTimeUnlessNamesAreToRepeat)
{
    SetEnv("KTRReportODT", nullptr);
    // Not std::time, whose clock may be some milliseconds behind.
    const auto now = [] { return system_clock::to_time_t(system_clock::now()); };
    const std::time_t before = now();
    const std::string html = HtmlOf(*Send(AddFile(Source("a.gif"))));
    const std::string name = fs::directory_iterator(site)->path().filename().string();
    EXPECT_EQ(html, Embedded(name));
    const std::time_t time = std::stol(name.substr(6), nullptr, 16);
    char expected[32];
    std::snprintf(expected, sizeof expected, "file1_%08lx.gif", static_cast<unsigned long>(time));
    ASSERT_EQ(name, expected);
    EXPECT_TRUE(before <= time && time <= now()) << time;
}

TEST_F(IncludedFile, IsMovedOnceItCanBe)
{
    const std::string path = temporary.Path("a.gif");
    VORKTRReportingFile* const item = Send(AddFile(path)); // there is no such file yet
    Source("a.gif");
    item->SetBuffer(nullptr);
    Send(item);
    item->SetBuffer(&report);
    fs::create_directory(site + "/file2.gif");
    Send(item)->SetBufferData(nullptr); // the target cannot be written
    EXPECT_EQ(HtmlOf(*item), Embedded(path));
    EXPECT_EQ(ReadFile(path), "new");
    const VORUnicodeString other(temporary.Path());
    Send(item)->SetBufferData(&other);
    EXPECT_EQ(HtmlOf(*item), Embedded("file3.gif"));
    EXPECT_EQ(Page("file3.gif"), "new");
    EXPECT_EQ(report.GetIncludedFilesNumber(), 3);
}

TEST_F(IncludedFile, IsDeletedWithItsItem)
{
    Send(AddFile(temporary.Path("none.gif")));
    Send(AddFile(Source("moved.gif")));
    AddFile(Source("own.gif"));
    EXPECT_TRUE(fs::exists(site + "/file2.gif"));
    EXPECT_EQ(report.TakeWriteStatus(), VOR_E_FILE_NOT_FOUND);
    EXPECT_EQ(report.RemoveObject(0), Failure);
    EXPECT_EQ(report.TakeWriteStatus(), VOR_E_FILE_NOT_FOUND);
    EXPECT_EQ(report.RemoveObject(1) + report.RemoveObject(2), 0);
    EXPECT_FALSE(fs::exists(site + "/file2.gif") || fs::exists(temporary.Path("own.gif")));
}

TEST_F(IncludedFile, ShowsItsKind)
{
    std::string all;
    for (const int type : {0, 1, 2, 3, 4, 0}) {
        const VORKTRReportingFile item(static_cast<VORKTRReportingFileType>(type), "a&b.x");
        all += HtmlOf(item) + CellTextOf(item) + "\n" + TextOf(item);
        EXPECT_EQ(item.GetWidthInChar(), static_cast<int>(CellTextOf(item).size()));
    }
    for (const char* const caption : {"Abbildung ", "図 "}) {
        VORMsgCatalog::RegisterMessage("VORKTRReportingMessages", "Figure_Number", caption);
        const VORKTRReportingFile item(VORKTRReportingImage, "a&b.x");
        all += Written([&](unsigned int iFile) { item.Report_in_List(iFile, "", 0, 0, 1); });
    }
    EXPECT_EQ(all, Expected("included_files.txt"));
}

} // namespace
