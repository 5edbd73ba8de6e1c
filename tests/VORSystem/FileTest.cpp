#include <cstddef>
#include <filesystem>
#include <string>

#include <sys/stat.h>

#include <gtest/gtest.h>

#include "VORFile.h"
#include "VORPath.h"
#include "support/TemporaryDirectory.h"

namespace
{

unsigned int Open(const std::string& iPath)
{
    unsigned int file = 0;
    EXPECT_EQ(VORFOpen(iPath.c_str(), "w", file), VOR_S_OK) << iPath;
    return file;
}

TEST(File, OpenReceivesTheHandleClosedLast)
{
    const TemporaryDirectory directory;
    unsigned int files[4];
    for (unsigned int& file : files)
        file = Open(directory.Path("file"));
    for (const int closed : {1, 3, 0})
        EXPECT_EQ(VORFClose(files[closed]), VOR_S_OK);
    for (const unsigned int file : {0u, files[0], files[3], files[2] + 2, ~0u}) {
        std::size_t written = 9;
        EXPECT_LT(VORFWrite(file, "x", 1, &written), 0);
        EXPECT_EQ(written, 0u);
        EXPECT_LT(VORFClose(file), 0); // and does not free it a second time
    }
    for (const int reopened : {0, 3, 1})
        EXPECT_EQ(Open(directory.Path("again")), files[reopened]);
    for (const unsigned int file : files)
        EXPECT_EQ(VORFClose(file), VOR_S_OK);
}

TEST(File, BufferedWritesArriveWholeAndInOrder)
{
    const TemporaryDirectory directory;
    const std::string path = directory.Path("\xC3\xA9\xE2\x82\xAC.txt");
    WriteFile(path, "older text");
    const unsigned int file = Open(path);
    std::string all;
    for (const std::size_t length : {1u, 65534u, 1u, 65536u, 65537u, 0u, 40000u, 40000u, 3u}) {
        const std::string bytes(length, static_cast<char>(all.size() % 251));
        std::size_t written = 9;
        EXPECT_EQ(VORFWrite(file, bytes.data(), length, &written), VOR_S_OK);
        EXPECT_EQ(written, length);
        all += bytes;
        EXPECT_EQ(ReadFile(path).empty(), all.size() <= 64 * 1024);
    }
    EXPECT_EQ(VORFClose(file), VOR_S_OK);
    EXPECT_TRUE(ReadFile(path) == all);
}

TEST(File, FailuresAreReported)
{
    unsigned int file = Open("/dev/full");
    EXPECT_EQ(VORFWrite(file, "x", 1, nullptr), VOR_S_OK);
    EXPECT_EQ(VORFClose(file), VOR_E_DISK_FULL);
    EXPECT_EQ(Open("/dev/full"), file);
    std::size_t written = 9;
    EXPECT_EQ(VORFWrite(file, std::string(100000, 'x').data(), 100000, &written), VOR_E_DISK_FULL);
    EXPECT_EQ(written, 0u);
    EXPECT_EQ(VORFWrite(file, "x", 1, nullptr), VOR_E_DISK_FULL);
    EXPECT_EQ(VORFClose(file), VOR_E_DISK_FULL);
    EXPECT_LT(VORFOpen("/dev/full/none", "w", file = 9), 0);
    EXPECT_EQ(file, 0u);
    EXPECT_LT(VORFOpen("/dev/full", "r", file = 9), 0);
    EXPECT_EQ(file, 0u);
}

TEST(File, CopyAndRenameReplaceFilesAlone)
{
    const TemporaryDirectory directory;
    const std::string bytes("new\0\r\n\xFF", 7);
    const std::string source = directory.Path("source");
    const std::string target = directory.Path("target");
    const auto copy = [](const std::string& iFrom, const std::string& iTo, int iReplace) {
        return VORFCopy(iFrom.c_str(), iTo.c_str(), iReplace);
    };
    WriteFile(source, bytes);
    WriteFile(target, "old and longer");
    EXPECT_EQ(copy(source, target, 0), VOR_E_FILE_EXISTS);
    EXPECT_LT(copy(directory.Path("none"), target, 1), 0);
    EXPECT_EQ(ReadFile(target), "old and longer");
    EXPECT_EQ(copy(source, target, 1), VOR_S_OK);
    EXPECT_EQ(ReadFile(target), bytes);

    const std::string link = directory.Path("link");
    const std::string pipe = directory.Path("pipe");
    std::filesystem::create_symlink(source, link);
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(copy(source, link, 1), VOR_S_OK);
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(ReadFile(source), bytes);
    EXPECT_LT(copy(source, pipe, 1), 0);
    EXPECT_TRUE(std::filesystem::is_fifo(pipe));
    EXPECT_LT(copy(source, directory.Path(), 1), 0);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(directory.Path()), {}), 4);

    EXPECT_EQ(VORRenameFile(source.c_str(), target.c_str()), VOR_S_OK);
    EXPECT_LT(VORFileAccess(source.c_str(), 0, 0), 0);
    EXPECT_EQ(VORFileAccess(target.c_str(), 6, 0), VOR_S_OK);
    EXPECT_EQ(VORDeleteFile(target.c_str()), VOR_S_OK);
    EXPECT_LT(VORFileAccess(target.c_str(), 0, 0), 0);
    EXPECT_LT(VORDeleteFile(directory.Path().c_str()), 0);
}

