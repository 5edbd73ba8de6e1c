#include <cstdint>
#include <vector>

#include <fuzzer/FuzzedDataProvider.h>

#include "Require.h"
#include "VORPath.h"

namespace
{

// "" when a path cannot be made.
std::string Joined(std::string iDirectory, std::string iName)
{
    iName.erase(0, iName.find_first_not_of('/'));
    if (iDirectory.empty() || iName.empty())
        return "";
    iDirectory.erase(iDirectory.find_last_not_of('/') + 1);
    return iDirectory + '/' + iName;
}

void CheckMake(const std::string& iDirectory, const std::string& iName, std::size_t iRoom)
{
    const std::string expected = Joined(iDirectory, iName);
    VORUnicodeString path;
    const VORStatus status = VORMakePath(iDirectory, iName, path);
    RequireEqual(status, expected.empty() ? VOR_E_INVALIDARG : VOR_S_OK, "status");
    RequireEqual(path.ToString(), expected, "path");

    std::vector<char> narrow(iRoom, '#'); // its end is watched
    const bool fits = !expected.empty() && expected.size() < iRoom;
    RequireEqual(VORMakePath(iDirectory.c_str(), iName.c_str(), narrow.data(), iRoom) >= 0, fits,
                 "narrow status");
    if (fits)
        RequireEqual(std::string(narrow.data()), expected, "narrow path");
}

void CheckSplit(const std::string& iPath, std::size_t iRoom)
{
    const std::size_t begin = iPath.rfind('/') + 1;
    const std::string name = iPath.substr(begin);
    const std::string directory = begin == 1 ? "/" : iPath.substr(0, begin == 0 ? 0 : begin - 1);
    VORUnicodeString parts[2];
    const bool names = VORSplitPath(iPath, parts[0], parts[1]) >= 0;
    RequireEqual(names, !name.empty(), "split status");
    if (names)
        RequireEqual(parts[0].ToString() + '|' + parts[1].ToString(), directory + '|' + name,
                     "split");

    std::vector<char> narrow[2] = {std::vector<char>(iRoom), std::vector<char>(iRoom)};
    const bool fits = names && directory.size() < iRoom && name.size() < iRoom;
    RequireEqual(VORSplitPath(iPath.c_str(), narrow[0].data(), narrow[1].data(), iRoom) >= 0, fits,
                 "narrow split status");
    if (fits)
        RequireEqual(std::string(narrow[0].data()) + '|' + narrow[1].data(), directory + '|' + name,
                     "narrow split");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* iData, std::size_t iSize)
{
    FuzzedDataProvider input(iData, iSize);
    const auto room = input.ConsumeIntegralInRange<std::size_t>(0, 40);
    const std::string directory = input.ConsumeRandomLengthString(30).c_str();
    const std::string name = input.ConsumeRandomLengthString(30).c_str();
    CheckMake(directory, name, room);
    CheckSplit(directory, room);
    CheckSplit(directory + '/' + name, room);
    VORUnicodeString found;
    const VORStatus status = VORFindPath(name.c_str(), directory.c_str(), found);
    RequireEqual(status >= 0, found != "", "found");
    return 0;
}
