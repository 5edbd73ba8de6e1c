#include "VORKTRReportingFile.h"

#include <cstdio>
#include <cstring>

#include "VOREnvironment.h"
#include "VORFile.h"
#include "VORKTRFragment.h"
#include "VORKTRLayout.h"
#include "VORKTRReportTools.h"
#include "VORKTRReportingBuffer.h"
#include "VORKTRSite.h"
#include "VORMsgCatalog.h"
#include "VORPath.h"

namespace
{

using FileStream = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

FileStream OpenStream(const char* iPath, const char* iMode)
{
    return FileStream(std::fopen(iPath, iMode), &std::fclose);
}

// True when all of the source was read and the target took it; the close has the last word.
bool CopyStream(std::FILE* iSource, std::FILE* iTarget)
{
    char block[1024];
    std::size_t size = 0;
    while ((size = std::fread(block, 1, sizeof block, iSource)) > 0)
        std::fwrite(block, 1, size, iTarget);
    return !std::ferror(iSource) && !std::ferror(iTarget);
}

// False when a file cannot be opened. A source that did not arrive whole is not deleted.
bool CopyAndDelete(const char* iSource, const char* iTarget)
{
    const FileStream source = OpenStream(iSource, "rb");
    if (!source)
        return false;
    FileStream target = OpenStream(iTarget, "wb");
    if (!target)
        return false;
    const bool isWhole = CopyStream(source.get(), target.get());
    if (std::fclose(target.release()) == 0 && isWhole)
        VORDeleteFile(iSource);
    return true;
}

bool Move(const VORUnicodeString& iSource, const VORUnicodeString& iTarget)
{
    if (VORIsSameEntry(iSource, iTarget))
        return true;
    VORDeleteFile(iTarget);
    return VORRenameFile(iSource, iTarget) == 0 ||
           CopyAndDelete(iSource.ConvertToChar(), iTarget.ConvertToChar());
}

// The last '.' of the file's own name and what follows it; empty without one.
VORString ExtensionOf(const char* iPath)
{
    VORUnicodeString directory;
    VORUnicodeString file;
    VORSplitPath(iPath, directory, file);
    const VORString name = file.ConvertToChar();
    const std::size_t dot = name.rfind('.');
    return dot == VORString::npos ? VORString() : name.substr(dot);
}

VORString NumberedName(int iNumber, const VORString& iExtension)
{
    unsigned long seconds = 0;
    VORGetCurrentTime(&seconds, nullptr);
    char name[25];
    if (VORGetEnv("KTRReportODT"))
        std::snprintf(name, sizeof name, "file%d", iNumber);
    else
        std::snprintf(name, sizeof name, "file%d_%x", iNumber, static_cast<unsigned int>(seconds));
    return name + iExtension;
}

} // namespace

VORKTRReportingFile::VORKTRReportingFile(VORKTRReportingFileType type, const char* path)
    : _Type(type), _FilePath(path ? path : "")
{
}

VORKTRReportingFile::~VORKTRReportingFile() = default;

void VORKTRReportingFile::SetBufferData(const VORUnicodeString* directory)
{
    if (_Directory || !directory)
        return;
    const std::unique_ptr<const char[]> name(MoveFile(directory->ConvertToChar()));
    if (!name)
        return;
    _Directory = std::make_unique<VORUnicodeString>(*directory);
    _FilePath = name.get();
}

char* VORKTRReportingFile::MoveFile(const char* directory) const
{
    if (!_Buffer)
        return nullptr;
    const VORString name =
        NumberedName(++_Buffer->GetIncludedFilesNumber(), ExtensionOf(_FilePath.c_str()));
    VORUnicodeString target;
    if (VORMakePath(directory, name.c_str(), target) < 0 || !Move(_FilePath.c_str(), target))
        return nullptr;
    char* const result = new char[name.size() + 1];
    result[name.copy(result, name.size())] = '\0';
    return result;
}

int VORKTRReportingFile::RemoveFromReport()
{
    VORUnicodeString path = _FilePath.c_str();
    if (_Directory)
        VORMakePath(*_Directory, _FilePath.c_str(), path);
    return VORDeleteFile(path) == 0 ? VOR_S_OK : VOR_E_FAIL;
}

int VORKTRReportingFile::GetType() const
{
    return VORKTRReportingFileKind;
}

void VORKTRReportingFile::Report(unsigned int iFile, const char*, unsigned char, unsigned int) const
{
    WriteFragment(iFile, "<P>");
    const int number = VORKTRReportTools::GetFigureNumber();
    const VORUnicodeString caption = VORMsgCatalog::BuildMessage(
        "VORKTRReportingMessages", "Figure_Number", nullptr, 0, "Figure ");
    switch (_Type) {
    case VORKTRReportingImage:
        // The </p> and the last <CENTER>, where </CENTER> would be expected, are intended.
        WriteFragment(iFile, "<CENTER><IMG SRC=\"", _FilePath, "\" BORDER=0></CENTER></p><CENTER>",
                      caption, Decimal(number), "<CENTER></p>\n");
        break;
    case VORKTRReportingVRML:
        WriteFragment(iFile, "<CENTER><EMBED WIDTH=600 HEIGHT=450 SRC=\"", _FilePath,
                      "\"></EMBED><BR>\n<A HREF=\"", _FilePath, "\">[Full page]</A></CENTER>");
        break;
    case VORKTRReportingAnimation:
        WriteEmbed(iFile, " AUTOSTART=TRUE LOOP=TRUE");
        break;
    default:
        WriteEmbed(iFile, "");
    }
    WriteFragment(iFile, "</P>\n");
}

void VORKTRReportingFile::WriteEmbed(unsigned int iFile, const char* iAttributes) const
{
    WriteFragment(iFile, "<CENTER><EMBED SRC=\"", _FilePath, "\"", iAttributes,
                  "></EMBED></CENTER>");
}

const char* VORKTRReportingFile::GetWord() const
{
    switch (_Type) {
    case VORKTRReportingImage:
        return "[Image]";
    case VORKTRReportingVRML:
        return "[VRML]";
    case VORKTRReportingAnimation:
        return "[Animation]";
    case VORKTRReportingSound:
        return "[Sound]";
    default:
        return "";
    }
}

int VORKTRReportingFile::GetWidthInChar() const
{
    return static_cast<int>(std::strlen(GetWord()));
}

void VORKTRReportingFile::ASCIIReport(VORUnicodeString& ioText) const
{
    ioText.Append(Repeat(' ', MarginOf(GetWidthInChar())));
    ASCIIReport_in_Table(ioText);
    ioText.Append("\n");
}

void VORKTRReportingFile::ASCIIReport_in_Table(VORUnicodeString& ioText) const
{
    ioText.Append(GetWord());
}
