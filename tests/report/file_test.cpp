#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <memory>
#include <string>

#include <sys/resource.h>
#include <sys/stat.h>

#include <gtest/gtest.h>

#include "ReportTest.h"
#include "VORKTRReportingFile.h"
#include "VORMsgCatalog.h"
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
        VORKTRReportingFile* const item = Send(AddFile(Source(name, name)));
        EXPECT_EQ(HtmlOf(*item), Embedded(moved));
        EXPECT_EQ(Page(moved), name);
        EXPECT_FALSE(fs::exists(temporary.Path(name)));
    }
    EXPECT_EQ(report.GetIncludedFilesNumber(), 4);
}

TEST_F(IncludedFile, BearsTheTimeUnlessNamesAreToRepeat)
{
    ::unsetenv("KTRReportODT");
    for (const std::string extension : {".gif", ""}) {
        const std::time_t before = std::time(nullptr);
        VORKTRReportingFile* const item = Send(AddFile(Source("a" + extension)));
        std::string expected;
        for (std::time_t time = before; time <= std::time(nullptr); ++time) {
            char name[40];
            std::snprintf(name, sizeof name, "file%d_%lx", extension.empty() ? 2 : 1,
                          static_cast<unsigned long>(time));
            if (fs::exists(site + "/" + name + extension))
                expected = name + extension;
        }
        EXPECT_EQ(HtmlOf(*item), Embedded(expected));
    }
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
    EXPECT_FALSE(fs::exists(path));
}

TEST_F(IncludedFile, MayBeItsOwnTarget)
{
    WriteFile(site + "/file1.gif", "new");
    VORKTRReportingFile* const item = Send(AddFile(site + "/./file1.gif"));
    EXPECT_EQ(HtmlOf(*item), Embedded("file1.gif"));
    EXPECT_EQ(Page("file1.gif"), "new");
}

TEST_F(IncludedFile, IsDeletedWithItsItem)
{
    Send(AddFile(temporary.Path("none.gif")));
    Send(AddFile(Source("moved.gif")));
    AddFile(Source("own.gif"));
    EXPECT_TRUE(fs::exists(site + "/file2.gif"));
    EXPECT_EQ(report.RemoveObject(0), Failure);
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

/// A file on another file system than the site.
class FarFile : public IncludedFile
{
protected:
    void SetUp() override
    {
        for (const char* const place : {"/dev/shm", "/run", "/var/tmp", "."}) {
            ::setenv("TMPDIR", place, 1);
            if (fs::exists(place) && DeviceOf(place) != DeviceOf(site))
                break;
        }
        _Directory = std::make_unique<TemporaryDirectory>();
        ASSERT_NE(DeviceOf(_Directory->Path()), DeviceOf(site)) << "no second file system";
        for (int i = 0; i < 100001; ++i)
            bytes += static_cast<char>(i % 251);
        path = _Directory->Path("a.gif");
        WriteFile(path, bytes);
    }

    std::string path;
    std::string bytes;

private:
    std::unique_ptr<TemporaryDirectory> _Directory;
};

TEST_F(FarFile, IsCopiedAndDeleted)
{
    fs::create_symlink(Source("other"), site + "/file1.gif"); // is replaced, not followed
    EXPECT_EQ(HtmlOf(*Send(AddFile(path))), Embedded("file1.gif"));
    EXPECT_TRUE(Page("file1.gif") == bytes);
    EXPECT_EQ(ReadFile(temporary.Path("other")), "new");
    EXPECT_FALSE(fs::exists(path));
}

TEST_F(FarFile, StaysWhenItsCopyEndedShort)
{
    VORKTRReportingFile* const item = AddFile(path);
    std::signal(SIGXFSZ, SIG_IGN);
    struct rlimit before;
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const struct rlimit low = {bytes.size() - 1, before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &low), 0);
    Send(item);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &before), 0);
    EXPECT_EQ(HtmlOf(*item), Embedded("file1.gif"));
    EXPECT_TRUE(ReadFile(path) == bytes);
}

TEST_F(IncludedFile, ShowsItsKind)
{
    const struct {
        int type;
        std::string word;
        int margin;
    } cases[] = {{0, "[Image]", 36}, {1, "[VRML]", 37}, {2, "[Animation]", 34},
                 {3, "[Sound]", 36}, {4, "", 40},       {0, "[Image]", 36}};
    std::string html;
    for (const auto& [type, word, margin] : cases) {
        const VORKTRReportingFile item(static_cast<VORKTRReportingFileType>(type), "a&b.x");
        html += HtmlOf(item);
        EXPECT_EQ(CellTextOf(item), word);
        EXPECT_EQ(TextOf(item), Repeat(margin, " ") + word + "\n");
        EXPECT_EQ(item.GetWidthInChar(), static_cast<int>(word.size()));
    }
    for (const char* const caption : {"Abbildung ", "図 "}) {
        VORMsgCatalog::RegisterMessage("VORKTRReportingMessages", "Figure_Number", caption);
        const VORKTRReportingFile item(VORKTRReportingImage, "a&b.x");
        html += Written([&](unsigned int iFile) { item.Report_in_List(iFile, "", 0, 0, 1); });
    }
    EXPECT_EQ(html, Expected("included_files.html"));
}

} // namespace
