#include "VORPath.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "VORFile.h"
#include "VORSystemLayer.h"

namespace
{

std::string_view Bytes(const VORUnicodeString& iText)
{
    return {iText.ConvertToChar(), static_cast<std::size_t>(iText.GetLengthInByte())};
}

bool Join(std::string_view iDirectory, std::string_view iName, std::string& oPath)
{
    const std::size_t begin = iName.find_first_not_of(VORLayer::Separators);
    if (iDirectory.empty() || begin == std::string_view::npos)
        return false;
    const std::size_t end = iDirectory.find_last_not_of(VORLayer::Separators) + 1; // 0 for the root
    oPath.reserve(end + 1 + iName.size()); // a page's path is made in one piece
    oPath = iDirectory.substr(0, end);
    oPath += VORLayer::Separators[0];
    oPath += iName.substr(begin);
    return true;
}

bool Split(std::string_view iPath, std::string_view& oDirectory, std::string_view& oName)
{
    const std::size_t cut = iPath.find_last_of(VORLayer::Separators);
    const bool isBare = cut == std::string_view::npos;
    const std::string_view name = isBare ? iPath : iPath.substr(cut + 1);
    if (name.empty())
        return false;
    oName = name;
    oDirectory = isBare ? std::string_view() : iPath.substr(0, cut == 0 ? 1 : cut);
    return true;
}

VORUnicodeString Text(std::string_view iBytes)
{
    return VORUnicodeString(iBytes.data(), static_cast<int>(iBytes.size()));
}

void CopyOut(std::string_view iBytes, char* oText)
{
    oText[iBytes.copy(oText, iBytes.size())] = '\0';
}

bool IsFile(const VORUnicodeString& iPath)
{
    const VORFileKind kind = VORGetFileKind(iPath);
    return kind != VORNoFile && kind != VORDirectory;
}

} // namespace

VORStatus VORMakePath(const VORUnicodeString& iDirectory, const VORUnicodeString& iName,
                      VORUnicodeString& oPath)
{
    std::string path;
    if (!Join(Bytes(iDirectory), Bytes(iName), path))
        return VOR_E_INVALIDARG;
    oPath = VORUnicodeString(std::move(path));
    return VOR_S_OK;
}

VORStatus VORMakePath(const char* iDirectory, const char* iName, char* oPath, std::size_t iSize)
{
    std::string path;
    if (!iDirectory || !iName || !oPath || !Join(iDirectory, iName, path) || path.size() >= iSize)
        return VOR_E_INVALIDARG;
    CopyOut(path, oPath);
    return VOR_S_OK;
}

VORStatus VORSplitPath(const VORUnicodeString& iPath, VORUnicodeString& oDirectory,
                       VORUnicodeString& oName)
{
    std::string_view directory;
    std::string_view name;
    if (!Split(Bytes(iPath), directory, name))
        return VOR_E_INVALIDARG;
    VORUnicodeString nameText = Text(name); // before a result, which may be iPath, changes
    oDirectory = Text(directory);
    oName = std::move(nameText);
    return VOR_S_OK;
}

VORStatus VORSplitPath(const char* iPath, char* oDirectory, char* oName, std::size_t iSize)
{
    std::string_view directory;
    std::string_view name;
    if (!iPath || !oDirectory || !oName || !Split(iPath, directory, name) ||
        directory.size() >= iSize || name.size() >= iSize)
        return VOR_E_INVALIDARG;
    CopyOut(directory, oDirectory);
    CopyOut(name, oName);
    return VOR_S_OK;
}

VORStatus VORFindPath(const char* iName, const char* iList, VORUnicodeString& oPath)
{
    std::string_view rest = iList ? iList : "";
    while (!rest.empty()) {
        const std::string_view directory = rest.substr(0, rest.find(VORLayer::ListSeparator));
        rest.remove_prefix(std::min(rest.size(), directory.size() + 1));
        VORUnicodeString path;
        if (VORMakePath(Text(directory), iName, path) >= 0 && IsFile(path)) {
            oPath = path;
            return VOR_S_OK;
        }
    }
    oPath = VORUnicodeString();
    return VOR_E_FILE_NOT_FOUND;
}

VORStatus VOROpenDirectory(const VORUnicodeString& iPath, VORDIR* oDirectory)
{
    return oDirectory ? VORLayer::OpenDirectory(iPath.ConvertToChar(), oDirectory->handle)
                      : VOR_E_INVALIDARG;
}

VORStatus VORCloseDirectory(VORDIR* ioDirectory)
{
    if (!ioDirectory || !ioDirectory->handle)
        return VOR_E_INVALIDARG;
    return VORLayer::CloseDirectory(std::exchange(ioDirectory->handle, nullptr));
}

VORStatus VORCreateDirectory(const VORUnicodeString& iPath)
{
    return VORLayer::CreateDirectory(iPath.ConvertToChar());
}
