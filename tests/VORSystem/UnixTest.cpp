// What only a Unix has: symbolic links that any user may make, files that open but cannot be read.

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "VORFile.h"
#include "support/TemporaryDirectory.h"

namespace fs = std::filesystem;

namespace
{

TEST(UnixFile, LinksAreEntriesOfTheirOwn)
{
    const TemporaryDirectory directory;
    const auto path = [&](const char* iName) { return directory.Path(iName); };
    WriteFile(path("file"), "old");
    WriteFile(path("other"), "new");
    fs::create_symlink("file", path("link"));
    fs::create_symlink("none", path("dangling"));
    fs::create_directory_symlink(".", path("loop"));
    EXPECT_EQ(VORGetFileKind(path("link").c_str()), VORLinkToFile);
    EXPECT_EQ(VORGetFileKind(path("dangling").c_str()), VORNoFile);
    EXPECT_EQ(VORGetFileKind(path("loop").c_str()), VORDirectory);
    EXPECT_TRUE(VORIsSameEntry(path("file").c_str(), path("loop/file").c_str()));
    EXPECT_FALSE(VORIsSameEntry(path("file").c_str(), path("link").c_str()));
    EXPECT_EQ(VORFCopy(path("file").c_str(), path("link").c_str(), 1), VOR_S_OK);
    EXPECT_TRUE(fs::is_symlink(path("link"))); // copied onto itself
    EXPECT_EQ(VORRenameFile(path("other").c_str(), path("link").c_str()), VOR_S_OK);
    EXPECT_EQ(ReadFile(path("file")) + ReadFile(path("link")), "oldnew");
    EXPECT_EQ(VORDeleteFile(path("dangling").c_str()), VOR_S_OK);
}

TEST(UnixFile, WhatCannotBeReadIsNotTransferred)
{
    const TemporaryDirectory directory;
    VORStatus arrival = VOR_S_OK;
    const std::string target = directory.Path("target");
    EXPECT_EQ(VORFTransfer("/proc/self/mem", target.c_str(), arrival), VOR_S_OK);
    EXPECT_LT(arrival, 0);
}

} // namespace
