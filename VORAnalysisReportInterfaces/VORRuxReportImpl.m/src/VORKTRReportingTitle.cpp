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

namespace
{

constexpr const char* Source = VORKTR_SOURCE_PATH "VORKTRReportingTitle";
constexpr const char* BufferAssertion = "AssertionFailed:_Buffer";
constexpr const char* TitleAssertion = "AssertionFailed:_Title";

// A heading in a frame of dashes; one that is longer than the frame is not cut.
VORUnicodeString Boxed(const VORUnicodeString& iTitle)
{
    const VORUnicodeString rule =
        VORUnicodeString(" ").Append(Repeat('-', FrameWidth)).Append("\n");
    return rule + VORUnicodeString(" |").Append(CenteredInFrame(iTitle)).Append("|\n") + rule;
}

VORUnicodeString Centered(const VORUnicodeString& iTitle)
{
    return Repeat(' ', MarginOf(iTitle.GetLengthInChar())).Append(iTitle).Append("\n");
}

VORUnicodeString Underlined(const VORUnicodeString& iTitle, char iRule)
{
    const int length = iTitle.GetLengthInChar();
    return Centered(iTitle)
        .Append(Repeat(' ', MarginOf(length)))
        .Append(Repeat(iRule, length))
        .Append("\n");
}

VORUnicodeString Indented(const VORUnicodeString& iTitle, int iBlanks)
{
    return Repeat(' ', iBlanks).Append(iTitle).Append("\n");
}

// The heading itself, drawn by its level.
VORUnicodeString Drawn(const VORUnicodeString& iTitle, int iOrder)
{
    switch (iOrder) {
    case 1:
        return Boxed(iTitle);
    case 2:
        return Underlined(iTitle, '=');
    case 3:
        return Underlined(iTitle, '-');
    case 4:
        return Centered(iTitle);
    case 5:
        return Indented(iTitle, 4);
    default:
        return Indented(iTitle, 7);
    }
}

VORUnicodeString Block(const VORUnicodeString& iTitle, int iOrder)
{
    return (iOrder <= 2 ? "\n\n" : "\n") + Drawn(iTitle, iOrder) + "\n";
}

} // namespace

VORKTRReportingTitle::VORKTRReportingTitle(const VORUnicodeString& iTitle, int iOrder)
    : _Title(std::make_unique<VORUnicodeString>(iTitle)), _Order(std::clamp(iOrder, 1, 6))
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
    AssertField(_Title.get(), TitleAssertion, Source, 78);
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
    int failure = VOR_S_OK;
    VORUnicodeString path; // made before the close: nothing may fail between it and the open
    Noted(failure, VORMakePath(iPath, PageName(_Buffer->GetPagesNumber() + 1), path));
    Noted(failure, ClosePage(ioFile));
    ++_Buffer->GetPagesNumber();
    const int status = Noted(failure, VORFOpen(path, "w", ioFile));
    if (status >= 0) {
        WritePageHead(ioFile, iTitle, ChoosePageBackground(iPath, failure));
        _Buffer->GetIndex() = 0;
    }
    _Buffer->NoteWriteStatus(failure);
    return status < 0 ? status : VOR_S_OK;
}

void VORKTRReportingTitle::ASCIIReport(VORUnicodeString& ioText) const
{
    AssertField(_Title.get(), TitleAssertion, Source, 233);
    ioText.Append(Block(*_Title, _Order));
}

int VORKTRReportingTitle::GetWidthInChar() const
{
    AssertField(_Title.get(), TitleAssertion, Source, 225);
    return _Title->GetLengthInChar();
}

void VORKTRReportingTitle::ASCIIReport_in_Table(VORUnicodeString& ioText) const
{
    AssertField(_Title.get(), TitleAssertion, Source, 295);
    ioText.Append(*_Title);
}
