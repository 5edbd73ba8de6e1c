// What only a Unix has: symbolic links that any user may make, pipes with a name, a limit to the
// size of files, a process that gives up its rights, a script as browser launcher. Two file systems
// are sure to be there only on Linux.

#include <csignal>
#include <filesystem>
#include <string>
#include <utility>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "IncludedFile.h"
#include "VORKTRReportTools.h"
#include "VORStatus.h"
#include "support/ExpectedSite.h"
#include "support/Rendering.h"

namespace
{

namespace fs = std::filesystem;
using SiteTest = ReportTest;

TEST_F(SiteTest, ASinglePageSaysWhyItCannotBeOpened)
{
    fs::create_directory(site);
    fs::create_symlink("none/index.html", site + "/index.html");
    EXPECT_EQ(Make(), VOR_E_FILE_NOT_FOUND);
    EXPECT_EQ(report.TakeWriteStatus(), VOR_E_FILE_NOT_FOUND);
}

/// Writes a file of its own over several items.
struct FileWriter : Probe {
    explicit FileWriter(const std::string& iPath) : path(iPath) {}
    ~FileWriter() override { VORFClose(file); }
    void Report(unsigned int, const char*, unsigned char, unsigned int) const override
    {
        EXPECT_EQ(VORFOpen(path.c_str(), "w", file), 0);
        VORFWrite(file, "own", 3, nullptr);
    }

    std::string path;
    mutable unsigned int file = 0;
};

TEST_F(SiteTest, FailuresOfPagesCostOnlyTheirItems)
{
    fs::create_directories(site + "/page2.html");
    for (const char* const name : {"index.html", "main.css", "page4.html"})
        fs::create_symlink("/dev/full", site + "/" + name);
    auto* const own = new FileWriter(temporary.Path("own"));
    Add({Title("A", 1), own, Text("lost"), Title("B", 1), Text("b"), Title("C", 2)});
    EXPECT_EQ(Make(), 0);
    EXPECT_EQ(report.TakeWriteStatus(), VOR_E_DISK_FULL);
    EXPECT_EQ(report.RemoveObject(own), 0);
    EXPECT_EQ(ReadFile(temporary.Path("own")), "own"); // a lost page's items went nowhere
    EXPECT_EQ(BodyOf(Page("page1.html")) + BodyOf(Page("page3.html")) +
                  BodyOf(Page("navigation.html")),
              Expected("pages_after_failures.txt"));
    EXPECT_EQ(report.RemoveObject(0), 0);
    EXPECT_EQ(report.Update(), 0); // a single page on a full disk
    EXPECT_EQ(report.TakeWriteStatus(), VOR_E_DISK_FULL);
    for (const char* const name : {"index.html", "main.css"})
        fs::remove(site + "/" + name);
    EXPECT_EQ(report.Update(), 0);
    report.NoteWriteStatus(VOR_S_OK);
    EXPECT_EQ(report.TakeWriteStatus(), 0);
    report.NoteWriteStatus(VOR_E_INVALIDARG);
    report.NoteWriteStatus(VOR_E_FAIL);
    EXPECT_EQ(report.TakeWriteStatus(), VOR_E_INVALIDARG);
}

TEST_F(SiteTest, AFullDiskIsToldAndMendedByTheNextRun)
{
    Add({Title("A", 1), Text("a"), Title("B", 1), Text(std::string(70000, 'b').c_str())});
    ASSERT_EQ(Make(), 0);
    EXPECT_EQ(report.Update(), 0);
    const auto whole = ReadTree(site);
    std::signal(SIGXFSZ, SIG_IGN);
    struct rlimit limit;
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &limit), 0);
    for (const rlim_t size : {rlim_t{100}, rlim_t{66000}, limit.rlim_max}) {
        const bool isFull = size != limit.rlim_max;
        limit.rlim_cur = size;
        ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
        EXPECT_EQ(report.TakeWriteStatus(), 0);
        report.GetIndex() = 1;
        EXPECT_EQ(report.Update(), 0);
        EXPECT_EQ(report.TakeWriteStatus(), isFull ? VOR_E_DISK_FULL : 0);
        EXPECT_EQ(ReadTree(site) == whole, !isFull);
    }
}

TEST_F(SiteTest, ADirectoryThatMayNotBeWrittenEndsTheRun)
{
    fs::create_directory(site);
    fs::permissions(site, fs::perms{0555});
    fs::permissions(temporary.Path(), fs::perms{0755});
    const std::string unlisted = temporary.Path("unlisted");
    fs::create_directory(unlisted);
    fs::permissions(unlisted, fs::perms{0333});
    const auto runUnprivileged = [&] {
        constexpr unsigned int nobody = 65534; // to root every access is granted
        if (::geteuid() == 0 && (::setgid(nobody) != 0 || ::setuid(nobody) != 0))
            ::_exit(2);
        VORUnicodeString directory(site.c_str());
        const int refused = VORFileAccess(directory, 2, 0);
        const bool isRefused = refused < 0 && report.MakeReport(directory, "") == refused &&
                               report.TakeWriteStatus() == refused;
        const bool hasNoStyle = report.MakeStylesheets(directory, 0) == VOR_E_FAIL;
        const bool isUnlisted = report.MakeReport(unlisted.c_str(), "") == VOR_E_FAIL &&
                                report.TakeWriteStatus() == VOR_E_ACCESS_DENIED;
        ::_exit(isRefused && hasNoStyle && isUnlisted ? 0 : 1);
    };
    EXPECT_EXIT(runUnprivileged(), testing::ExitedWithCode(0), "");
    EXPECT_TRUE(fs::is_empty(site));
}

TEST_F(SiteTest, BrowserIsStartedByTheLauncher)
{
    const std::string page = temporary.Path("a page.html");
    const std::string arguments = temporary.Path("arguments");
    EXPECT_EQ(VORKTRReportTools::StartBrowser(page.c_str(), 0), -1);
    SetEnv("VORCommandPath", (temporary.Path("none") + ":" + temporary.Path()).c_str());
    EXPECT_EQ(VORKTRReportTools::StartBrowser(page.c_str(), 0), -1);
    const std::string launcher = temporary.Path("RunNs.sh");
    WriteFile(launcher, "#!/bin/sh\nprintf '<%s>' \"$@\" >'" + arguments + "'\nexit 3\n");
    fs::permissions(launcher, fs::perms{0755});
    const int status = VORKTRReportTools::StartBrowser(page.c_str(), 1);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 3) << status;
    EXPECT_EQ(ReadFile(arguments), "<" + temporary.Path("a") + "><page.html>");
    fs::remove(arguments);
    SetEnv("KTR_ODT", "");
    EXPECT_EQ(VORKTRReportTools::StartBrowser(page.c_str(), 0), 0);
    EXPECT_FALSE(fs::exists(arguments));
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

dev_t DeviceOf(const std::string& iPath)
{
    struct stat status = {};
    return ::stat(iPath.c_str(), &status) == 0 ? status.st_dev : 0;
}

TEST_F(IncludedFile, IsCopiedFromAnotherFileSystemAndDeletedWhenItArrivedWhole)
{
    for (const char* const place : {"/dev/shm", "/run", "/var/tmp", "."}) {
        SetEnv("TMPDIR", place);
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

} // namespace
