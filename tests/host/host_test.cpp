#include <cstdlib>
#include <utility>

#include <gtest/gtest.h>

#include "Reports.h"
#include "VORFile.h"
#include "VORHostDisk.h"
#include "VORKTRReportingBuffer.h"
#include "VORKTRReportingTitle.h"
#include "support/ExpectedSite.h"

namespace
{

TEST(Host, GivesTheBytesOfTheSystemsOwnLayer)
{
    const TemporaryDirectory directory;
    std::filesystem::create_directory(directory.Path("images"));
    for (const char* const name : {"images/Corp.gif", "a.gif", "b.gif"}) {
        WriteFile(directory.Path(name), name);
        VORHostDisk::PutFile(name, name);
    }
    ASSERT_EQ(std::system((WRITE_REPORTS " " + directory.Path()).c_str()), 0);
    ASSERT_TRUE(WriteReports());
    auto written = VORHostDisk::ReadAll();
    const auto expected = ReadTree(directory.Path());
    for (const auto& [name, bytes] : expected)
        EXPECT_EQ(written[name], bytes) << name;
    EXPECT_EQ(written.size(), expected.size());
    for (const char* const name : {"frames/page2.html", "frames/Corp.gif", "single/file1.gif"})
        EXPECT_EQ(written.count(name), 1u) << name;
    EXPECT_EQ(VORHostDisk::GetOpenFileCount(), 0);
}

TEST(Host, OpensTheHandleClosedLast)
{
    unsigned int files[3];
    for (unsigned int& file : files)
        ASSERT_EQ(VORFOpen("page", "w", file), 0);
    for (const int closed : {2, 0}) {
        EXPECT_EQ(VORFClose(files[closed]), 0);
        EXPECT_LT(VORFClose(files[closed]), 0);
    }
    unsigned int next = 0;
    ASSERT_EQ(VORFReserve(next, VOR_E_DISK_FULL), 0);
    EXPECT_EQ(next, files[0]);
    EXPECT_EQ(VORFWrite(next, "x", 1, nullptr), VOR_E_DISK_FULL);
    EXPECT_EQ(VORFClose(next), VOR_E_DISK_FULL);
    EXPECT_EQ(VORFClose(files[1]), 0);
}

TEST(Host, FailsWhenItIsTold)
{
    const auto write = [](int iFailing, bool iForGood) {
        VORHostDisk::Clear();
        VORHostDisk::FailAt(iFailing, iForGood);
        unsigned int file = 0;
        std::pair<std::string, std::string> result;
        for (const char* const name : {"a", "b"}) {
            result.first += VORFOpen(name, "w", file) < 0 ? 'o' : '.';
            result.first += VORFWrite(file, "1", 1, nullptr) < 0 ? 'w' : '.';
            result.first += VORFWrite(file, "2", 1, nullptr) < 0 ? 'w' : '.';
            result.first += VORFClose(file) < 0 ? 'c' : '.';
        }
        for (const auto& [name, bytes] : VORHostDisk::ReadAll())
            result.second += name + bytes;
        EXPECT_EQ(VORHostDisk::GetOpenFileCount(), 0);
        return result;
    };
    using Result = std::pair<std::string, std::string>;
    EXPECT_EQ(write(0, true), Result("........", "a12b12"));
    EXPECT_EQ(VORHostDisk::GetOperationCount(), 8);
    EXPECT_EQ(write(1, false), Result("owwc....", "b12"));
    EXPECT_EQ(write(2, false), Result(".wwc....", "ab12"));
    EXPECT_EQ(write(4, false), Result("...c....", "a12b12"));
    EXPECT_EQ(write(3, true), Result("..wcowwc", "a1"));
}

} // namespace
