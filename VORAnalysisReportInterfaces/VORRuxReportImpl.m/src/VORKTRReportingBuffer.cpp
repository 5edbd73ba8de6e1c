#include "VORKTRReportingBuffer.h"

#include <memory>
#include <mutex>
#include <utility>

#include "VOREnvironment.h"
#include "VORFile.h"
#include "VORKTRBackground.h"
#include "VORKTRItems.h"
#include "VORKTRLayout.h"
#include "VORKTRReportingBag.h"
#include "VORKTRSite.h"
#include "VORPath.h"

using namespace VORReport;

namespace
{

std::mutex BackgroundMutex; // guards the background that the process shares

// 0, or why there is no directory.
int EnsureDirectory(const VORUnicodeString& iPath)
{
    VORDIR directory;
    const int opened = VOROpenDirectory(iPath, &directory);
    if (opened >= 0 && VORCloseDirectory(&directory) >= 0)
        return VOR_S_OK;
    const int created = VORCreateDirectory(iPath);
    return created != VOR_S_OK && opened == VOR_E_ACCESS_DENIED ? opened : created;
}

int CountTitles(VORKTRReportingObj& iItem, int iOrder)
{
    if (IsTitle(iItem, iOrder))
        return 1;
    if (iItem.GetType() == VORKTRReportingBagKind)
        return static_cast<VORKTRReportingBag&>(iItem).GetNbTitles(iOrder);
    return 0;
}

} // namespace

VORUnicodeString* VORKTRReportingBuffer::_BackgroundCode = nullptr;

VORKTRReportingBuffer::VORKTRReportingBuffer() = default;

VORKTRReportingBuffer::~VORKTRReportingBuffer()
{
    DestroyItems(_ObjectList); // while the counters and directories that they may use are there
    ClosePages();
    // No effect here; a platform's own string class may count on it when a report ends.
    VORUnicodeString().BuildFromNum(100, "%#x");
}

int VORKTRReportingBuffer::AddObject(VORKTRReportingObj* iObject)
{
    if (!iObject)
        return VOR_E_FAIL;
    std::unique_ptr<VORKTRReportingObj> item(iObject);
    const VORKTRItemArray::Room room(_ObjectList);
    Adopt(*item);
    _ObjectList.Append(std::move(item));
    return VOR_S_OK;
}

int VORKTRReportingBuffer::InsertObjectAtIndex(VORKTRReportingObj* iObject, int iIndex)
{
    if (!iObject || !_ObjectList.Holds(iIndex))
        return VOR_E_FAIL;
    std::unique_ptr<VORKTRReportingObj> item(iObject);
    const VORKTRItemArray::Room room(_ObjectList);
    Adopt(*item);
    _ObjectList.Insert(iIndex, std::move(item));
    return VOR_S_OK;
}

void VORKTRReportingBuffer::Adopt(VORKTRReportingObj& ioItem)
{
    ioItem.SetBuffer(this);
    if (_PathSent)
        ioItem.SetBufferData(_Path);
}

int VORKTRReportingBuffer::RemoveObject(int iIndex)
{
    if (!_ObjectList.Holds(iIndex) || !_ObjectList[iIndex])
        return VOR_E_FAIL;
    return RemoveItem(_ObjectList, iIndex);
}

int VORKTRReportingBuffer::RemoveObject(VORKTRReportingObj* iObject)
{
    const int index = iObject ? FindFromLast(iObject) : -1;
    return index < 0 ? VOR_E_FAIL : RemoveItem(_ObjectList, index);
}

// Both ways from where the last search ended: programs remove in the order in which they added, in
// reverse, or what they added last. From the beginning, 100,000 removals took seconds.
int VORKTRReportingBuffer::FindFromLast(const VORKTRReportingObj* iObject)
{
    for (int away = 0; away < _ObjectList.GetSize(); ++away) {
        for (const int index : {_LastFound + away, _LastFound - away}) {
            if (_ObjectList.Holds(index) && _ObjectList[index].get() == iObject)
                return _LastFound = index;
        }
    }
    return -1;
}

int VORKTRReportingBuffer::GetObjectIndex(VORKTRReportingObj* iObject, int& oIndex)
{
    for (int i = 0; i < _ObjectList.GetSize(); ++i) {
        if (_ObjectList[i].get() == iObject) {
            oIndex = i;
            return VOR_S_OK;
        }
    }
    return VOR_E_FAIL;
}

VORUnicodeString* VORKTRReportingBuffer::Keep(const VORUnicodeString& iText)
{
    _Texts.push_front(iText);
    return &_Texts.front();
}

int VORKTRReportingBuffer::TakeWriteStatus()
{
    return std::exchange(_WriteStatus, VOR_S_OK);
}

