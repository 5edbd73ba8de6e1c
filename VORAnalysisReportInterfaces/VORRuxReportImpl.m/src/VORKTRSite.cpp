#include "VORKTRSite.h"

#include "VOREnvironment.h"
#include "VORFile.h"
#include "VORKTRFragment.h"
#include "VORKTRStylesheets.h"
#include "VORPath.h"

using namespace VORReport;

namespace
{

constexpr const char* EndOfHead = "</HEAD>\n";
constexpr const char* EndOfFrames = "</FRAMESET>\n</HTML>\n";

void AppendHeadStart(Fragment& ioPage, const VORUnicodeString& iTitle,
                     const VORUnicodeString& iLevel)
{
    ioPage.Append("<HTML>\n<HEAD>\n<TITLE>", iTitle, "</TITLE>\n",
                  "<META NAME=\"Generator\" CONTENT=\"ZENOA");
    if (!VORGetEnv("KTRReportODT"))
        ioPage.Append(iLevel);
    ioPage.Append("\">\n");
}

void AppendStylesheetLink(Fragment& ioPage, const char* iName)
{
    ioPage.Append("<LINK REL=\"STYLESHEET\" TYPE=\"TEXT/CSS\" HREF=\"", iName, "\">\n");
}

void AppendBodyStart(Fragment& ioPage, const VORUnicodeString& iBackground,
                     const char* iLinkColour = "")
{
    ioPage.Append(EndOfHead, "\n<BODY ", iBackground, iLinkColour, ">\n");
}

void AppendPageHead(Fragment& ioPage, const VORUnicodeString& iTitle,
                    const VORUnicodeString& iBackground, const VORUnicodeString& iLevel)
{
    AppendHeadStart(ioPage, iTitle, iLevel);
    AppendStylesheetLink(ioPage, MainStylesName);
    AppendBodyStart(ioPage, iBackground);
}

VORUnicodeString TextFrame(const VORUnicodeString& iSource)
{
    return VORUnicodeString("<FRAME NAME=\"TextFrame\" SRC=\"").Append(iSource).Append("\">\n");
}

VORUnicodeString TwoFrames(const VORUnicodeString& iTextSource)
{
    return VORUnicodeString("<FRAMESET COLS=\"20%,*\">\n<FRAME NAME=\"NavigationFrame\" SRC=\"")
        .Append(NavigationName)
        .Append("\">\n")
        .Append(TextFrame(iTextSource));
}

/// A file of the site, closed at the end whatever happens.
struct SiteFile {
    explicit SiteFile(int& ioFailure) : failure(ioFailure) {}
    SiteFile(const SiteFile&) = delete;
    SiteFile& operator=(const SiteFile&) = delete;
    ~SiteFile()
    {
        if (handle != 0)
            Noted(failure, VORFClose(handle));
    }

    int& failure;
    unsigned int handle = 0;
};

int OpenSiteFile(const VORUnicodeString& iDirectory, const VORUnicodeString& iName,
                 unsigned int& oFile, int& ioFailure)
{
    VORUnicodeString path;
    const int status = Noted(ioFailure, VORMakePath(iDirectory, iName, path));
    if (status < 0)
        return status;
    return Noted(ioFailure, VORFOpen(path, "w", oFile)) < 0 ? VOR_E_FAIL : VOR_S_OK;
}

// A whole file, written by iWrite(handle).
template <typename Write>
int WriteSiteFile(const VORUnicodeString& iDirectory, const char* iName, int& ioFailure,
                  Write&& iWrite)
{
    SiteFile file(ioFailure);
    const int status = OpenSiteFile(iDirectory, iName, file.handle, ioFailure);
    if (status < 0)
        return status;
    iWrite(file.handle);
    return VOR_S_OK;
}

int WriteStylesheet(const VORUnicodeString& iDirectory, const char* iName, const char* iText,
                    int& ioFailure)
{
    return WriteSiteFile(iDirectory, iName, ioFailure,
                         [&](unsigned int iFile) { WriteFragment(iFile, iText); });
}

void WriteNavigationHead(unsigned int iFile, const VORUnicodeString& iTitle,
                         const VORUnicodeString& iBackground, const VORUnicodeString& iLevel)
{
    ShortFragment page(iFile);
    AppendHeadStart(page, iTitle, iLevel);
    page.Append("<BASE TARGET=\"TextFrame\">\n");
    AppendStylesheetLink(page, NavigationStylesName);
    AppendBodyStart(page, iBackground, " ALINK=\"#0000FF\"");
    page.Append("<A HREF=\"", PageName(1), "\"><NOBR><H1>", iTitle, "</H1></NOBR></A>\n");
    page.Send();
}

} // namespace

