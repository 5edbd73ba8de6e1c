#include <cstdint>
#include <memory>
#include <regex>

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
class Items
{
public:
    Items(const std::uint8_t* iData, std::size_t iSize) : _Input(iData, iSize) {}

    bool HasMore() { return _Input.remaining_bytes() > 0; }

    std::string Text() { return _Input.ConsumeRandomLengthString(12); }

    // Without tags: one could look like those that part pages.
    std::string Plain()
    {
        std::string text = Text();
        for (char& letter : text)
            letter = letter == '<' ? '(' : letter;
        return text;
    }

    VORKTRReportingObj* Make(int iLevel = 0)
    {
        switch (_Input.ConsumeIntegralInRange(0, iLevel < DeepestLevel ? 7 : 3)) {
        case 0:
            return new VORKTRReportingText(Text());
        case 1:
            return new VORKTRReportingInt(_Input.ConsumeIntegral<int>(), Plain().c_str());
        case 2:
            return new VORKTRReportingFloat(_Input.ConsumeFloatingPoint<float>(), Plain().c_str());
        case 3:
            return new VORKTRReportingFile(
                static_cast<VORKTRReportingFileType>(_Input.ConsumeIntegralInRange(0, 4)), "x.gif");
        case 4:
            return MakeTable(iLevel);
        case 5:
            return MakeList(iLevel);
        case 6:
            return MakeBag(iLevel);
        default:
            return iLevel == 0 ? new VORKTRReportingTitle(Plain(), Small(7)) : MakeBag(iLevel);
        }
    }

private:
    int Small(int iLargest) { return _Input.ConsumeIntegralInRange(0, iLargest); }

    VORKTRReportingObj* MakeTable(int iLevel)
    {
        auto* const table = new VORKTRReportingTable(static_cast<unsigned long>(Small(31)));
        for (int cells = Small(6); cells > 0; --cells) {
            const int row = Small(3);
            const int column = Small(3);
            table->SetObj(row, column, Make(iLevel + 1));
        }
        return table;
    }

    VORKTRReportingObj* MakeList(int iLevel)
    {
        auto* const list = new VORKTRReportingList(':');
        for (int lines = Small(6); lines > 0; --lines) {
            const std::string label = Plain();
            list->addLine(label, Make(iLevel + 1), Plain());
        }
        return list;
    }

    VORKTRReportingObj* MakeBag(int iLevel)
    {
        auto* const bag = new VORKTRReportingBag;
        for (int children = Small(4); children > 0; --children)
            bag->AddObject(Make(iLevel + 1));
        return bag;
    }

    FuzzedDataProvider _Input;
};

// What a page holds between its head and its end.
std::string BodyOf(const std::string& iPage)
{
    const std::size_t begin = iPage.find("\n<BODY ");
    const std::size_t end = iPage.rfind("</BODY>\n");
    const std::size_t body = iPage.find('\n', begin + 1) + 1;
    RequireEqual(begin != iPage.npos && end != iPage.npos && body <= end, true, "a whole page");
    return iPage.substr(body, end - body);
}

// The anchors of headings start again on each page.
std::string WithoutAnchors(const std::string& iBody)
{
    std::string body;
    std::size_t from = 0;
    const std::string anchor = "<A NAME=\"";
    for (std::size_t at = iBody.find(anchor); at != iBody.npos; at = iBody.find(anchor, from)) {
        body += iBody.substr(from, at + anchor.size() - from);
        from = iBody.find('"', at + anchor.size());
    }
    return body + iBody.substr(from);
}

std::string SiteBody(const std::string& iSite, bool iHasFrames, int iPages)
{
    std::string body;
    for (int page = 1; page <= (iHasFrames ? iPages : 1); ++page)
        body += BodyOf(ReadFile(
            iSite + (iHasFrames ? "/page" + std::to_string(page) + ".html" : "/index.html")));
    return WithoutAnchors(body);
}

} // namespace

// A site of either layout holds what its items write one after the other, and so does a text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* iData, std::size_t iSize)
{
    static const TemporaryDirectory directory;
    const std::string site = directory.Path("site");
    const std::string onePage = directory.Path("all.html");
    Items items(iData, iSize);
    VORKTRReportingBuffer report;
    VORUnicodeString text;
    VORUnicodeString expectedText;
    unsigned int file = 0;
    RequireEqual(VORFOpen(onePage, "w", file), 0, "open");
    std::string expected = "<P class=\"maintitle\">T</P>\n";
    VORKTRReportTools::InitFigureNumber();
    while (items.HasMore()) {
        VORKTRReportingObj* const item = items.Make();
        report.AddObject(item);
        item->Report(file, "", 0, 0);
        item->ASCIIReport(expectedText);
    }
    RequireEqual(VORFClose(file), 0, "close");
    expected += ReadFile(onePage);

    report.MakeTextReport("", text);
    RequireEqual(text.ToString(), expectedText.ToString(), "text");
    VORKTRReportTools::InitFigureNumber();
    RequireEqual(report.MakeReport(site, "T"), 0, "MakeReport");
    report.TakeWriteStatus(); // the included files are not there
    const bool hasFrames = report.FramesExist() != 0;
    RequireEqual(SiteBody(site, hasFrames, report.GetPagesNumber()), WithoutAnchors(expected),
                 "site");
    VORKTRReportTools::InitFigureNumber();
    RequireEqual(report.Update(), 0, "Update");
    RequireEqual(report.TakeWriteStatus(), 0, "TakeWriteStatus");
    RequireEqual(SiteBody(site, hasFrames, report.GetPagesNumber()), WithoutAnchors(expected),
                 "update");
    return 0;
}
