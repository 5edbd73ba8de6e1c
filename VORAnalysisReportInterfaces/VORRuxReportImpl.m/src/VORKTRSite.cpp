#include "VORKTRSite.h"

#include "VOREnvironment.h"
#include "VORFile.h"
#include "VORKTRFragment.h"
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

int OpenSiteFile(const VORUnicodeString& iDirectory, const VORUnicodeString& iName,
                 unsigned int& oFile)
{
    VORUnicodeString path;
    const int status = VORMakePath(iDirectory, iName, path);
    if (status < 0)
        return status;
    return VORFOpen(path, "w", oFile) < 0 ? VOR_E_FAIL : VOR_S_OK;
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

void WriteNavigationHead(unsigned int iFile, const VORUnicodeString& iTitle,
                         const VORUnicodeString& iBackground)
{
    WriteFragment(iFile, HeadStart(iTitle), "<BASE TARGET=\"TextFrame\">\n",
                  StylesheetLink(NavigationStylesName), EndOfHead, "\n",
                  BodyStart(iBackground, " ALINK=\"#0000FF\""), "<A HREF=\"", PageName(1),
                  "\"><NOBR><H1>", iTitle, "</H1></NOBR></A>\n");
}

void ClosePage(unsigned int iFile)
{
    WriteFragment(iFile, "</BODY>\n</HTML>\n");
    VORFClose(iFile);
}

void WriteIndexFrames(unsigned int iFile, const VORUnicodeString& iTitle)
{
    WriteFragment(iFile, HeadStart(iTitle), EndOfHead, "\n", TwoFrames(PageName(1)), EndOfFrames);
}

void WriteReloadFrames(unsigned int iFile, const VORUnicodeString& iTitle, bool iFrames, int iPage,
                       int iAnchor)
{
    WriteFragment(iFile, HeadStart(iTitle), EndOfHead, " \n");
    const VORUnicodeString anchor = VORUnicodeString("#").Append(Decimal(iAnchor));
    if (iFrames)
        WriteFragment(iFile, TwoFrames(PageName(iPage) + anchor));
    else // the second frame only makes it a frame set
        WriteFragment(iFile, "<FRAMESET ROWS=\"*,1\" BORDER=0>\n", TextFrame(IndexName + anchor),
                      "<FRAME NAME=\"OtherFrame\">\n");
    WriteFragment(iFile, EndOfFrames);
}
