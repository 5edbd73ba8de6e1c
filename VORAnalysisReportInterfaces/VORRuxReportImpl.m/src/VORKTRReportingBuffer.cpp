#include "VORKTRReportingBuffer.h"

#include <utility>

#include "VOREnvironment.h"
#include "VORFile.h"
#include "VORKTRBackground.h"
#include "VORKTRFragment.h"
#include "VORKTRItems.h"
#include "VORKTRLayout.h"
#include "VORKTRReportingBag.h"
#include "VORKTRSite.h"
#include "VORKTRStylesheets.h"
#include "VORPath.h"

namespace
{

constexpr int LongestBannerTitle = 74;

bool EnsureDirectory(const VORUnicodeString& iPath)
{
    VORDIR directory;
    if (VOROpenDirectory(iPath, &directory) >= 0 && VORCloseDirectory(&directory) >= 0)
        return true;
    return VORCreateDirectory(iPath) == 0;
}

int WriteStylesheet(const VORUnicodeString& iDirectory, const char* iName, const char* iText)
{
    unsigned int file = 0;
    const int status = OpenSiteFile(iDirectory, iName, file);
    if (status < 0)
        return status;
    WriteFragment(file, iText);
    VORFClose(file);
    return VOR_S_OK;
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

VORUnicodeString VORKTRReportingBuffer::_BackgroundCode = PlainBackground;

VORKTRReportingBuffer::VORKTRReportingBuffer() = default;

VORKTRReportingBuffer::~VORKTRReportingBuffer()
{
    // Now, while the counters and directories that the items may use are still there.
    for (int i = 0; i < _ObjectList.GetSize(); ++i)
        _ObjectList[i].reset();
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
    int index = 0;
    if (!iObject || GetObjectIndex(iObject, index) < 0)
        return VOR_E_FAIL;
    return RemoveItem(_ObjectList, index);
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

int VORKTRReportingBuffer::MakeReport(const VORUnicodeString& iDirectory,
                                      const VORUnicodeString& iTitle)
{
    VORUnicodeString* const path = Keep(iDirectory);
    _Title = Keep(iTitle);
    _Path = path;
    if (!EnsureDirectory(*_Path))
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
    if (!_Path || !_Title)
        return VOR_E_FAIL;
    _Frames = FramesExist() != 0;
    DeleteSiteFile(NavigationName);
    DeleteSiteFile(NavigationStylesName);
    // Named by the character of that code, not by the number: the numbered pages stay, to be
    // overwritten, unless the code is that of a digit.
    for (int page = 1; page <= _PagesNb; ++page)
        DeleteSiteFile("page" + VORUnicodeString(static_cast<VORUnicodeChar>(page), 1) + ".html");
    _PagesNb = 1;
    const int status = BeginReport();
    return status < 0 ? status : FlushAndFinish();
}

void VORKTRReportingBuffer::DeleteSiteFile(const VORUnicodeString& iName) const
{
    VORUnicodeString path;
    if (VORMakePath(*_Path, iName, path) >= 0)
        VORDeleteFile(path);
}

int VORKTRReportingBuffer::BeginReport()
{
    if (!_Path || !_Title)
        return VOR_E_FAIL;
    const int access = VORFileAccess(*_Path, 2, 0);
    if (access < 0)
        return access;
    ClosePages();
    ChooseBackground();
    if (MakeStylesheets(*_Path, _Frames) == VOR_E_FAIL)
        return VOR_E_FAIL;
    return _Frames ? BeginFrames() : BeginSinglePage();
}

int VORKTRReportingBuffer::BeginFrames()
{
    const int status = PrepareFrames(*_Path, *_Title, _NavigationFile, _PageFile);
    return status == VOR_E_FAIL ? status : VOR_S_OK;
}

int VORKTRReportingBuffer::BeginSinglePage()
{
    VORUnicodeString path;
    if (VORMakePath(*_Path, IndexName, path) < 0)
        return VOR_S_OK; // without a page, Flush fails
    const int status = VORFOpen(path, "w", _PageFile);
    if (status < 0)
        return status;
    WriteFirstPageHead(_PageFile, *_Title, _BackgroundCode);
    return VOR_S_OK;
}

void VORKTRReportingBuffer::ChooseBackground()
{
    const BackgroundSetting setting = ReadBackgroundSetting();
    if (!setting.isStandard && UseBackground(setting.image))
        return;
    VORUnicodeString image;
    VORFindPath(StandardBackgroundImage, VORGetEnv("VORGraphicPath"), image);
    UseBackground(image);
}

bool VORKTRReportingBuffer::UseBackground(const VORUnicodeString& iImage)
{
    VORUnicodeString directory;
    VORUnicodeString name;
    if (VORSplitPath(iImage, directory, name) < 0 || directory == "" ||
        CopyIcon(name, directory) < 0)
        return false;
    _BackgroundCode = ImageBackground(name);
    return true;
}

int VORKTRReportingBuffer::CopyIcon(VORUnicodeString& iFileName,
                                    VORUnicodeString& iSourceDirectory) const
{
    if (!_Path)
        return VOR_E_FAIL;
    VORUnicodeString source;
    VORUnicodeString target;
    int status = VORMakePath(iSourceDirectory, iFileName, source);
    if (status >= 0)
        status = VORMakePath(*_Path, iFileName, target);
    return status < 0 ? status : VORFCopy(source, target, 1);
}

int VORKTRReportingBuffer::MakeStylesheets(VORUnicodeString& directory, char withNavigation)
{
    const int status = WriteStylesheet(directory, MainStylesName, MainStyles);
    if (status < 0 || !withNavigation)
        return status;
    return WriteStylesheet(directory, NavigationStylesName, NavigationStyles);
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
    unsigned int indexFile = 0;
    int status = OpenSiteFile(directory, IndexName, indexFile);
    if (status < 0)
        return status;
    WriteIndexFrames(indexFile, title);
    VORFClose(indexFile);

    status = OpenSiteFile(directory, NavigationName, navigationFile);
    if (status < 0)
        return status;
    WriteNavigationHead(navigationFile, title, _BackgroundCode);

    status = OpenSiteFile(directory, PageName(1), pageFile);
    if (status < 0)
        return status;
    WriteFirstPageHead(pageFile, title, _BackgroundCode);
    return VOR_S_OK;
}

int VORKTRReportingBuffer::FlushAndFinish()
{
    const int status = Flush();
    return status < 0 ? status : FinishReport();
}

int VORKTRReportingBuffer::Flush()
{
    if (!_Path || _PageFile == 0)
        return VOR_E_FAIL;
    ForEachItem(_ObjectList, [this](const VORKTRReportingObj& item) {
        item.Report(_PageFile, _Path->ConvertToChar(), _Frames, _NavigationFile);
    });
    return VOR_S_OK;
}

int VORKTRReportingBuffer::FinishReport()
{
    if (!_Path)
        return VOR_E_FAIL;
    ClosePage(std::exchange(_PageFile, 0));
    if (_Frames)
        ClosePage(std::exchange(_NavigationFile, 0));
    DeleteSiteFile(ReloadName);
    return VOR_S_OK;
}

void VORKTRReportingBuffer::ClosePages()
{
    for (unsigned int* const file : {&_NavigationFile, &_PageFile}) {
        if (*file != 0)
            VORFClose(std::exchange(*file, 0));
    }
}

int VORKTRReportingBuffer::MakeReloadPage()
{
    if (!_Path || !_Title)
        return VOR_E_FAIL;
    unsigned int file = 0;
    const int status = OpenSiteFile(*_Path, ReloadName, file);
    if (status < 0)
        return status;
    WriteReloadFrames(file, *_Title, _Frames, GetPagesNumber(), GetIndex());
    VORFClose(file);
    return VOR_S_OK;
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
