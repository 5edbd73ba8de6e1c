#include <cstring>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "TestSystem.h"
#include "VORFile.h"
#include "VORPath.h"
#include "support/TemporaryDirectory.h"

namespace
{

namespace fs = std::filesystem;

unsigned int Open(const std::string& iPath)
{
    unsigned int file = 0;
    EXPECT_EQ(VORFOpen(iPath.c_str(), "w", file), VOR_S_OK) << iPath;
    return file;
}

void Close(std::initializer_list<unsigned int> iFiles)
{
    for (const unsigned int file : iFiles)
        EXPECT_EQ(VORFClose(file), VOR_S_OK) << file;
}

TEST(File, OpenReceivesTheHandleClosedLast)
{
    const unsigned int files[] = {Open(NullDevice), Open(NullDevice), Open(NullDevice)};
    Close({files[0], files[2]});
    for (const unsigned int file : {0u, files[2], files[0], files[2] + 1, ~0u}) {
        EXPECT_LT(VORFWrite(file, "x", 1, nullptr), 0);
        EXPECT_LT(VORFClose(file), 0); // and does not free it a second time
    }
    unsigned int reserved = 9;
    EXPECT_LT(VORFReserve(reserved, VOR_S_OK), 0);
    EXPECT_EQ(reserved, 0u);
    EXPECT_EQ(VORFReserve(reserved, VOR_E_ACCESS_DENIED), VOR_S_OK);
    EXPECT_EQ(reserved, files[2]);
    EXPECT_EQ(Open(NullDevice), files[0]);
    EXPECT_EQ(VORFWrite(reserved, "x", 1, nullptr), VOR_E_ACCESS_DENIED);
    EXPECT_EQ(VORFClose(reserved), VOR_E_ACCESS_DENIED);
    EXPECT_EQ(Open(NullDevice), reserved);
    Close({files[0], files[1], files[2]});
}

TEST(File, BufferedWritesArriveWholeAndInOrder)
{
    const TemporaryDirectory directory;
    const std::string path = directory.Path("\u00E9\u20AC.txt");
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
    unsigned int file = 0;
    for (const std::size_t length : {1u, 100000u}) { // written by the close, or at once
        file = Open(FullDevice);
        std::size_t written = 9;
        const std::string bytes(length, 'x');
        const VORStatus status = length == 1 ? VOR_S_OK : VOR_E_DISK_FULL;
        EXPECT_EQ(VORFWrite(file, nullptr, 1, nullptr), VOR_E_INVALIDARG);
        EXPECT_EQ(VORFWrite(file, bytes.data(), length, &written), status);
        EXPECT_EQ(written, status < 0 ? 0 : length);
        EXPECT_EQ(VORFWrite(file, "x", 1, nullptr), status);
        EXPECT_EQ(VORFClose(file), VOR_E_DISK_FULL);
    }
    EXPECT_LT(VORFOpen((std::string(FullDevice) + "/none").c_str(), "w", file), 0);
    EXPECT_EQ(file, 0u);
    EXPECT_LT(VORFOpen(FullDevice, "r", file), 0);
}

TEST(File, HandlesClosedByOneThreadServeOthers)
{
    std::vector<unsigned int> files(40000); // twice, that is more than there are handles
    const auto open = [&] {
        for (unsigned int& file : files)
            ASSERT_EQ(VORFReserve(file, VOR_E_FAIL), VOR_S_OK);
    };
    const auto close = [&] {
        for (const unsigned int file : files)
            EXPECT_EQ(VORFClose(file), VOR_E_FAIL);
    };
    open();
    std::thread([&] {
        close();
        std::thread(open).join(); // while the thread that closed lives on
    }).join();
    close();
}

TEST(File, TransferTellsWhetherAllArrived)
{
    const TemporaryDirectory directory;
    const std::string source = directory.Path("source"), target = directory.Path("target");
    const std::string bytes(100000, 'x');
    VORStatus arrival = VOR_S_OK;
    const auto transfer = [&](const std::string& iTarget) {
        return VORFTransfer(source.c_str(), iTarget.c_str(), arrival);
    };
    EXPECT_EQ(transfer(target), VOR_E_FILE_NOT_FOUND);
    EXPECT_FALSE(fs::exists(target));
    WriteFile(source, bytes);
    EXPECT_TRUE(transfer(target) == VOR_S_OK && arrival == VOR_S_OK);
    EXPECT_EQ(ReadFile(target), bytes);
    EXPECT_LT(transfer(target + "/none"), 0);
    EXPECT_LT(transfer(directory.Path("./source")), 0);
    EXPECT_EQ(ReadFile(source), bytes);
    EXPECT_TRUE(transfer(FullDevice) == VOR_S_OK && arrival == VOR_E_DISK_FULL);
}

TEST(File, KindsAndEntriesAreToldApart)
{
    const TemporaryDirectory directory;
    fs::current_path(directory.Path());
    WriteFile("file", "");
    fs::create_hard_link("file", "hard");
    const struct {
        std::string path;
        VORFileKind kind;
        bool isFile; ///< And no other entry.
    } cases[] = {{directory.Path("file"), VORRegularFile, true},
                 {".//file", VORRegularFile, true},
                 {"hard", VORRegularFile, false},
                 {"none", VORNoFile, false},
                 {"file/x", VORNoFile, false},
                 {".", VORDirectory, false},
                 {NullDevice, VOROtherFile, false}};
    for (const auto& [path, kind, isFile] : cases) {
        EXPECT_EQ(VORGetFileKind(path.c_str()), kind) << path;
        EXPECT_EQ(VORIsSameEntry("file", path.c_str()), isFile) << path;
    }
    EXPECT_FALSE(VORIsSameEntry("none", "none"));
    fs::current_path("..");
}

TEST(File, CopyAndRenameReplaceFilesAlone)
{
    const TemporaryDirectory directory;
    const std::string source = directory.Path("source"), target = directory.Path("target");
    const std::string bytes("new\0\r\n\xFF", 7);
    const std::string longest = directory.Path(std::string(255, 'x'));
    const auto copy = [&](const std::string& iTo, int iReplace) {
        return VORFCopy(source.c_str(), iTo.c_str(), iReplace);
    };
    WriteFile(target, "old and longer");
    EXPECT_LT(copy(target, 1), 0); // there is no source yet
    WriteFile(source, bytes);
    EXPECT_EQ(copy(target, 0), VOR_E_FILE_EXISTS);
    for (const std::string& to : {target, source, longest})
        EXPECT_EQ(copy(to, 1), VOR_S_OK);
    EXPECT_EQ(ReadFile(target) + ReadFile(source), bytes + bytes);
    EXPECT_TRUE(fs::remove(longest));
    for (const std::string& special : {std::string(NullDevice), directory.Path()}) {
        EXPECT_EQ(copy(special, 1), VOR_E_ACCESS_DENIED);
        EXPECT_EQ(VORFCopy(special.c_str(), target.c_str(), 1), VOR_E_ACCESS_DENIED);
    }
    fs::permissions(source, fs::perms::owner_read);
    EXPECT_EQ(copy(target, 1), VOR_S_OK); // a new file's permissions, not those of the source
    EXPECT_NE(fs::status(target).permissions(), fs::status(source).permissions());
    EXPECT_EQ(std::distance(fs::directory_iterator(directory.Path()), {}), 2);
    EXPECT_EQ(VORRenameFile(target.c_str(), source.c_str()), VOR_S_OK); // also what is read-only
    EXPECT_EQ(VORFileAccess(target.c_str(), 0, 0), VOR_E_FILE_NOT_FOUND);
    EXPECT_EQ(VORFileAccess(source.c_str(), 6, 0), VOR_S_OK);
    EXPECT_LT(VORRenameFile(source.c_str(), directory.Path().c_str()), 0);
    fs::permissions(source, fs::perms::owner_read);
    EXPECT_EQ(VORDeleteFile(source.c_str()), VOR_S_OK);
    EXPECT_EQ(VORDeleteFile(source.c_str()), VOR_E_FILE_NOT_FOUND);
    EXPECT_LT(VORDeleteFile(directory.Path().c_str()), 0);
}

TEST(Path, FindPathTakesTheFirstFile)
{
    const TemporaryDirectory first, second;
    const std::string decoy = first.Path("file"), part = ListSeparator; // a directory is no match
    for (const VORStatus status : {VOR_S_OK, VOR_E_FILE_EXISTS})
        EXPECT_EQ(VORCreateDirectory(decoy.c_str()), status);
    for (const std::string& file : {second.Path("file"), decoy + "/file"})
        WriteFile(file, "");
    const std::string list = part + part + "/none" + part + first.Path() + part + part +
                             second.Path() + "/" + part + decoy + part;
    VORUnicodeString path;
    EXPECT_EQ(VORFindPath("file", list.c_str(), path), VOR_S_OK);
    EXPECT_TRUE(path == second.Path("file").c_str()) << path.ConvertToChar();
    EXPECT_LT(VORFindPath("file", (part + "/none").c_str(), path), 0);
    EXPECT_TRUE(path == "");
}

} // namespace
