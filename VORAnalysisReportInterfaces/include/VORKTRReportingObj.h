#ifndef VORKTRReportingObj_h
#define VORKTRReportingObj_h

#include "VORAnalysisReportInterfacesExport.h"
#include "VORKTRReportingObjType.h"
#include "VORUnicodeString.h"

class VORKTRReportingBuffer;

/// Base of all report items. An item renders itself as HTML into an open page and as text for a
/// fixed page of 80 columns. An application may derive its own: GetType, Report, ASCIIReport and
/// GetWidthInChar are what it usually overrides.
///
/// Items are made with new and handed to a report, bag, list or table, which owns them from the
/// call on, also when the call throws: the item is then destroyed and its new owner as it was. An
/// item refused with a negative status stays the caller's. While an item is written or measured it
/// must not change what holds it. Items may be nested 2,000 deep on a stack of 8 MB.
///
/// Texts may hold NULs, which are written as they are; that of an integer ends at one.
///
/// The rendering operations share these arguments: iFile, the page being written (VORFWrite);
/// iPath, the report directory in UTF-8; iFrames, 1 when the site has a navigation frame, else 0;
/// iNavigationFile, the navigation page, open only when iFrames is 1.
class VORKTR_EXPORT VORKTRReportingObj
{
public:
    VORKTRReportingObj();
    VORKTRReportingObj(const VORKTRReportingObj&) = delete;
    VORKTRReportingObj& operator=(const VORKTRReportingObj&) = delete;
    /// A report has the item in its place until the destructor is done: neither that nor
    /// RemoveFromReport may insert items into the report or remove the item itself.
    virtual ~VORKTRReportingObj();

    /// Called just before a report, or a bag that is removed, destroys the item, which then deletes
    /// what it has on disk; not for an item of a list or table. The result becomes that of the
    /// removal: 0, or a negative status. The base returns 0.
    virtual int RemoveFromReport();

    /// Kind of the item, a VORKTRReportingObjType. An application's own item keeps this one or
    /// returns a number from 100 on, never the kind of a class that it is not: reports trust it.
    virtual int GetType() const;

    /// Writes the item as a block of the page. The base writes nothing.
    virtual void Report(unsigned int iFile, const char* iPath, unsigned char iFrames,
                        unsigned int iNavigationFile) const;

    /// Appends the item's text to ioText.
    virtual void ASCIIReport(VORUnicodeString& ioText) const = 0;

    /// Number of characters that the item's text needs in a column: its widest line.
    virtual int GetWidthInChar() const = 0;

    /// Writes the item as the value cell of a list line. iWide is not 0 when the list holds a
    /// float: a value then fills three cells. The base puts Report into one right-aligned TD.
    virtual void Report_in_List(unsigned int iFile, const char* iPath, unsigned char iFrames,
                                unsigned int iNavigationFile, char iWide) const;

    /// Writes the item as a table cell: a TH when iHeader is not 0 (the cell lies in a styled row
    /// or column), else a TD. The base puts Report into one centred cell.
    virtual void Report_in_Table(unsigned int iFile, const char* iPath, unsigned char iFrames,
                                 unsigned int iNavigationFile, char iHeader) const;

    /// Appends the item's text for a list line or a table cell. The base calls ASCIIReport. In a
    /// list the unit follows: a text that ends in a line feed parts it from its value.
    virtual void ASCIIReport_in_Table(VORUnicodeString& ioText) const;

    /// Tells the item its report, null for none; a report or bag calls it when it takes the item.
    virtual void SetBuffer(VORKTRReportingBuffer* iBuffer);

    /// Tells the item the report directory: MakeReport does, and AddObject and InsertObjectAtIndex
    /// of a report written before. iPath belongs to the report and lives as long as it; items
    /// ignore null. The base ignores every directory.
    virtual void SetBufferData(const VORUnicodeString* iPath);

protected:
    /// The item's report, not owned; null before one takes it, and in a list or table unless the
    /// program calls SetBuffer.
    VORKTRReportingBuffer* _Buffer = nullptr;
};

#endif
