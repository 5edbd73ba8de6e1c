#ifndef ExpectedSite_h
#define ExpectedSite_h

#include <filesystem>
#include <map>
#include <string>

#include <gtest/gtest.h>

#include "support/TemporaryDirectory.h"

/// Bytes by name of everything below a directory; the name of a directory ends in "/".
inline std::map<std::string, std::string> ReadTree(const std::filesystem::path& iDirectory)
{
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(iDirectory)) {
        const std::string name = entry.path().lexically_relative(iDirectory).generic_string();
        if (entry.is_directory())
            files[name + "/"];
        else
            files[name] = ReadFile(entry.path().string());
    }
    return files;
}

/// Expects a written directory to hold exactly the files of tests/expected/<iScenario>. When it
/// does not, what was written is kept as <iScenario> in the build's tests/actual, to look at and to
/// accept.
inline void ExpectSite(const std::string& iDirectory, const std::string& iScenario)
{
    const auto kept = std::filesystem::path(ACTUAL_DIRECTORY) / iScenario;
    std::filesystem::remove_all(kept);
    const auto expected = ReadTree(std::filesystem::path(EXPECTED_DIRECTORY) / iScenario);
    auto actual = ReadTree(iDirectory);
    if (actual == expected)
        return;
    std::filesystem::create_directories(kept.parent_path());
    std::filesystem::copy(iDirectory, kept, std::filesystem::copy_options::recursive);
    ADD_FAILURE() << "what was written is kept in " << kept;
    for (const auto& [name, bytes] : expected)
        EXPECT_EQ(actual[name], bytes) << name;
    for (const auto& [name, bytes] : actual)
        EXPECT_EQ(expected.count(name), 1u) << "unexpected: " << name;
}

#endif
