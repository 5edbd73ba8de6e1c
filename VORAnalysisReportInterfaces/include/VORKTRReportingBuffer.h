#ifndef VORKTRReportingBuffer_h
#define VORKTRReportingBuffer_h

#include <forward_list>

#include "VORAnalysisReportInterfacesExport.h"
#include "VORKTRReportingObj.h"
#include "VORUnicodeString.h"
#include "detail/VORKTRSteppedArray.h"

/// A report: an ordered list of items that writes itself as a static web site (MakeReport) and as
/// plain text for a page of 80 columns (MakeTextReport). Different reports may be made in different
/// threads at once; one report and its items stay in one thread.
///
/// Operations return 0 or a negative status, VOR_E_FAIL (0x80004005) for a failure without a status
/// of its own. What they return does not say that all files arrived whole: TakeWriteStatus does.
/// They throw std::bad_alloc when memory runs out, std::length_error for a text of 2 GiB, and what
/// items of the application or a fatal-error handler throw; the report can then be used again and
/// destroyed.
class VORKTR_EXPORT VORKTRReportingBuffer
{
public:
    VORKTRReportingBuffer();
    VORKTRReportingBuffer(const VORKTRReportingBuffer&) = delete;
    VORKTRReportingBuffer& operator=(const VORKTRReportingBuffer&) = delete;
    /// Destroys the items and closes pages that a failed run left open. Files on disk stay.
    virtual ~VORKTRReportingBuffer();

    /// Appends an item and takes ownership of it, see VORKTRReportingObj. Do not add an item twice.
    /// Fails on null.
    int AddObject(VORKTRReportingObj* iObject);

    /// Inserts an item before position iIndex, from 0, which moves up with all behind it, empty
    /// ones too, and takes ownership of it. Fails on null and on a position beyond the last (the
    /// end is AddObject's); the item stays the caller's.
    int InsertObjectAtIndex(VORKTRReportingObj* iObject, int iIndex);

    /// Destroys the item at a position, which stays as an empty one: other positions do not move.
    /// Returns what the item's RemoveFromReport returned, and the item is gone whatever that was;
    /// fails when there is no item.
    int RemoveObject(int iIndex);
    /// As above for a given item; fails when the report does not hold it.
    int RemoveObject(VORKTRReportingObj* iObject);

    /// Position of an item, of the first empty position for null. Fails, leaving oIndex as it is,
    /// when there is none.
    int GetObjectIndex(VORKTRReportingObj* iObject, int& oIndex);

    /// Number of positions, empty ones included.
    int GetObjectNumber() const { return _ObjectList.GetSize(); }
    /// Number of positions that the list has room for: from 5 on in steps of 5.
    int GetAllocatedNumber() const { return _ObjectList.GetCapacity(); }
    /// Makes room for one more position.
    void Reallocate() { _ObjectList.Reallocate(); }

    /// @{ Counters that the items share while a site is written: number of the page being written
    /// (from 1), anchor of the latest heading (1 before the first one, which gets 2; a heading that
    /// opens a page gets 0), number of files included so far.
    int& GetPagesNumber() { return _PagesNb; }
    int& GetIndex() { return _Index; }
    int& GetIncludedFilesNumber() { return _IncludedFilesNb; }
    /// @}

    /// The first negative status since the last call of anything that the report opened, wrote,
    /// closed, moved, copied, made or deleted, its own reason where an operation returned only
    /// VOR_E_FAIL; 0 when all of it arrived whole. VORStatusText has the words for it. Call it when
    /// a site is written: a full disk, for one, shows in no other status. It begins anew each time.
    int TakeWriteStatus();

    /// For items that write files of their own: adds a status, which TakeWriteStatus returns when
    /// it is the first negative one.
    void NoteWriteStatus(int iStatus);

    /// Writes the report as a web site into iDirectory (UTF-8; a relative one is resolved by each
    /// run), which is created when absent, but not its parents, and never emptied: files of the
    /// same names are overwritten. iTitle heads the site; it is HTML, not escaped. A report is
    /// written once; Update rewrites it. Fails when the directory cannot be created or written or a
    /// stylesheet or the first page cannot be opened. A later page that cannot be opened is left
    /// out; TakeWriteStatus tells.
    int MakeReport(const VORUnicodeString& iDirectory, const VORUnicodeString& iTitle);

