#include <algorithm>
#include <cstdint>

#include <fuzzer/FuzzedDataProvider.h>

#include "Require.h"
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
#include "support/TemporaryDirectory.h"

namespace
{

constexpr int DeepestLevel = 5;

/// Items as the input says.
struct Items {
    std::string Text() { return input.ConsumeRandomLengthString(12); }
    int Below(int iEnd) { return input.ConsumeIntegralInRange(0, iEnd - 1); }

    // Without tags: one could look like those that part pages.
    std::string Plain()
    {
        std::string text = Text();
        std::replace(text.begin(), text.end(), '<', '(');
        return text;
    }

    VORKTRReportingObj* Make(int iLevel = 0)
    {
        switch (Below(iLevel < DeepestLevel ? 8 : 4)) {
        case 0:
            return new VORKTRReportingText(Text());
        case 1:
            return new VORKTRReportingInt(input.ConsumeIntegral<int>(), Plain().c_str());
        case 2:
            return new VORKTRReportingFloat(input.ConsumeFloatingPoint<float>(), Plain().c_str());
        case 3:
            return new VORKTRReportingFile(static_cast<VORKTRReportingFileType>(Below(5)), "x.gif");
        case 4:
            return Fill(new VORKTRReportingTable(static_cast<unsigned long>(Below(32))),
                        [&](auto* ioTable) {
                            const int row = Below(4), column = Below(4);
                            ioTable->SetObj(row, column, Make(iLevel + 1));
                        });
        case 5:
            return Fill(new VORKTRReportingList(':'), [&](auto* ioList) {
                const std::string label = Plain();
                ioList->addLine(label, Make(iLevel + 1), Plain());
            });
        case 7:
            if (iLevel == 0)
                return new VORKTRReportingTitle(Plain(), Below(8));
            [[fallthrough]];
        default:
            return Fill(new VORKTRReportingBag,
                        [&](auto* ioBag) { ioBag->AddObject(Make(iLevel + 1)); });
        }
    }

    template <typename Item, typename Add>
    Item* Fill(Item* ioItem, Add iAdd)
    {
        for (int parts = Below(7); parts > 0; --parts)
            iAdd(ioItem);
        return ioItem;
    }

    FuzzedDataProvider input;
};

// The anchors of headings start again on each page.
std::string WithoutAnchors(std::string iBody)
{
    const std::string anchor = "<A NAME=\"";
    for (std::size_t at = 0; (at = iBody.find(anchor, at)) != iBody.npos;) {
        at += anchor.size();
        iBody.erase(at, iBody.find('"', at) - at);
    }
    return iBody;
}

// What the pages hold between their heads and ends.
std::string SiteBody(const std::string& iSite, VORKTRReportingBuffer& ioReport)
{
    const std::string end = "</BODY>\n</HTML>\n";
    std::string body;
    for (int page = 1; page <= (ioReport.FramesExist() ? ioReport.GetPagesNumber() : 1); ++page) {
        const std::string name =
            ioReport.FramesExist() ? "/page" + std::to_string(page) + ".html" : "/index.html";
        body += BodyOf(ReadFile(iSite + name));
        body.resize(body.size() - end.size());
    }
    return WithoutAnchors(body);
}

} // namespace

// A site of either layout holds what its items write one after the other, and so does a text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* iData, std::size_t iSize)
{
    static const TemporaryDirectory directory;
    const std::string site = directory.Path("site"), onePage = directory.Path("all.html");
    Items items{{iData, iSize}};
    VORKTRReportingBuffer report;
    VORUnicodeString text, expectedText;
    unsigned int file = 0;
    RequireEqual(VORFOpen(onePage, "w", file), 0, "open");
    VORKTRReportTools::InitFigureNumber();
    while (items.input.remaining_bytes() > 0) {
        VORKTRReportingObj* const item = items.Make();
        report.AddObject(item);
        item->Report(file, "", 0, 0);
        item->ASCIIReport(expectedText);
    }
    RequireEqual(VORFClose(file), 0, "close");
    const std::string expected =
        WithoutAnchors("<P class=\"maintitle\">T</P>\n" + ReadFile(onePage));

    report.MakeTextReport("", text);
    RequireEqual(text.ToString(), expectedText.ToString(), "text");
    for (const bool isUpdate : {false, true}) {
        VORKTRReportTools::InitFigureNumber();
        RequireEqual(isUpdate ? report.Update() : report.MakeReport(site, "T"), 0, "a run");
        const int status = report.TakeWriteStatus();
        RequireEqual(status == 0 || !isUpdate, true, "status"); // the included files are not there
        RequireEqual(SiteBody(site, report), expected, "site");
    }
    return 0;
}
