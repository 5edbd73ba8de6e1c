// Writes the sites that the browser tests read: DIRECTORY/frames, DIRECTORY/single, DIRECTORY/kit.

#include <string>
#include <vector>

#include "VORKTRArrayTable.h"
#include "VORKTRCharset.h"
#include "VORKTRFigure.h"
#include "VORKTRHeading.h"
#include "VORKTRLook.h"
#include "VORKTRProse.h"
#include "VORKTRReportTools.h"
#include "VORKTRReportingBuffer.h"
#include "VORKTRReportingFile.h"
#include "VORKTRReportingText.h"
#include "VORKTRReportingTitle.h"
#include "VORKTRTableCaption.h"
#include "support/TemporaryDirectory.h"

namespace
{

constexpr const char* Drawing =
    "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"120\" height=\"80\">"
    "<circle cx=\"60\" cy=\"40\" r=\"30\" fill=\"purple\"/></svg>";

void AddChapter(VORKTRReportingBuffer& ioReport, const VORUnicodeString& iHeading)
{
    ioReport.AddObject(new VORKTRReportingTitle(iHeading, 1));
    ioReport.AddObject(
        new VORKTRReportingText("a < b &lt; c > d\ttab\nsecond line: 20 \u00b0C, \u56f3"));
    // Long enough to scroll: a heading at the end is out of sight first.
    for (int i = 0; i < 60; ++i)
        ioReport.AddObject(new VORKTRReportingText("A paragraph between two headings."));
    ioReport.AddObject(new VORKTRReportingTitle("End of " + iHeading, 4));
}

bool WriteSite(const std::string& iDirectory, int iChapters)
{
    VORKTRReportTools::InitFigureNumber();
    VORKTRReportingBuffer report;
    for (int chapter = 1; chapter <= iChapters; ++chapter)
        AddChapter(report, "Chapter " + VORUnicodeString(std::to_string(chapter).c_str()));
    const std::string drawing = iDirectory + ".svg";
    WriteFile(drawing, Drawing);
    report.AddObject(new VORKTRReportingFile(VORKTRReportingImage, drawing.c_str()));
    return report.MakeReport(iDirectory.c_str(), "Bridge \u00c4 1") == 0 &&
           report.MakeReloadPage() == 0;
}

// A long table that is wider than a phone, a wide drawing, and a link back to both.
bool WriteKitSite(const std::string& iDirectory)
{
    static const std::vector<double> numbers(200, 123456.789);
    VORKTRReportTools::InitFigureNumber();
    VORKTRReportingBuffer report;
    report.AddObject(new VORKTRCharset);
    report.AddObject(new VORKTRLook);
    report.AddObject(new VORKTRProse("Br\u00fccke, \u03c3 in N/mm\u00b2"));
    report.AddObject(new VORKTRHeading("Pressure in mPa \u00c4", 1));
    const std::string drawing = iDirectory + ".svg";
    WriteFile(drawing, Drawing);
    auto* const figure = new VORKTRFigure(drawing.c_str(), "Wide \u03c3", "A circle", 3000);
    report.AddObject(figure);
    report.AddObject(new VORKTRHeading("Tables in mPa", 2));
    auto* const caption = new VORKTRTableCaption("Many numbers");
    report.AddObject(caption);
    auto* const table = new VORKTRArrayTable(VORKTRTableHeaderRow, 200);
    table->AddIndexColumn("row");
    for (int column = 0; column < 10; ++column)
        table->AddColumn("p", "mPa", numbers.data(), "%.3f");
    report.AddObject(table);
    report.AddObject(new VORKTRHeading("End", 1));
    std::string sentence;
    for (int i = 0; i < 40; ++i)
        sentence += "words that have to break somewhere ";
    auto* const prose = new VORKTRProse(VORUnicodeString(sentence));
    prose->AddLink(*figure).Add(" and ").AddLink(*caption);
    report.AddObject(prose);
    return report.MakeReport(iDirectory.c_str(), "Br&#252;cke") == 0;
}

} // namespace

int main(int, char** iArguments)
{
    const std::string directory = iArguments[1];
    const bool isWritten = WriteSite(directory + "/frames", 3) &&
                           WriteSite(directory + "/single", 1) && WriteKitSite(directory + "/kit");
    return isWritten ? 0 : 1;
}