    /// Rewrites the site after items were added, removed or changed; none is told the directory
    /// again. Page numbers start at 1 again; anchors of the first page, file and figure numbers go
    /// on. The old navigation goes, and pages named by a character whose code is at most the old
    /// number of pages: "page0.html" (48) to "page9.html", "pageA.html" (65) and so on; others
    /// beyond those of the new site stay. Fails before the first MakeReport, and as that does; a
    /// directory that is gone is not made again.
    int Update();

    /// @{ The steps of a run, in order. BeginReport writes the stylesheets, copies the background
    /// image and opens the first page; Flush writes the items; FinishReport closes the pages and
    /// deletes "reload.html". Page numbers go on, unlike in Update. All fail before the first
    /// MakeReport, Flush without an open page too.
    int BeginReport();
    int Flush();
    int FinishReport();
    /// @}

    /// 1 when the site gets a navigation frame: at least two headings of level 1, or two of level
    /// 2, at the top of the report or directly in a bag there. Else 0.
    int FramesExist() const;

    /// Writes "main.css" and, when withNavigation is not 0, "navigation.css" into a directory.
    /// Returns 0, VOR_E_FAIL when one cannot be opened, or the status of an impossible path. Being
    /// static, it tells no report what else went wrong; MakeReport does.
    static int MakeStylesheets(VORUnicodeString& directory, char withNavigation);

    /// Writes the frame set "index.html" and opens "navigation.html" and "page1.html", their heads
    /// written, for the caller to go on with and close. Returns as MakeStylesheets does; what was
    /// opened before a failure stays open.
    static int PrepareFrames(VORUnicodeString& directory, const VORUnicodeString& title,
                             unsigned int& navigationFile, unsigned int& pageFile);

    /// Copies a file, the background image, into the report directory, replacing one of its name.
    /// Returns 0, VOR_E_FAIL before the first MakeReport, or the status of the path or copy that
    /// failed.
    int CopyIcon(VORUnicodeString& iFileName, VORUnicodeString& iSourceDirectory) const;

    /// Writes "reload.html", a frame set that reopens the site at its latest page and heading.
    /// Fails before the first MakeReport and when the file cannot be opened.
    int MakeReloadPage();

    /// Appends the report as text to ioText, headed by a banner unless iTitle is empty; returns 0.
    int MakeTextReport(const VORUnicodeString& iTitle, VORUnicodeString& ioText) const;
    /// @{ Its two steps: the banner (iTitle is cut to 74 characters), then the items.
    int BeginTextReport(const VORUnicodeString& iTitle, VORUnicodeString& ioText) const;
    int FlushText(VORUnicodeString& ioText) const;
    /// @}

private:
    int FindFromLast(const VORKTRReportingObj* iObject);
    void Adopt(VORKTRReportingObj& ioItem);
    VORUnicodeString* Keep(const VORUnicodeString& iText);
    bool RequireDirectory() const;
    VORUnicodeString ChooseBackground();
    bool CopyBackground(VORUnicodeString& iName, VORUnicodeString& iDirectory);
    static VORUnicodeString LatestBackground();
    int BeginFrames(const VORUnicodeString& iBackground);
    int BeginSinglePage(const VORUnicodeString& iBackground);
    int FlushAndFinish();
    int DeleteSiteFile(const VORUnicodeString& iName);
    void DeleteCharacterPages() const;
    void ClosePages();

    VORKTRItemArray _ObjectList;
    int _LastFound = 0; // where the last search for an item to remove ended
    int _IncludedFilesNb = 0;
    int _PagesNb = 1;
    int _Index = 1;
    bool _Frames = true;
    bool _PathSent = false;
    // Directories and titles of all runs: items may still point at earlier ones.
    std::forward_list<VORUnicodeString> _Texts;
    VORUnicodeString* _Path = nullptr;
    VORUnicodeString* _Title = nullptr;
    unsigned int _PageFile = 0;
    unsigned int _NavigationFile = 0;
    mutable int _WriteStatus = 0;

    // Of the latest run with an image, null before it. Never destroyed: static reports may be
    // written before main begins and as late as they end.
    static VORUnicodeString* _BackgroundCode;
};

#endif