void VORKTRReportingBuffer::NoteWriteStatus(int iStatus)
{
    Noted(_WriteStatus, iStatus);
}

int VORKTRReportingBuffer::MakeReport(const VORUnicodeString& iDirectory,
                                      const VORUnicodeString& iTitle)
{
    VORUnicodeString* const path = Keep(iDirectory);
    _Title = Keep(iTitle);
    _Path = path;
    if (Noted(_WriteStatus, EnsureDirectory(*_Path)) != 0)
        return VOR_E_FAIL;
    _Frames = FramesExist() != 0;
    const int status = BeginReport();
    if (status < 0)
        return status;
    ForEachItem(_ObjectList, [this](VORKTRReportingObj& item) { item.SetBufferData(_Path); });
    _PathSent = true;
    return FlushAndFinish();
}

int VORKTRReportingBuffer::Update()
{
    if (!RequireDirectory())
        return VOR_E_FAIL;
    _Frames = FramesExist() != 0;
    DeleteSiteFile(NavigationName);
    if (DeleteSiteFile(NavigationStylesName) >= 0)
        DeleteCharacterPages();
    _PagesNb = 1;
    const int status = BeginReport();
    return status < 0 ? status : FlushAndFinish();
}

// False before the first MakeReport, which is noted.
bool VORKTRReportingBuffer::RequireDirectory() const
{
    return Noted(_WriteStatus, _Path ? VOR_S_OK : VOR_E_FILE_NOT_FOUND) >= 0;
}

// Returns the status of the path.
int VORKTRReportingBuffer::DeleteSiteFile(const VORUnicodeString& iName)
{
    VORUnicodeString path;
    const int status = Noted(_WriteStatus, VORMakePath(*_Path, iName, path));
    if (status >= 0)
        NotedUnlessMissing(_WriteStatus, VORDeleteFile(path));
    return status;
}

// Pages named by the character of that code, not by the number: the numbered pages stay, to be
// overwritten, unless the code is that of a digit.
void VORKTRReportingBuffer::DeleteCharacterPages() const
{
    for (int page = 1; page <= _PagesNb; ++page) {
        const VORUnicodeString character(static_cast<VORUnicodeChar>(page), 1);
        VORUnicodeString path;
        if (VORMakePath(*_Path, PageName(character), path) >= 0)
            VORDeleteFile(path);
    }
}

int VORKTRReportingBuffer::BeginReport()
{
    if (!RequireDirectory())
        return VOR_E_FAIL;
    const int access = Noted(_WriteStatus, VORFileAccess(*_Path, 2, 0));
    if (access < 0)
        return access;
    ClosePages();
    const VORUnicodeString background = ChooseBackground();
    if (WriteStylesheets(*_Path, _Frames, _WriteStatus) == VOR_E_FAIL)
        return VOR_E_FAIL;
    return _Frames ? BeginFrames(background) : BeginSinglePage(background);
}

int VORKTRReportingBuffer::BeginFrames(const VORUnicodeString& iBackground)
{
    const int status =
        OpenFrames(*_Path, *_Title, iBackground, _NavigationFile, _PageFile, _WriteStatus);
    return status == VOR_E_FAIL ? status : VOR_S_OK;
}

int VORKTRReportingBuffer::BeginSinglePage(const VORUnicodeString& iBackground)
{
    const VORUnicodeString level = ReadLevel();
    VORUnicodeString path;
    if (Noted(_WriteStatus, VORMakePath(*_Path, IndexName, path)) < 0)
        return VOR_S_OK; // without a page, Flush fails
    const int status = Noted(_WriteStatus, VORFOpen(path, "w", _PageFile));
    if (status < 0)
        return status;
    WriteFirstPageHead(_PageFile, *_Title, iBackground, level);
    return VOR_S_OK;
}

// The background of the first page: an image that could be copied, else that of the run before, of
// whatever report of the process.
VORUnicodeString VORKTRReportingBuffer::ChooseBackground()
{
    const BackgroundSetting setting = ReadBackgroundSetting();
    VORUnicodeString directory;
    VORUnicodeString name;
    if (setting.image && VORSplitPath(*setting.image, directory, name) >= 0 &&
        CopyBackground(name, directory))
        return ImageBackground(name);
    VORUnicodeString standard = StandardBackgroundImage;
    VORUnicodeString image;
    NotedUnlessMissing(_WriteStatus,
                       VORFindPath(StandardBackgroundImage, VORGetEnv("VORGraphicPath"), image));
    if (VORSplitPath(image, directory, name) >= 0 && CopyBackground(standard, directory))
        return ImageBackground(standard);
    return LatestBackground();
}

