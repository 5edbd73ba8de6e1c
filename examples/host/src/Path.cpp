#include "VORPath.h"

#include <string>

namespace
{

constexpr std::size_t LongestPath = 255;

// False for a path that names no file.
bool Split(const std::string& iPath, std::string& oDirectory, std::string& oName)
{
    const std::size_t name = iPath.rfind('/') + 1; // 0 without a separator
    oDirectory = name == 1 ? "/" : iPath.substr(0, name == 0 ? 0 : name - 1);
    oName = iPath.substr(name);
    return !oName.empty();
}

} // namespace

VORStatus VORMakePath(const VORUnicodeString& iDirectory, const VORUnicodeString& iName,
                      VORUnicodeString& oPath)
{
    std::string directory = iDirectory.ConvertToChar();
    std::string name = iName.ConvertToChar();
    name.erase(0, name.find_first_not_of('/'));
    if (directory.empty() || name.empty())
        return VOR_E_INVALIDARG;
    directory.erase(directory.find_last_not_of('/') + 1);
    if (directory.size() + 1 + name.size() > LongestPath)
        return VOR_E_INVALIDARG;
    oPath = (directory + '/' + name).c_str();
    return VOR_S_OK;
}

VORStatus VORSplitPath(const VORUnicodeString& iPath, VORUnicodeString& oDirectory,
                       VORUnicodeString& oName)
{
    std::string directory;
    std::string name;
    if (!Split(iPath.ConvertToChar(), directory, name))
        return VOR_E_INVALIDARG;
    oDirectory = directory.c_str();
    oName = name.c_str();
    return VOR_S_OK;
}

VORStatus VORSplitPath(const char* iPath, char* oDirectory, char* oName, std::size_t iSize)
{
    std::string directory;
    std::string name;
    if (!Split(iPath, directory, name) || directory.size() >= iSize || name.size() >= iSize)
        return VOR_E_INVALIDARG;
    oDirectory[directory.copy(oDirectory, iSize)] = '\0';
    oName[name.copy(oName, iSize)] = '\0';
    return VOR_S_OK;
}
