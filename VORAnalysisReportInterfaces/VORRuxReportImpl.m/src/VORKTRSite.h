#ifndef VORKTRSite_h
#define VORKTRSite_h

#include "VORUnicodeString.h"

// The files of a site and what stands once in several of them.

constexpr const char* IndexName = "index.html";
constexpr const char* NavigationName = "navigation.html";
constexpr const char* ReloadName = "reload.html";
constexpr const char* MainStylesName = "main.css";
constexpr const char* NavigationStylesName = "navigation.css";

/// A number in decimal.
VORUnicodeString Decimal(int iNumber);

/// "page%d.html"
VORUnicodeString PageName(int iNumber);

/// Creates a file of the site. Returns 0, the failure of the path as it is, or 0x80004005 when the
/// file cannot be opened.
int OpenSiteFile(const VORUnicodeString& iDirectory, const VORUnicodeString& iName,
                 unsigned int& oFile);

/// Each writes the beginning of a page in one write; titles and backgrounds go in as they stand.
void WritePageHead(unsigned int iFile, const VORUnicodeString& iTitle,
                   const VORUnicodeString& iBackground);
/// The first page: head and main title.
void WriteFirstPageHead(unsigned int iFile, const VORUnicodeString& iTitle,
                        const VORUnicodeString& iBackground);
/// The navigation page: head and the link to the first page.
void WriteNavigationHead(unsigned int iFile, const VORUnicodeString& iTitle,
                         const VORUnicodeString& iBackground);

/// Ends a page and closes it.
void ClosePage(unsigned int iFile);

/// The whole frame set of a site that opens at the first page.
void WriteIndexFrames(unsigned int iFile, const VORUnicodeString& iTitle);

/// The frame set that opens a site at iAnchor, of page iPage when it has frames.
void WriteReloadFrames(unsigned int iFile, const VORUnicodeString& iTitle, bool iFrames, int iPage,
                       int iAnchor);

#endif