bool VORKTRReportingBuffer::CopyBackground(VORUnicodeString& iName, VORUnicodeString& iDirectory)
{
    if (iDirectory == "" || CopyIcon(iName, iDirectory) < 0)
        return false;
    auto latest = std::make_unique<VORUnicodeString>(ImageBackground(iName));
    const std::lock_guard<std::mutex> lock(BackgroundMutex);
    delete std::exchange(_BackgroundCode, latest.release());
    return true;
}

VORUnicodeString VORKTRReportingBuffer::LatestBackground()
{
    const std::lock_guard<std::mutex> lock(BackgroundMutex);
    return _BackgroundCode ? *_BackgroundCode : PlainBackground;
}

int VORKTRReportingBuffer::CopyIcon(VORUnicodeString& iFileName,
                                    VORUnicodeString& iSourceDirectory) const
{
    if (!RequireDirectory())
        return VOR_E_FAIL;
    VORUnicodeString source;
    VORUnicodeString target;
    int status = VORMakePath(iSourceDirectory, iFileName, source);
    if (status >= 0)
        status = VORMakePath(*_Path, iFileName, target);
    return Noted(_WriteStatus, status < 0 ? status : VORFCopy(source, target, 1));
}

int VORKTRReportingBuffer::MakeStylesheets(VORUnicodeString& directory, char withNavigation)
{
    int unseen = VOR_S_OK;
    return WriteStylesheets(directory, withNavigation != 0, unseen);
}

int VORKTRReportingBuffer::FramesExist() const
{
    int first = 0;
    int second = 0;
    for (int i = 0; i < _ObjectList.GetSize() && first < 2 && second < 2; ++i) {
        if (_ObjectList[i]) {
            first += CountTitles(*_ObjectList[i], 1);
            second += CountTitles(*_ObjectList[i], 2);
        }
    }
    return first >= 2 || second >= 2 ? 1 : 0;
}

int VORKTRReportingBuffer::PrepareFrames(VORUnicodeString& directory, const VORUnicodeString& title,
                                         unsigned int& navigationFile, unsigned int& pageFile)
{
    int unseen = VOR_S_OK;
    return OpenFrames(directory, title, LatestBackground(), navigationFile, pageFile, unseen);
}

int VORKTRReportingBuffer::FlushAndFinish()
{
    const int status = Flush();
    return status < 0 ? status : FinishReport();
}

int VORKTRReportingBuffer::Flush()
{
    if (!RequireDirectory())
        return VOR_E_FAIL;
    if (_PageFile == 0) {
        NoteWriteStatus(VOR_E_INVALID_HANDLE);
        return VOR_E_FAIL;
    }
    ForEachItem(_ObjectList, [this](const VORKTRReportingObj& item) {
        item.Report(_PageFile, _Path->ConvertToChar(), _Frames, _NavigationFile);
    });
    return VOR_S_OK;
}

int VORKTRReportingBuffer::FinishReport()
{
    if (!RequireDirectory())
        return VOR_E_FAIL;
    NoteWriteStatus(ClosePage(std::exchange(_PageFile, 0)));
    if (_Frames)
        NoteWriteStatus(ClosePage(std::exchange(_NavigationFile, 0)));
    DeleteSiteFile(ReloadName);
    return VOR_S_OK;
}

void VORKTRReportingBuffer::ClosePages()
{
    for (unsigned int* const file : {&_NavigationFile, &_PageFile}) {
        if (*file != 0)
            NoteWriteStatus(VORFClose(std::exchange(*file, 0)));
    }
}

int VORKTRReportingBuffer::MakeReloadPage()
{
    if (!RequireDirectory())
        return VOR_E_FAIL;
    return WriteReloadPage(*_Path, *_Title, {_Frames, GetPagesNumber(), GetIndex()}, _WriteStatus);
}

int VORKTRReportingBuffer::MakeTextReport(const VORUnicodeString& iTitle,
                                          VORUnicodeString& ioText) const
{
    BeginTextReport(iTitle, ioText);
    FlushText(ioText);
    return VOR_S_OK;
}

int VORKTRReportingBuffer::BeginTextReport(const VORUnicodeString& iTitle,
                                           VORUnicodeString& ioText) const
{
    if (iTitle == "")
        return VOR_S_OK;
    VORUnicodeString title = iTitle;
    title.ReplaceSubString(LongestBannerTitle, title.GetLengthInChar(), "");
    const VORUnicodeString rule = " " + Repeat('*', FrameWidth) + "\n";
    const VORUnicodeString empty = " *" + CenteredInFrame("") + "*\n";
    ioText.Append(rule + empty + " *" + CenteredInFrame(title) + "*\n" + empty + rule + "\n");
    return VOR_S_OK;
}

int VORKTRReportingBuffer::FlushText(VORUnicodeString& ioText) const
{
    ForEachItem(_ObjectList, [&](const VORKTRReportingObj& item) { item.ASCIIReport(ioText); });
    return VOR_S_OK;
}