VORUnicodeString VORReport::Decimal(int iNumber)
{
    VORUnicodeString text;
    text.BuildFromNum(iNumber, "%d");
    return text;
}

VORUnicodeString VORReport::PageName(int iNumber)
{
    return PageName(Decimal(iNumber));
}

VORUnicodeString VORReport::PageName(const VORUnicodeString& iWords)
{
    return "page" + iWords + ".html";
}

int VORReport::Noted(int& ioFailure, int iStatus)
{
    if (iStatus < 0 && ioFailure >= 0)
        ioFailure = iStatus;
    return iStatus;
}

int VORReport::NotedUnlessMissing(int& ioFailure, int iStatus)
{
    return iStatus == VOR_E_FILE_NOT_FOUND ? iStatus : Noted(ioFailure, iStatus);
}

VORUnicodeString VORReport::ReadLevel()
{
    const char* const level = VORGetEnv("WKS_FR_ZENOA");
    return level ? VORUnicodeString(" ").Append(level) : VORUnicodeString();
}

void VORReport::WritePageHead(unsigned int iFile, const VORUnicodeString& iTitle,
                              const VORUnicodeString& iBackground, const VORUnicodeString& iLevel)
{
    ShortFragment page(iFile);
    AppendPageHead(page, iTitle, iBackground, iLevel);
    page.Send();
}

void VORReport::WriteFirstPageHead(unsigned int iFile, const VORUnicodeString& iTitle,
                                   const VORUnicodeString& iBackground,
                                   const VORUnicodeString& iLevel)
{
    ShortFragment page(iFile);
    AppendPageHead(page, iTitle, iBackground, iLevel);
    page.Append("<P class=\"maintitle\">", iTitle, "</P>\n");
    page.Send();
}

int VORReport::ClosePage(unsigned int iFile)
{
    WriteFragment(iFile, "</BODY>\n</HTML>\n");
    return VORFClose(iFile);
}

int VORReport::WriteStylesheets(const VORUnicodeString& iDirectory, bool iWithNavigation,
                                int& ioFailure)
{
    const int status = WriteStylesheet(iDirectory, MainStylesName, MainStyles, ioFailure);
    if (status < 0 || !iWithNavigation)
        return status;
    return WriteStylesheet(iDirectory, NavigationStylesName, NavigationStyles, ioFailure);
}

int VORReport::OpenFrames(const VORUnicodeString& iDirectory, const VORUnicodeString& iTitle,
                          const VORUnicodeString& iBackground, unsigned int& oNavigationFile,
                          unsigned int& oPageFile, int& ioFailure)
{
    const VORUnicodeString level = ReadLevel();
    int status = WriteSiteFile(iDirectory, IndexName, ioFailure, [&](unsigned int iFile) {
        ShortFragment page(iFile);
        AppendHeadStart(page, iTitle, level);
        page.Append(EndOfHead, "\n", TwoFrames(PageName(1)), EndOfFrames);
        page.Send();
    });
    if (status < 0)
        return status;

    status = OpenSiteFile(iDirectory, NavigationName, oNavigationFile, ioFailure);
    if (status < 0)
        return status;
    WriteNavigationHead(oNavigationFile, iTitle, iBackground, level);

    status = OpenSiteFile(iDirectory, PageName(1), oPageFile, ioFailure);
    if (status < 0)
        return status;
    WriteFirstPageHead(oPageFile, iTitle, iBackground, level);
    return VOR_S_OK;
}

int VORReport::WriteReloadPage(const VORUnicodeString& iDirectory, const VORUnicodeString& iTitle,
                               const ReloadPlace& iPlace, int& ioFailure)
{
    return WriteSiteFile(iDirectory, ReloadName, ioFailure, [&](unsigned int iFile) {
        ShortFragment page(iFile);
        AppendHeadStart(page, iTitle, ReadLevel());
        page.Append(EndOfHead, " \n");
        page.Send();
        const VORUnicodeString anchor = VORUnicodeString("#").Append(Decimal(iPlace.anchor));
        if (iPlace.hasFrames)
            WriteFragment(iFile, TwoFrames(PageName(iPlace.page) + anchor));
        else // the second frame only makes it a frame set
            WriteFragment(iFile, "<FRAMESET ROWS=\"*,1\" BORDER=0>\n",
                          TextFrame(IndexName + anchor), "<FRAME NAME=\"OtherFrame\">\n");
        WriteFragment(iFile, EndOfFrames);
    });
}
