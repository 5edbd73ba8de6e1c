#include <csignal>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <regex>
#include <string>
#include <utility>

#include <sys/resource.h>
#include <sys/stat.h>

#include <gtest/gtest.h>

#include "ReportTest.h"
#include "VORKTRReportingFile.h"
#include "VORMsgCatalog.h"
#include "VORStatus.h"
#include "support/Rendering.h"

namespace
{

namespace fs = std::filesystem;

class IncludedFile : public ReportTest
{
protected:
    IncludedFile()
    {
        ::setenv("KTRReportODT", "1", 1);
        fs::create_directory(site);
    }

    /// The path of a new file outside the site.
    std::string Source(const std::string& iName, const std::string& iBytes = "new")
    {
        WriteFile(temporary.Path(iName), iBytes);
        return temporary.Path(iName);
    }

    /// A sound of the report: its page shows nothing but its path.
    VORKTRReportingFile* AddFile(const std::string& iPath)
    {
        auto* const item = new VORKTRReportingFile(VORKTRReportingSound, iPath.c_str());
        Add({item});
        return item;
    }

    VORKTRReportingFile* Send(VORKTRReportingFile* ioItem)
    {
        const VORUnicodeString directory(site.c_str());
        ioItem->SetBufferData(&directory);
        return ioItem;
    }
};

std::string Embedded(const std::string& iPath)
{
    return "<P><CENTER><EMBED SRC=\"" + iPath + "\"></EMBED></CENTER></P>\n";
}

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
    ::unsetenv("KTRReportODT");
    const std::time_t before = std::time(nullptr);
    const std::string html = HtmlOf(*Send(AddFile(Source("a.gif"))));
    const std::string name = fs::directory_iterator(site)->path().filename().string();
    EXPECT_EQ(html, Embedded(name));
    ASSERT_TRUE(std::regex_match(name, std::regex("file1_[0-9a-f]{8}[.]gif"))) << name;
    const std::time_t time = std::stol(name.substr(6), nullptr, 16);
    EXPECT_TRUE(before <= time && time <= std::time(nullptr)) << time;
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
    Send(item); // the target cannot be written
    item->SetBufferData(nullptr);
    EXPECT_EQ(HtmlOf(*item), Embedded(path));
    EXPECT_EQ(ReadFile(path), "new");
    Send(item);
    const VORUnicodeString other(temporary.Path().c_str());
    item->SetBufferData(&other);
    EXPECT_EQ(HtmlOf(*item), Embedded("file3.gif"));
    EXPECT_EQ(Page("file3.gif"), "new");
    EXPECT_EQ(report.GetIncludedFilesNumber(), 3);
}

TEST_F(IncludedFile, IsARegularFileOfTheSitesOwn)
{
    const std::string kept = Source("kept", "what links lead to");
    fs::create_directory(temporary.Path("a.dir"));
    ASSERT_EQ(::mkfifo(temporary.Path("a.pipe").c_str(), 0600), 0);
    const std::pair<const char*, std::string> links[] = {
        {"a.link", kept}, {"b.link", kept}, {"c.link", site + "/file6.link"}, {"d.link", "none"}};
    for (const auto& [name, target] : links)
        fs::create_symlink(target, temporary.Path(name));
    fs::create_hard_link(Source("a.hard", "hard"), site + "/file3.hard");
    fs::create_symlink(kept, site + "/file5.link");
    WriteFile(site + "/file6.link", "a link's own target");
    const struct {
        const char *name, *moved, *bytes;
        int status;
    } cases[] = {{"a.dir", nullptr, nullptr, VOR_E_ACCESS_DENIED},
                 {"a.pipe", nullptr, nullptr, VOR_E_ACCESS_DENIED},
                 {"a.hard", "file3.hard", "hard", 0},
                 {"a.link", "file4.link", "what links lead to", 0},
                 {"b.link", "file5.link", "what links lead to", 0},
                 {"c.link", "file6.link", "a link's own target", 0},
                 {"d.link", nullptr, nullptr, VOR_E_FILE_NOT_FOUND}};
    for (const auto& one : cases) {
        const std::string path = temporary.Path(one.name);
        EXPECT_EQ(HtmlOf(*Send(AddFile(path))), Embedded(one.moved ? one.moved : path));
        EXPECT_EQ(report.TakeWriteStatus(), one.status) << one.name;
        EXPECT_EQ(fs::exists(fs::symlink_status(path)), !one.moved) << one.name;
        if (one.moved) {
            EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(site + "/" + one.moved)));
            EXPECT_EQ(Page(one.moved), one.bytes);
        }
    }
    EXPECT_EQ(ReadFile(kept), "what links lead to");
    EXPECT_EQ(HtmlOf(*Send(AddFile("/proc/self/mem"))), Embedded("file8")); // opens, is not read
    EXPECT_EQ(report.TakeWriteStatus(), VOR_E_FAIL);
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
    EXPECT_EQ(report.RemoveObject(1), 0);
    EXPECT_EQ(report.RemoveObject(2), 0);
    EXPECT_FALSE(fs::exists(site + "/file2.gif"));
    EXPECT_FALSE(fs::exists(temporary.Path("own.gif")));
}

dev_t DeviceOf(const std::string& iPath)
{
    struct stat status = {};
    return ::stat(iPath.c_str(), &status) == 0 ? status.st_dev : 0;
}

TEST_F(IncludedFile, IsCopiedFromAnotherFileSystemAndDeletedWhenItArrivedWhole)
{
    for (const char* const place : {"/dev/shm", "/run", "/var/tmp", "."}) {
        ::setenv("TMPDIR", place, 1);
        if (fs::exists(place) && DeviceOf(place) != DeviceOf(site))
            break;
    }
    const TemporaryDirectory far;
    ASSERT_NE(DeviceOf(far.Path()), DeviceOf(site)) << "no second file system";
    std::string bytes;
    for (int i = 0; i < 100001; ++i)
        bytes += static_cast<char>(i % 251);
    WriteFile(far.Path("a.gif"), bytes);

    fs::create_symlink(Source("other"), site + "/file1.gif"); // is replaced, not followed
    EXPECT_EQ(HtmlOf(*Send(AddFile(far.Path("a.gif")))), Embedded("file1.gif"));
    EXPECT_TRUE(Page("file1.gif") == bytes);
    EXPECT_EQ(ReadFile(temporary.Path("other")), "new");
    EXPECT_FALSE(fs::exists(far.Path("a.gif")));

    WriteFile(far.Path("b.gif"), bytes);
    std::signal(SIGXFSZ, SIG_IGN);
    struct rlimit limit;
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &limit), 0);
    limit.rlim_cur = bytes.size() - 1;
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
    EXPECT_EQ(HtmlOf(*Send(AddFile(far.Path("b.gif")))), Embedded("file2.gif"));
    EXPECT_TRUE(ReadFile(far.Path("b.gif")) == bytes);
    EXPECT_EQ(report.TakeWriteStatus(), VOR_E_DISK_FULL);
}

TEST_F(IncludedFile, ShowsItsKind)
{
    std::string all;
    for (const int type : {0, 1, 2, 3, 4, 0}) {
        const VORKTRReportingFile item(static_cast<VORKTRReportingFileType>(type), "a&b.x");
        EXPECT_EQ(item.GetType(), 6);
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
