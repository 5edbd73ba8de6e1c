#ifndef VORKTRSite_h
#define VORKTRSite_h

#include "VORKTRReportingBuffer.h"
#include "VORUnicodeString.h"

namespace VORReport
{

// The files of a site and what stands once in several of them.

constexpr const char* IndexName = "index.html";
constexpr const char* NavigationName = "navigation.html";
constexpr const char* ReloadName = "reload.html";
constexpr const char* MainStylesName = "main.css";
constexpr const char* NavigationStylesName = "navigation.css";

/// A number in decimal.
VORUnicodeString Decimal(int iNumber);

/// The name of a page by its number, "page%d.html", or by other words in the number's place.
VORUnicodeString PageName(int iNumber);
VORUnicodeString PageName(const VORUnicodeString& iWords);

/// Returns a status, which becomes ioFailure when it is the first negative one.
int Noted(int& ioFailure, int iStatus);
/// As above, but that there is no such file is not noted.
int NotedUnlessMissing(int& ioFailure, int iStatus);

/// The first failure of what an item does, which its report is told at the end, even when an
/// exception is the end.
struct ItemFailure {
    explicit ItemFailure(VORKTRReportingBuffer& ioReport) : report(ioReport) {}
    ItemFailure(const ItemFailure&) = delete;
    ItemFailure& operator=(const ItemFailure&) = delete;
    ~ItemFailure() { report.NoteWriteStatus(status); }

    VORKTRReportingBuffer& report;
    int status = 0;
};

/// What follows the generator's name in a page's head, a blank and the level that the environment
/// sets, or nothing. Of a page that stays open it is read before the page is opened.
VORUnicodeString ReadLevel();

/// Each writes the beginning of a page in one write; titles and backgrounds go in as they stand.
void WritePageHead(unsigned int iFile, const VORUnicodeString& iTitle,
                   const VORUnicodeString& iBackground, const VORUnicodeString& iLevel);
/// The first page: head and main title.
void WriteFirstPageHead(unsigned int iFile, const VORUnicodeString& iTitle,
                        const VORUnicodeString& iBackground, const VORUnicodeString& iLevel);

/// Ends a page and closes it. Returns the status of the close.
int ClosePage(unsigned int iFile);

// What follows returns 0, the failure of a path as it is, or VOR_E_FAIL when a file cannot be
// opened. ioFailure notes every failure, also of a close, by its own status.

/// Writes "main.css" and, when asked to, "navigation.css".
int WriteStylesheets(const VORUnicodeString& iDirectory, bool iWithNavigation, int& ioFailure);

/// Writes the frame set of a site that opens at its first page, and opens that page and the
/// navigation page, their heads written. A file opened before a failure stays open.
int OpenFrames(const VORUnicodeString& iDirectory, const VORUnicodeString& iTitle,
               const VORUnicodeString& iBackground, unsigned int& oNavigationFile,
               unsigned int& oPageFile, int& ioFailure);

/// Where "reload.html" opens a site: at an anchor, of a page when there are frames.
struct ReloadPlace {
    bool hasFrames;
    int page;
    int anchor;
};

/// Writes "reload.html".
int WriteReloadPage(const VORUnicodeString& iDirectory, const VORUnicodeString& iTitle,
                    const ReloadPlace& iPlace, int& ioFailure);

} // namespace VORReport

#endif
