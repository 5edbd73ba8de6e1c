#include "VORKTRReportingTitle.h"

#include <algorithm>

#include "VORFile.h"
#include "VORKTRAssert.h"
#include "VORKTRBackground.h"
#include "VORKTRFragment.h"
#include "VORKTRLayout.h"
#include "VORKTRReportingBuffer.h"
#include "VORKTRSite.h"
#include "VORPath.h"

using namespace VORReport;

namespace
{

constexpr const char* Source = VORKTR_SOURCE_PATH "VORKTRReportingTitle";
constexpr const char* BufferAssertion = "AssertionFailed:_Buffer";
constexpr const char* TitleAssertion = "AssertionFailed:_Title";

void AppendRule(VORKTRByteBuffer& ioText)
{
    ioText.Append(" ");
    AppendRun(ioText, '-', FrameWidth);
    ioText.Append("\n");
}

// A heading in a frame of dashes; one that is longer than the frame is not cut.
void AppendBoxed(VORKTRByteBuffer& ioText, const VORUnicodeString& iTitle)
{
    AppendRule(ioText);
    ioText.Append(" |", CenteredInFrame(iTitle), "|\n");
    AppendRule(ioText);
}

void AppendIndented(VORKTRByteBuffer& ioText, const VORUnicodeString& iTitle, int iBlanks)
{
    AppendRun(ioText, ' ', iBlanks);
    ioText.Append(iTitle, "\n");
}

void AppendCentered(VORKTRByteBuffer& ioText, const VORUnicodeString& iTitle)
{
    AppendIndented(ioText, iTitle, MarginOf(iTitle.GetLengthInChar()));
}

void AppendUnderlined(VORKTRByteBuffer& ioText, const VORUnicodeString& iTitle, char iRule)
{
    const int length = iTitle.GetLengthInChar();
    AppendCentered(ioText, iTitle);
    AppendRun(ioText, ' ', MarginOf(length));
    AppendRun(ioText, iRule, length);
    ioText.Append("\n");
}

void AppendDrawn(VORKTRByteBuffer& ioText, const VORUnicodeString& iTitle, int iOrder)
{
    switch (iOrder) {
    case 1:
        return AppendBoxed(ioText, iTitle);
    case 2:
        return AppendUnderlined(ioText, iTitle, '=');
    case 3:
        return AppendUnderlined(ioText, iTitle, '-');
    case 4:
        return AppendCentered(ioText, iTitle);
    case 5:
        return AppendIndented(ioText, iTitle, 4);
    default:
        return AppendIndented(ioText, iTitle, 7);
    }
}

// Opens a file in the place of one just closed; without memory nobody else gets its number.
int OpenPage(const VORUnicodeString& iPath, unsigned int& oFile)
try {
    return VORFOpen(iPath, "w", oFile);
} catch (...) {
    VORFReserve(oFile, VOR_E_FAIL);
    throw;
}

} // namespace

VORKTRReportingTitle::VORKTRReportingTitle(const VORUnicodeString& iTitle, int iOrder)
    : _Title(iTitle), _Order(std::clamp(iOrder, 1, 6))
{
}

VORKTRReportingTitle::~VORKTRReportingTitle() = default;

int VORKTRReportingTitle::GetOrder() const
{
    return _Order;
}

int VORKTRReportingTitle::GetType() const
{
    return VORKTRReportingTitleKind;
}

void VORKTRReportingTitle::SetBufferData(const VORUnicodeString* iPath)
{
    if (!_Path && iPath)
        _Path = *iPath;
}

void VORKTRReportingTitle::Report(unsigned int iFile, const char*, unsigned char iFrames,
                                  unsigned int iNavigationFile) const
{
    AssertField(_Buffer, BufferAssertion, Source, 77);
    AssertField(_Title.has_value(), TitleAssertion, Source, 78);
    ++_Buffer->GetIndex();
    unsigned int file = iFile;
    if (iFrames && _Order < 3 && _Path)
        BreakPage(file);

    const VORUnicodeString anchor = Decimal(_Buffer->GetIndex());
    const char level[] = {static_cast<char>('0' + _Order), '\0'};
    if (iFrames)
        WriteFragment(iNavigationFile, "<A HREF=\"", PageName(_Buffer->GetPagesNumber()), "#",
                      anchor, "\"><NOBR><H", level, ">", *_Title, "</H", level, "></NOBR></A>\n");
    WriteFragment(file, "\n<A NAME=\"", anchor, "\"><H", level, ">", *_Title, "</H", level,
                  "></A>\n");
}

// The files are numbered so that a new page takes over the number of the one it ends: the items
// that follow, given that number by the report, write into the new page. A page that cannot be
// opened keeps its number from every other file, so that what they write goes nowhere.
void VORKTRReportingTitle::BreakPage(unsigned int& ioFile) const
{
    const int status = OpenNextPage(*_Title, ioFile, *_Path);
    if (status < 0)
        VORFReserve(ioFile, status);
}

int VORKTRReportingTitle::NewPage(const VORUnicodeString* iTitle, unsigned int& ioFile,
                                  const char* iPath) const
{
    AssertField(_Buffer, BufferAssertion, Source, 129);
    return iTitle ? OpenNextPage(*iTitle, ioFile, iPath) : VOR_E_INVALIDARG;
}

int VORKTRReportingTitle::OpenNextPage(const VORUnicodeString& iTitle, unsigned int& ioFile,
                                       const VORUnicodeString& iPath) const
{
    ItemFailure failure(*_Buffer);
    const VORUnicodeString level = ReadLevel();
    VORUnicodeString path; // made before the close: nothing may fail between it and the open
    Noted(failure.status, VORMakePath(iPath, PageName(_Buffer->GetPagesNumber() + 1), path));
    Noted(failure.status, ClosePage(ioFile));
    ++_Buffer->GetPagesNumber();
    const int status = Noted(failure.status, OpenPage(path, ioFile));
    if (status < 0)
        return status;
    WritePageHead(ioFile, iTitle, ChoosePageBackground(iPath, failure.status), level);
    _Buffer->GetIndex() = 0;
    return VOR_S_OK;
}

void VORKTRReportingTitle::ASCIIReport(VORUnicodeString& ioText) const
{
    AssertField(_Title.has_value(), TitleAssertion, Source, 233);
    VORKTRByteBuffer block;
    block.Append(_Order <= 2 ? "\n\n" : "\n");
    AppendDrawn(block, *_Title, _Order);
    block.Append("\n");
    ioText.AppendBytes(block.Get());
}

int VORKTRReportingTitle::GetWidthInChar() const
{
    AssertField(_Title.has_value(), TitleAssertion, Source, 225);
    return _Title->GetLengthInChar();
}

void VORKTRReportingTitle::ASCIIReport_in_Table(VORUnicodeString& ioText) const
{
    AssertField(_Title.has_value(), TitleAssertion, Source, 295);
    ioText.Append(*_Title);
}
