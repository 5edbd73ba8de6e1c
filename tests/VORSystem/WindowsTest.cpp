// What only Windows has: two separators, drives, paths over 260 characters, names without regard to
// case, and an interpreter of its own.

#include <string>

#include <gtest/gtest.h>

#include "TestSystem.h"
#include "VOREnvironment.h"
#include "VORFile.h"
#include "VORPath.h"
#include "support/TemporaryDirectory.h"

namespace
{

TEST(WindowsPath, UnderstandsBothSeparatorsAndWritesOne)
{
    const char* const joined[][3] = {{"C:\\dir\\", "\\name", "C:\\dir/name"},
                                     {"\\\\server\\share", "name", "\\\\server\\share/name"}};
    for (const auto& [directory, name, expected] : joined) {
        VORUnicodeString path;
        EXPECT_EQ(VORMakePath(VORUnicodeString(directory), name, path), VOR_S_OK);
        EXPECT_STREQ(path.ConvertToChar(), expected);
    }
    VORUnicodeString directory, name;
    EXPECT_EQ(VORSplitPath("a/b\\c", directory, name), VOR_S_OK);
    EXPECT_TRUE(directory == "a/b" && name == "c");
    VORDIR root;
    EXPECT_EQ(VOROpenDirectory("C:", &root), VOR_S_OK); // whatever directory the process has there
    EXPECT_EQ(VORCloseDirectory(&root), VOR_S_OK);
}

TEST(WindowsFile, NamesAreUtf8OfAnyLengthAndCase)
{
    const TemporaryDirectory directory;
    const std::string name = "Tr\u00E4ger-\u6881-\U0001F600";
    std::string path = directory.Path(name), backslashes = path;
    for (int i = 0; i < 16; ++i) {
        EXPECT_EQ(VORCreateDirectory(path.c_str()), VOR_S_OK) << path;
        path += "/" + name + name;
        backslashes += "\\.\\" + name + name;
    }
    ASSERT_GT(path.size(), 500u);
    unsigned int file = 0;
    EXPECT_EQ(VORFOpen(path.c_str(), "w", file), VOR_S_OK);
    EXPECT_EQ(VORFClose(file), VOR_S_OK);
    EXPECT_TRUE(VORIsSameEntry(path.c_str(), backslashes.c_str()));
    EXPECT_EQ(VORRenameFile(path.c_str(), directory.Path("Short").c_str()), VOR_S_OK);
    EXPECT_TRUE(VORIsSameEntry(directory.Path("Short").c_str(), directory.Path("sHORT").c_str()));
    EXPECT_EQ(VORFOpen(directory.Path("\xE4").c_str(), "w", file), VOR_E_FILE_NOT_FOUND);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(directory.Path()), {}), 2);
}

TEST(WindowsEnvironment, ValuesAreUtf8AndStayWhereTheyAre)
{
    const std::string longest(30000, 'x');
    for (const char* const value : {"Tr\u00E4ger", longest.c_str(), ""}) {
        SetEnv("VORTestVariable", value);
        const char* const got = VORGetEnv("VORTestVariable");
        EXPECT_STREQ(got, value);
        EXPECT_EQ(VORGetEnv("VORTestVariable"), got);
    }
}

TEST(WindowsCommand, KeepsTheCommandLine)
{
    const TemporaryDirectory directory;
    const std::string script = directory.Path("script.bat");
    WriteFile(script, "@echo [%1][%2]>\"%~dp0said\"\r\n@exit 3\r\n");
    EXPECT_EQ(VORRunCommand((script + " a/b \"c d\"").c_str()), 3);
    EXPECT_EQ(ReadFile(directory.Path("said")), "[a/b][\"c d\"]\r\n");
    EXPECT_NE(VORRunCommand("no-such-program"), 0);
    EXPECT_EQ(VORRunCommand("\xE4"), -1);
}

} // namespace
