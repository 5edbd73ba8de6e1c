#include "VORKTRReportingFile.h"

#include <cstdio>
#include <cstring>
#include <utility>

#include "VOREnvironment.h"
#include "VORFile.h"
#include "VORKTRFragment.h"
#include "VORKTRLayout.h"
#include "VORKTRReportTools.h"
#include "VORKTRReportingBuffer.h"
#include "VORKTRSite.h"
#include "VORMsgCatalog.h"
#include "VORPath.h"

using namespace VORReport;

namespace
{

// A link's bytes become a file of the site's own; the link goes, what it leads to stays.
int TakeLink(const VORUnicodeString& iSource, const VORUnicodeString& iTarget)
{
    if (VORGetFileKind(iTarget) == VORLinkToFile)
        VORDeleteFile(iTarget);
    const int status = VORFCopy(iSource, iTarget, 1);
    if (status >= 0)
        VORDeleteFile(iSource);
    return status;
}

// A file that cannot be renamed is copied; a source that did not arrive whole stays.
int TakeFile(const VORUnicodeString& iSource, const VORUnicodeString& iTarget, int& ioFailure)
{
    VORDeleteFile(iTarget);
    if (VORRenameFile(iSource, iTarget) == 0)
        return VOR_S_OK;
    int arrival = VOR_S_OK;
    const int status = VORFTransfer(iSource, iTarget, arrival);
    if (status >= 0 && Noted(ioFailure, arrival) >= 0)
        VORDeleteFile(iSource);
    return status;
}

// Negative when there is no target; ioFailure notes also what it lacks.
int Move(const VORUnicodeString& iSource, const VORUnicodeString& iTarget, int& ioFailure)
{
    if (VORIsSameEntry(iSource, iTarget))
        return VOR_S_OK;
    switch (VORGetFileKind(iSource)) {
    case VORNoFile: // a link that leads nowhere, too: it could be renamed
        VORDeleteFile(iTarget);
        return Noted(ioFailure, VOR_E_FILE_NOT_FOUND);
    case VORDirectory:
    case VOROtherFile:
        return Noted(ioFailure, VOR_E_ACCESS_DENIED);
    case VORLinkToFile:
        return Noted(ioFailure, TakeLink(iSource, iTarget));
    case VORRegularFile:
        break;
    }
    return Noted(ioFailure, TakeFile(iSource, iTarget, ioFailure));
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
    if (_Directory || !directory || !_Buffer)
        return;
    auto kept = std::make_unique<VORUnicodeString>(*directory);
    VORString name = NextName();
    if (MoveAs(name, *directory) < 0)
        return;
    _Directory = std::move(kept);
    _FilePath.swap(name);
}

char* VORKTRReportingFile::MoveFile(const char* directory) const
{
    if (!_Buffer)
        return nullptr;
    const VORString name = NextName();
    auto result = std::make_unique<char[]>(name.size() + 1);
    name.copy(result.get(), name.size());
    return MoveAs(name, directory) < 0 ? nullptr : result.release();
}

VORString VORKTRReportingFile::NextName() const
{
    return NumberedName(++_Buffer->GetIncludedFilesNumber(), ExtensionOf(_FilePath.c_str()));
}

int VORKTRReportingFile::MoveAs(const VORString& iName, const VORUnicodeString& iDirectory) const
{
    ItemFailure failure(*_Buffer);
    VORUnicodeString target;
    const int status = Noted(failure.status, VORMakePath(iDirectory, iName.c_str(), target));
    return status < 0 ? status : Move(_FilePath.c_str(), target, failure.status);
}

int VORKTRReportingFile::RemoveFromReport()
{
    VORUnicodeString path = _FilePath.c_str();
    int status = _Directory ? VORMakePath(*_Directory, _FilePath.c_str(), path) : VOR_S_OK;
    if (status >= 0)
        status = VORDeleteFile(path);
    if (_Buffer)
        _Buffer->NoteWriteStatus(status);
    return status == VOR_S_OK ? VOR_S_OK : VOR_E_FAIL;
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
