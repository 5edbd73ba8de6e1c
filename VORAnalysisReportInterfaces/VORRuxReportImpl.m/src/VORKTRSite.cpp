#include "VORKTRSite.h"

#include <utility>

#include "VOREnvironment.h"
#include "VORFile.h"
#include "VORKTRFragment.h"
#include "VORKTRStylesheets.h"
#include "VORPath.h"

namespace
{

constexpr const char* EndOfHead = "</HEAD>\n";
constexpr const char* EndOfFrames = "</FRAMESET>\n</HTML>\n";

VORUnicodeString GeneratorLine()
{
    VORUnicodeString line("<META NAME=\"Generator\" CONTENT=\"ZENOA");
    const char* const level = VORGetEnv("WKS_FR_ZENOA");
    if (level && !VORGetEnv("KTRReportODT"))
        line.Append(" ").Append(level);
    return line.Append("\">\n");
}

VORUnicodeString HeadStart(const VORUnicodeString& iTitle)
{
    return VORUnicodeString("<HTML>\n<HEAD>\n<TITLE>")
        .Append(iTitle)
        .Append("</TITLE>\n")
        .Append(GeneratorLine());
}

VORUnicodeString StylesheetLink(const char* iName)
{
    return VORUnicodeString("<LINK REL=\"STYLESHEET\" TYPE=\"TEXT/CSS\" HREF=\"")
        .Append(iName)
        .Append("\">\n");
}

VORUnicodeString BodyStart(const VORUnicodeString& iBackground, const char* iLinkColour = "")
{
    return VORUnicodeString("<BODY ").Append(iBackground).Append(iLinkColour).Append(">\n");
}

VORUnicodeString PageHead(const VORUnicodeString& iTitle, const VORUnicodeString& iBackground)
{
    return HeadStart(iTitle)
        .Append(StylesheetLink(MainStylesName))
        .Append(EndOfHead)
        .Append("\n")
        .Append(BodyStart(iBackground));
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
    SiteFile() = default;
    SiteFile(const SiteFile&) = delete;
    SiteFile& operator=(const SiteFile&) = delete;
    ~SiteFile() { Close(); }

    int Close() { return handle == 0 ? VOR_S_OK : VORFClose(std::exchange(handle, 0)); }

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
    SiteFile file;
    const int status = OpenSiteFile(iDirectory, iName, file.handle, ioFailure);
    if (status < 0)
        return status;
    iWrite(file.handle);
    Noted(ioFailure, file.Close());
    return VOR_S_OK;
}

int WriteStylesheet(const VORUnicodeString& iDirectory, const char* iName, const char* iText,
                    int& ioFailure)
{
    return WriteSiteFile(iDirectory, iName, ioFailure,
                         [&](unsigned int iFile) { WriteFragment(iFile, iText); });
}

void WriteNavigationHead(unsigned int iFile, const VORUnicodeString& iTitle,
                         const VORUnicodeString& iBackground)
{
    WriteFragment(iFile, HeadStart(iTitle), "<BASE TARGET=\"TextFrame\">\n",
                  StylesheetLink(NavigationStylesName), EndOfHead, "\n",
                  BodyStart(iBackground, " ALINK=\"#0000FF\""), "<A HREF=\"", PageName(1),
                  "\"><NOBR><H1>", iTitle, "</H1></NOBR></A>\n");
}

} // namespace

VORUnicodeString Decimal(int iNumber)
{
    VORUnicodeString text;
    text.BuildFromNum(iNumber, "%d");
    return text;
}

VORUnicodeString PageName(int iNumber)
{
    return VORUnicodeString("page").Append(Decimal(iNumber)).Append(".html");
}

int Noted(int& ioFailure, int iStatus)
{
    if (iStatus < 0 && ioFailure >= 0)
        ioFailure = iStatus;
    return iStatus;
}

int NotedUnlessMissing(int& ioFailure, int iStatus)
{
    return iStatus == VOR_E_FILE_NOT_FOUND ? iStatus : Noted(ioFailure, iStatus);
}

void WritePageHead(unsigned int iFile, const VORUnicodeString& iTitle,
                   const VORUnicodeString& iBackground)
{
    WriteFragment(iFile, PageHead(iTitle, iBackground));
}

void WriteFirstPageHead(unsigned int iFile, const VORUnicodeString& iTitle,
                        const VORUnicodeString& iBackground)
{
    WriteFragment(iFile, PageHead(iTitle, iBackground), "<P class=\"maintitle\">", iTitle,
                  "</P>\n");
}

int ClosePage(unsigned int iFile)
{
    WriteFragment(iFile, "</BODY>\n</HTML>\n");
    return VORFClose(iFile);
}

int WriteStylesheets(const VORUnicodeString& iDirectory, bool iWithNavigation, int& ioFailure)
{
    const int status = WriteStylesheet(iDirectory, MainStylesName, MainStyles, ioFailure);
    if (status < 0 || !iWithNavigation)
        return status;
    return WriteStylesheet(iDirectory, NavigationStylesName, NavigationStyles, ioFailure);
}

int OpenFrames(const VORUnicodeString& iDirectory, const VORUnicodeString& iTitle,
               const VORUnicodeString& iBackground, unsigned int& oNavigationFile,
               unsigned int& oPageFile, int& ioFailure)
{
    int status = WriteSiteFile(iDirectory, IndexName, ioFailure, [&](unsigned int iFile) {
        WriteFragment(iFile, HeadStart(iTitle), EndOfHead, "\n", TwoFrames(PageName(1)),
                      EndOfFrames);
    });
    if (status < 0)
        return status;

    status = OpenSiteFile(iDirectory, NavigationName, oNavigationFile, ioFailure);
    if (status < 0)
        return status;
    WriteNavigationHead(oNavigationFile, iTitle, iBackground);

    status = OpenSiteFile(iDirectory, PageName(1), oPageFile, ioFailure);
    if (status < 0)
        return status;
    WriteFirstPageHead(oPageFile, iTitle, iBackground);
    return VOR_S_OK;
}

int WriteReloadPage(const VORUnicodeString& iDirectory, const VORUnicodeString& iTitle,
                    const ReloadPlace& iPlace, int& ioFailure)
{
    return WriteSiteFile(iDirectory, ReloadName, ioFailure, [&](unsigned int iFile) {
        WriteFragment(iFile, HeadStart(iTitle), EndOfHead, " \n");
        const VORUnicodeString anchor = VORUnicodeString("#").Append(Decimal(iPlace.anchor));
        if (iPlace.hasFrames)
            WriteFragment(iFile, TwoFrames(PageName(iPlace.page) + anchor));
        else // the second frame only makes it a frame set
            WriteFragment(iFile, "<FRAMESET ROWS=\"*,1\" BORDER=0>\n",
                          TextFrame(IndexName + anchor), "<FRAME NAME=\"OtherFrame\">\n");
        WriteFragment(iFile, EndOfFrames);
    });
}