TEST(Path, MakePathPutsOneSeparatorBetween)
{
    VORUnicodeString path;
    char narrow[] = "long text";
    for (const char* const directory : {"dir", "dir/", "dir//"}) {
        for (const char* const name : {"\xC3\xA9", "/\xC3\xA9"}) {
            EXPECT_EQ(VORMakePath(VORUnicodeString(directory), name, path), VOR_S_OK);
            EXPECT_TRUE(path == "dir/\xC3\xA9") << path.ConvertToChar();
            EXPECT_LT(VORMakePath(directory, name, narrow, 6), 0);
            EXPECT_EQ(VORMakePath(directory, name, narrow, 7), VOR_S_OK);
            EXPECT_STREQ(narrow, "dir/\xC3\xA9");
        }
    }
    const auto invalid = static_cast<VORStatus>(0x80070057u);
    EXPECT_EQ(VORMakePath(VORUnicodeString(), "name", path), invalid);
    EXPECT_EQ(VORMakePath(VORUnicodeString("dir"), "", path), invalid);
    EXPECT_EQ(VORMakePath("", "name", narrow, 9), invalid);
    EXPECT_EQ(VORMakePath(VORUnicodeString("/"), "name", path), VOR_S_OK);
    EXPECT_TRUE(path == "/name");
}

TEST(Path, SplitPathCutsAtTheLastSeparator)
{
    VORUnicodeString name;
    char narrow[2][6];
    const char* const cases[][3] = {
        {"a/b/c.gif", "a/b", "c.gif"}, {"c.gif", "", "c.gif"}, {"/c.gif", "/", "c.gif"}};
    for (const auto& [path, first, second] : cases) {
        VORUnicodeString directory = path; // a result may be the argument
        EXPECT_EQ(VORSplitPath(directory, directory, name), VOR_S_OK);
        EXPECT_TRUE(directory == first && name == second) << path;
        EXPECT_LT(VORSplitPath(path, narrow[0], narrow[1], 5), 0);
        EXPECT_EQ(VORSplitPath(path, narrow[0], narrow[1], 6), VOR_S_OK);
        EXPECT_TRUE(std::string(narrow[0]) == first && std::string(narrow[1]) == second) << path;
    }
    EXPECT_LT(VORSplitPath("dir/", name, name), 0);
    EXPECT_LT(VORSplitPath("longer/b", narrow[0], narrow[1], 6), 0);
}

TEST(Path, FindPathTakesTheFirstFile)
{
    const TemporaryDirectory first;
    const TemporaryDirectory second;
    const std::string decoy = first.Path("file"); // a directory is no match
    VORDIR directory;
    EXPECT_LT(VOROpenDirectory(decoy.c_str(), &directory), 0);
    EXPECT_EQ(VORCreateDirectory(decoy.c_str()), VOR_S_OK);
    EXPECT_LT(VORCreateDirectory(decoy.c_str()), 0);
    EXPECT_EQ(VOROpenDirectory(decoy.c_str(), &directory), VOR_S_OK);
    WriteFile(second.Path("file"), "");
    WriteFile(decoy + "/file", "");
    const std::string list = "::/none:" + first.Path() + "::" + second.Path() + "/:" + decoy + ":";
    VORUnicodeString path;
    EXPECT_EQ(VORFindPath("file", list.c_str(), path), VOR_S_OK);
    EXPECT_TRUE(path == second.Path("file").c_str()) << path.ConvertToChar();
    EXPECT_LT(VORFindPath("file", "::/none", path), 0);
    EXPECT_TRUE(path == "");
}

} // namespace
