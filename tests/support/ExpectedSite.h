#ifndef ExpectedSite_h
#define ExpectedSite_h

#include <algorithm>
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

/// The first line in which two texts differ, as it is in each.
inline std::string FirstDifference(const std::string& iExpected, const std::string& iActual)
{
    const std::string same(
        iExpected.begin(),
        std::mismatch(iExpected.begin(), iExpected.end(), iActual.begin(), iActual.end()).first);
    const std::size_t begin = same.rfind('\n') + 1;
    const auto line = [begin](const std::string& iText) {
        const std::size_t end = std::min(iText.find('\n', begin), iText.size());
        return testing::PrintToString(iText.substr(begin, end - begin + 1));
    };
    return "line " + std::to_string(1 + std::count(same.begin(), same.end(), '\n')) +
           "\n  expected: " + line(iExpected) + "\n  written:  " + line(iActual);
}

/// Expects a written directory to hold exactly the files of tests/expected/<iScenario>. When it
/// does not, what was written is kept as <iScenario> in the build's tests/actual, to look at and to
/// accept.
inline void ExpectSite(const std::string& iDirectory, const std::string& iScenario)
{
    const auto kept = std::filesystem::path(ACTUAL_DIRECTORY) / iScenario;
    std::filesystem::remove_all(kept);
    std::filesystem::create_directories(kept.parent_path());
    std::filesystem::copy(iDirectory, kept, std::filesystem::copy_options::recursive);
    auto actual = ReadTree(iDirectory);
    for (const auto& [name, bytes] :
         ReadTree(std::filesystem::path(EXPECTED_DIRECTORY) / iScenario)) {
        const auto file = actual.extract(name);
        if (file.empty())
            ADD_FAILURE() << "missing: " << name;
        else if (file.mapped() != bytes)
            ADD_FAILURE() << name << " differs in " << FirstDifference(bytes, file.mapped());
    }
    for (const auto& [name, bytes] : actual)
        ADD_FAILURE() << "unexpected: " << name;
    if (testing::Test::HasFailure())
        ADD_FAILURE() << "what was written is kept in " << kept;
    else
        std::filesystem::remove_all(kept);
}

#endif
