#include "Reports.h"

#include "SetEnv.h"
#include "VORFile.h"
#include "VORKTRReportTools.h"
#include "VORKTRReportingBag.h"
#include "VORKTRReportingBuffer.h"
#include "VORKTRReportingFile.h"
#include "VORKTRReportingFloat.h"
#include "VORKTRReportingInt.h"
#include "VORKTRReportingList.h"
#include "VORKTRReportingTable.h"
#include "VORKTRReportingText.h"
#include "VORKTRReportingTitle.h"

namespace
{

// Numbers in every conversion and in formats that are refused; bytes that are not UTF-8.
VORKTRReportingTable* MakeTable()
{
    auto* const table = new VORKTRReportingTable(0x0F);
    const char* const formats[] = {"%8.3f", "%-9.2e|", "%+g %%",  "%'.1f", "%#a",  "%n",
                                   "%f%f",  "%",       "%.5000f", nullptr, "text", "% 010.2F"};
    int row = 0;
    for (const char* const format : formats) {
        table->SetFloat(row, 0, -1234.5f, format);
        table->SetInt(row, 1, 42, format);
        table->SetText(row++, 2, "\xC3\xA9 \xE5\x9B\xB3 \xFF\xC3<\xED\xA0\x80>");
    }
    for (const char* const format : {"%d", "%5.3i", "%#x", "%-#8o|", "%c", "%lld", "%*d"})
        table->SetInt(row++, 1, 65, format);
    return table;
}

VORKTRReportingList* MakeList()
{
    auto* const list = new VORKTRReportingList(':');
    list->addLine("Stress \xCF\x83", 12.5f, "N/mm\xC2\xB2", "%.2f");
    list->addLine("Cycles", 400, "", "%d");
    list->addLine("Material\xE9", "<S355> & co", "");
    return list;
}

void Fill(VORKTRReportingBuffer& ioReport, const char* iPicture)
{
    auto* const bag = new VORKTRReportingBag;
    bag->AddObject(new VORKTRReportingInt(7, "%3d"));
    bag->AddObject(new VORKTRReportingFloat(2.5f, "%.3f"));
    for (VORKTRReportingObj* const item : std::initializer_list<VORKTRReportingObj*>{
             new VORKTRReportingTitle("Loads <&> \xC3\xA9", 1),
             new VORKTRReportingText("a<b & c>d\n\t\"q\" &amp; \xC3"), bag, MakeTable(), MakeList(),
             new VORKTRReportingTitle("Deep", 3),
             new VORKTRReportingFile(VORKTRReportingImage, iPicture),
             new VORKTRReportingFile(VORKTRReportingSound, "missing.wav")})
        ioReport.AddObject(item);
}

bool WriteText(const VORKTRReportingBuffer& iReport, const char* iName)
{
    VORUnicodeString text;
    unsigned int file = 0;
    return iReport.MakeTextReport("T\xC3\xA4xt", text) == 0 && VORFOpen(iName, "w", file) == 0 &&
           VORFWrite(file, text.ConvertToChar(), static_cast<std::size_t>(text.GetLengthInByte()),
                     nullptr) == 0 &&
           VORFClose(file) == 0;
}

bool WriteSinglePage()
{
    VORKTRReportingBuffer report;
    Fill(report, "a.gif");
    return report.MakeReport("single", "One page") == 0 && report.Update() == 0 &&
           WriteText(report, "single.txt");
}

bool WriteFrames()
{
    VORKTRReportingBuffer report;
    Fill(report, "b.gif");
    report.AddObject(new VORKTRReportingTitle("Results", 1));
    report.AddObject(new VORKTRReportingTitle("Wind", 2));
    return report.MakeReport("frames", "Frames") == 0 && report.MakeReloadPage() == 0 &&
           WriteText(report, "frames.txt");
}

} // namespace

bool WriteReports()
{
    SetEnv("KTRReportODT", "1");
    SetEnv("VORGraphicPath", "none:images");
    VORKTRReportTools::InitFigureNumber();
    return WriteSinglePage() && WriteFrames();
}
