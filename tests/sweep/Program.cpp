#include "Program.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include <gtest/gtest.h>

#include "VORFile.h"
#include "VORKTRReportTools.h"
#include "VORKTRReportingBag.h"
#include "VORKTRReportingFile.h"
#include "VORKTRReportingFloat.h"
#include "VORKTRReportingInt.h"
#include "VORKTRReportingList.h"
#include "VORKTRReportingTable.h"
#include "VORKTRReportingText.h"
#include "VORKTRReportingTitle.h"

/// Writes "own" into a file of its own, which stays open while other items are written.
class OwnFile : public VORKTRReportingObj
{
public:
    explicit OwnFile(const std::string& iPath) : _Path(iPath.c_str()) {}
    ~OwnFile() override { Close(); }

    void Report(unsigned int, const char*, unsigned char, unsigned int) const override
    {
        Close();
        _Buffer->NoteWriteStatus(VORFOpen(_Path, "w", _File));
        VORFWrite(_File, "own", 3, nullptr);
    }
    void ASCIIReport(VORUnicodeString&) const override {}
    int GetWidthInChar() const override { return 0; }

    void Close() const
    {
        if (_File != 0)
            _Buffer->NoteWriteStatus(VORFClose(std::exchange(_File, 0u)));
    }

private:
    VORUnicodeString _Path;
    mutable unsigned int _File = 0;
};

namespace
{

template <typename Item>
Item* Add(VORKTRReportingBuffer& ioReport, Item* iItem)
{
    ioReport.AddObject(iItem);
    return iItem;
}

// The included files that a page names are there.
void ExpectSources(const std::string& iPage, const Files& iFiles)
{
    const std::string source = "SRC=\"";
    for (std::size_t at = 0; (at = iPage.find(source, at)) != std::string::npos;) {
        at += source.size();
        const std::filesystem::path path = iPage.substr(at, iPage.find('"', at) - at);
        EXPECT_TRUE(std::any_of(iFiles.begin(), iFiles.end(), [&](const auto& iFile) {
            return std::filesystem::path(iFile.first).filename() == path.filename();
        })) << path;
    }
}

void ExpectWholeOrHarmless(const Outcome& iOutcome, const Outcome& iRight)
{
    EXPECT_EQ(iOutcome.left, 0);
    const bool isComparable = iOutcome.isWhole && !iOutcome.mayLack;
    EXPECT_TRUE(!isComparable || iOutcome.files == iRight.files);
    const auto isThere = [&](const std::string& iBytes) {
        return std::any_of(iOutcome.files.begin(), iOutcome.files.end(),
                           [&](const auto& iFile) { return iFile.second == iBytes; });
    };
    for (const auto& [name, bytes] : Sources)
        EXPECT_TRUE(isThere(bytes) || name == "a.gif") << name << " is lost";
    for (const auto& [name, bytes] : iOutcome.rewritten) {
        if (name.find("again/") == 0)
            ExpectSources(bytes, iOutcome.rewritten);
    }
    const auto own = iOutcome.files.find("own");
    EXPECT_TRUE(own == iOutcome.files.end() || std::string("own").find(own->second) == 0);
}

} // namespace

Program::Program(const std::string& iRoot) : _Root(iRoot)
{
    VORKTRReportTools::InitFigureNumber();
    const auto path = [&](const char* iName) { return _Root + "/" + iName; };
    const auto file = [&](VORKTRReportingFileType iType, const char* iName) {
        return new VORKTRReportingFile(iType, path(iName).c_str());
    };
    Add(_Report, file(VORKTRReportingImage, "a.gif"));
    Add(_Report, new VORKTRReportingTitle("Loads & <i>forces</i>", 1));
    _OwnFile = Add(_Report, new OwnFile(path("own")));
    auto* const bag = Add(_Report, new VORKTRReportingBag);
    bag->AddObject(new VORKTRReportingInt(7, "%3d"));
    bag->AddObject(new VORKTRReportingFloat(2.5f, "%.3f"));
    bag->AddObject(file(VORKTRReportingVRML, "b.wrl"));
    auto* const list = Add(_Report, new VORKTRReportingList(':'));
    for (const char* const label : {"first", "second", "third", "a label that needs memory", "5"})
        list->addLine(label, 12.5f, "N/mm²", "%.2f");
    list->addLine("items", new VORKTRReportingText("of a list, longer than a short string"), "");
    auto* const table = Add(_Report, new VORKTRReportingTable(0x0F));
    int row = 0;
    for (const char* const format : {"%5d", "%300.2f", "text", "%'+.1f"}) {
        table->SetInt(row, 0, row, format);
        table->SetText(row, 1, "a<b & c, longer than a short string \xFF\nb");
        table->SetObj(row++, 2, new VORKTRReportingFloat(1.5f, format));
    }
    Add(_Report, new VORKTRReportingTitle("Results", 1));
    Add(_Report, new VORKTRReportingTitle("Last", 1));
}

bool Program::Write()
{
    const std::string site = _Root + "/site";
    VORUnicodeString text;
    const int statuses[] = {
        _Report.MakeReport(site.c_str(), "Site"),
        _Report.MakeTextReport("T\xC3\xA4xt", text),
        _Report.MakeReloadPage(),
        _Report.RemoveObject(0),
        _Report.RemoveObject(6),
        _Report.RemoveObject(7),
        _Report.AddObject(
            new VORKTRReportingFile(VORKTRReportingSound, (_Root + "/c.wav").c_str())),
        _Report.MakeReport((_Root + "/single").c_str(), "Single"),
        _Report.Update(),
        _Report.MakeTextReport("Site", text),
    };
    unsigned int file = 0;
    _Report.NoteWriteStatus(VORFOpen((_Root + "/text").c_str(), "w", file));
    VORFWrite(file, text.ConvertToChar(), static_cast<std::size_t>(text.GetLengthInByte()),
              nullptr);
    _Report.NoteWriteStatus(VORFClose(file));
    _OwnFile->Close();
    const bool hasArrived = _Report.TakeWriteStatus() == 0;
    const bool hasBegun = std::all_of(std::begin(statuses), std::end(statuses),
                                      [](int iStatus) { return iStatus >= 0; });
    EXPECT_TRUE(hasBegun || !hasArrived) << "a failure without its reason";
    return hasArrived;
}

void Program::Rewrite()
{
    EXPECT_EQ(_Report.MakeReport((_Root + "/again").c_str(), "Again"), 0);
}

void Sweep(const Outcome& iRight, const std::function<Outcome(int)>& iRun)
{
    ASSERT_TRUE(iRight.isWhole);
    Outcome outcome;
    int point = 0;
    int seen = 0;
    do {
        SCOPED_TRACE("point " + std::to_string(++point));
        outcome = iRun(point);
        ExpectWholeOrHarmless(outcome, iRight);
        seen += outcome.isWhole ? 0 : 1;
    } while (point <= outcome.points);
    EXPECT_GE(point, iRight.points);
    EXPECT_GT(seen, iRight.points * 9 / 10);
}
