#ifndef TemporaryDirectory_h
#define TemporaryDirectory_h

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <string>
#include <system_error>

/// A fresh directory for one test, removed with all its contents at the end.
class TemporaryDirectory
{
public:
    TemporaryDirectory()
    {
        std::random_device random;
        do
            _Path =
                std::filesystem::temp_directory_path() / ("vor-test-" + std::to_string(random()));
        while (!std::filesystem::create_directory(_Path));
    }
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;
    ~TemporaryDirectory()
    {
        std::error_code ignored;
        std::filesystem::remove_all(_Path, ignored);
    }

    /// The directory itself, without a separator at its end.
    std::string Path() const { return _Path.generic_string(); }
    std::string Path(const std::string& iName) const { return Path() + '/' + iName; }

private:
    std::filesystem::path _Path;
};

/// The bytes of a file; a file that cannot be read ends the test.
inline std::string ReadFile(const std::string& iPath)
{
    std::ifstream file(iPath, std::ios::binary);
    if (!file)
        throw std::runtime_error("cannot be read: " + iPath);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// What follows the opening tag of a page's body; empty without a body.
inline std::string BodyOf(const std::string& iPage)
{
    const std::size_t body = iPage.find("<BODY ");
    return body == std::string::npos ? "" : iPage.substr(iPage.find('\n', body) + 1);
}

inline void WriteFile(const std::string& iPath, const std::string& iText)
{
    std::ofstream file(iPath, std::ios::binary);
    file << iText << std::flush;
    if (!file)
        throw std::runtime_error("cannot be written: " + iPath);
}

#endif
