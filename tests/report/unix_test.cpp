// What only a Unix has: symbolic links that any user may make, pipes with a name, a limit to the
// size of files, a process that gives up its rights, a script as browser launcher. Two file systems
// are sure to be there only on Linux.

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <string>

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

TEST_F(SiteTest, FailuresOfPagesCostOnlyTheirItems)
{
    fs::create_directories(site + "/page2.html");
    fs::create_symlink("none/index.html", site + "/index.html");
    EXPECT_EQ(Make(), VOR_E_FILE_NOT_FOUND); // a single page
    EXPECT_EQ(report.TakeWriteStatus(), VOR_E_FILE_NOT_FOUND);
    for (const char* const name : {"index.html", "main.css", "page4.html"}) {
        fs::remove(site + "/" + name);
        fs::create_symlink(FullDevice, site + "/" + name);
    }
    Add({Title("A", 1), Text("lost"), Title("B", 1), Text("b"), Title("C", 2)});
    EXPECT_EQ(Make(), 0);
    EXPECT_EQ(report.TakeWriteStatus(), VOR_E_DISK_FULL);
    EXPECT_EQ(BodyOf(Page("page1.html")) + BodyOf(Page("page3.html")) +
                  BodyOf(Page("navigation.html")),
              Expected("pages_after_failures.txt"));
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
        VORUnicodeString directory(site);
        const int refused = VORFileAccess(directory, 2, 0);
        const bool isRefused = refused < 0 && Make() == refused &&
                               report.TakeWriteStatus() == refused &&
                               report.MakeStylesheets(directory, 0) == VOR_E_FAIL;
        ::_exit(isRefused && report.MakeReport(unlisted.c_str(), "") == VOR_E_FAIL ? 0 : 1);
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
    fs::create_hard_link(Source("a.hard", "hard"), site + "/file3.hard");
    fs::create_symlink(kept, site + "/file5.link");
    WriteFile(site + "/file6.link", "a link's own target");
    const struct {
        std::string name, target, moved, bytes;
        int status;
    } cases[] = {{"a.dir", "", "", "", VOR_E_ACCESS_DENIED},
                 {"a.pipe", "", "", "", VOR_E_ACCESS_DENIED},
                 {"a.hard", "", "file3.hard", "hard", 0},
                 {"a.link", kept, "file4.link", "what links lead to", 0},
                 {"b.link", kept, "file5.link", "what links lead to", 0},
                 {"c.link", site + "/file6.link", "file6.link", "a link's own target", 0},
                 {"d.link", "none", "", "", VOR_E_FILE_NOT_FOUND}};
    for (const auto& [name, target, moved, bytes, status] : cases) {
        const std::string path = temporary.Path(name);
        if (target != "")
            fs::create_symlink(target, path);
        EXPECT_EQ(HtmlOf(*Send(AddFile(path))), Embedded(status == 0 ? moved : path));
        EXPECT_EQ(report.TakeWriteStatus(), status) << name;
        EXPECT_EQ(fs::exists(fs::symlink_status(path)), status < 0) << name;
        if (status == 0) {
            EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(site + "/" + moved)));
            EXPECT_EQ(Page(moved), bytes);
        }
    }
    EXPECT_EQ(ReadFile(kept), "what links lead to");
    EXPECT_EQ(HtmlOf(*Send(AddFile("/proc/self/mem"))), Embedded("file8")); // opens, is not read
    EXPECT_EQ(report.TakeWriteStatus(), VOR_E_FAIL);
}

/// Files of this process end there, as on a full disk.
void LimitFileSize(rlim_t iSize)
{
    std::signal(SIGXFSZ, SIG_IGN);
    struct rlimit limit;
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &limit), 0);
    limit.rlim_cur = std::min(iSize, limit.rlim_max);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
}

TEST_F(IncludedFile, IsCopiedFromAnotherFileSystemAndDeletedWhenItArrivedWhole)
{
    const auto deviceOf = [](const std::string& iPath) {
        struct stat status = {};
        return ::stat(iPath.c_str(), &status) == 0 ? status.st_dev : 0;
    };
    for (const char* const place : {"/dev/shm", "/run", "/var/tmp", "."}) {
        SetEnv("TMPDIR", place);
        if (fs::exists(place) && deviceOf(place) != deviceOf(site))
            break;
    }
    const TemporaryDirectory far;
    ASSERT_NE(deviceOf(far.Path()), deviceOf(site)) << "no second file system";
    std::string bytes;
    for (int i = 0; i < 100001; ++i)
        bytes += static_cast<char>(i % 251);
    fs::create_symlink(Source("other"), site + "/file1.gif"); // is replaced, not followed
    for (const bool hasRoom : {true, false}) {
        LimitFileSize(bytes.size() + 1);
        WriteFile(far.Path("a.gif"), bytes);
        LimitFileSize(bytes.size() - (hasRoom ? 0 : 1));
        const std::string moved = hasRoom ? "file1.gif" : "file2.gif";
        EXPECT_EQ(HtmlOf(*Send(AddFile(far.Path("a.gif")))), Embedded(moved));
        EXPECT_TRUE((hasRoom ? Page(moved) : ReadFile(far.Path("a.gif"))) == bytes);
        EXPECT_EQ(fs::exists(far.Path("a.gif")), !hasRoom);
        EXPECT_EQ(report.TakeWriteStatus(), hasRoom ? 0 : VOR_E_DISK_FULL);
    }
    EXPECT_EQ(ReadFile(temporary.Path("other")), "new");
}

} // namespace
