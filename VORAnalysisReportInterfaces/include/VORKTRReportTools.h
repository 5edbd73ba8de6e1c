#ifndef VORKTRReportTools_h
#define VORKTRReportTools_h

#include <atomic>

#include "VORAnalysisReportInterfacesExport.h"
#include "VORUnicodeString.h"

/// Services beside the reports.
class VORKTR_EXPORT VORKTRReportTools
{
public:
    VORKTRReportTools() = delete;

    /// Starts the figure numbers of the process at 1 again. Only the application calls it:
    /// otherwise numbering goes on from report to report, in the order in which threads ask.
    static void InitFigureNumber();
    /// The next figure number.
    static int GetFigureNumber();

    /// Shows a page in a browser: runs "RunNs.sh", found along the environment variable
    /// "VORCommandPath", with the page as argument, and returns what system() returned when it has
    /// ended. -1 when there is no launcher; 0, and nothing is run, when "KTR_ODT" is set. The
    /// launcher's path and the page go to the command interpreter unquoted: never pass text that
    /// you do not control. The last argument is reserved.
    static int StartBrowser(const VORUnicodeString& page, unsigned char);

    /// Appends iText to ioHtml as a paragraph writes it: '&', '<' and '>' escaped, a line feed as a
    /// break of the line, a tab as five blanks. For items of an application's own.
    static void AppendEscaped(VORUnicodeString& ioHtml, const VORUnicodeString& iText);

private:
    static std::atomic<int> _figureNb;
};

#endif
