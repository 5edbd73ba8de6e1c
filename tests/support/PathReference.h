#ifndef PathReference_h
#define PathReference_h

#include <string>
#include <vector>

#include "VORPath.h"

/// The path of a name in a directory, "" when there is none.
inline std::string Joined(std::string iDirectory, std::string iName)
{
    iName.erase(0, iName.find_first_not_of('/'));
    if (iDirectory.empty() || iName.empty())
        return "";
    iDirectory.erase(iDirectory.find_last_not_of('/') + 1);
    return iDirectory + '/' + iName;
}

/// True unless VORMakePath does something else, also into a buffer of iRoom bytes.
inline bool MakesPath(const std::string& iDirectory, const std::string& iName, std::size_t iRoom)
{
    const std::string expected = Joined(iDirectory, iName);
    VORUnicodeString path("left alone");
    const VORStatus status = VORMakePath(iDirectory, iName, path);
    std::vector<char> narrow(iRoom); // its end is watched
    const bool fits =
        VORMakePath(iDirectory.c_str(), iName.c_str(), narrow.data(), iRoom) == VOR_S_OK;
    return status == (expected.empty() ? VOR_E_INVALIDARG : VOR_S_OK) &&
           path.ToString() == (expected.empty() ? "left alone" : expected) &&
           fits == (!expected.empty() && expected.size() < iRoom) &&
           (!fits || expected == narrow.data());
}

/// The same of VORSplitPath.
inline bool SplitsPath(const std::string& iPath, std::size_t iRoom)
{
    const std::size_t begin = iPath.rfind('/') + 1;
    const std::string name = iPath.substr(begin);
    const std::string directory = begin == 1 ? "/" : iPath.substr(0, begin == 0 ? 0 : begin - 1);
    VORUnicodeString first(iPath), second; // a result may be the argument
    const bool isSplit = VORSplitPath(first, first, second) == VOR_S_OK;
    std::vector<char> narrow[2] = {std::vector<char>(iRoom), std::vector<char>(iRoom)};
    const bool fits =
        VORSplitPath(iPath.c_str(), narrow[0].data(), narrow[1].data(), iRoom) == VOR_S_OK;
    return isSplit == !name.empty() &&
           (!isSplit || (first.ToString() == directory && second.ToString() == name)) &&
           fits == (isSplit && directory.size() < iRoom && name.size() < iRoom) &&
           (!fits || (directory == narrow[0].data() && name == narrow[1].data()));
}

#endif
