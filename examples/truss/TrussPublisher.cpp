#include "TrussPublisher.h"

#include <stdexcept>

#include "TrussChapters.h"
#include "TrussFigures.h"
#include "VORFile.h"
#include "VORKTRCharset.h"
#include "VORKTRLook.h"
#include "VORKTRProse.h"
#include "VORKTRReportTools.h"
#include "VORKTRTableCaption.h"
#include "VORPath.h"

namespace truss
{
namespace
{

// Figures in the directory of the report, until it takes them under a name of its own.
constexpr const char* Scene = "truss-scene.wrl";
constexpr const char* Drawing = "truss-drawing.svg";

void Check(const std::string& iPath, VORStatus iStatus)
{
    if (iStatus < 0)
        throw std::runtime_error(iPath + ": cannot be written: " + VORStatusText(iStatus));
}

void WriteFile(const std::string& iPath, const std::string& iText)
{
    unsigned int file = 0;
    Check(iPath, VORFOpen(iPath, "w", file));
    VORFWrite(file, iText.data(), iText.size(), nullptr); // the close tells a failure too
    Check(iPath, VORFClose(file));
}

/// A site's title is HTML.
VORUnicodeString Escape(const std::string& iText)
{
    VORUnicodeString html;
    VORKTRReportTools::AppendEscaped(html, iText);
    return html;
}

} // namespace

Publisher::Publisher(const Model& iModel, const std::string& iDirectory)
    : _Model(iModel), _Directory(iDirectory), _Summary(new VORKTRReportingBag)
{
    _Report.AddObject(new VORKTRCharset);
    _Report.AddObject(new VORKTRLook);
    _Report.AddObject(new VORKTRProse("Linear statics of a space truss: small displacements. The "
                                      "bars are pinned at the nodes and carry axial force only."));
    _Report.AddObject(_Summary);
    VORCreateDirectory(_Directory); // what is wrong with it shows in the first file
    const std::string scene = WriteFigure(Scene, WriteScene(iModel));
    _Report.AddObject(MakeModelChapter(iModel, scene).release());
}

Publisher::~Publisher()
{
    for (const char* const figure : {Scene, Drawing})
        VORDeleteFile(In(figure));
}

void Publisher::Publish(const LoadCase& iCase, const Solution& iSolution)
{
    ++_CaseNb;
    _Summary->AddObject(new VORKTRProse(Summarise(_Model, iCase, iSolution)));
    const std::string drawing = WriteFigure(Drawing, DrawSvg(_Model, iSolution));
    _Report.AddObject(MakeCaseChapter(_Model, iCase, iSolution, drawing).release());
    WriteSite();
}

std::string Publisher::In(const char* iName) const
{
    VORUnicodeString path;
    VORMakePath(_Directory, iName, path);
    return path.ToString();
}

std::string Publisher::WriteFigure(const char* iName, const std::string& iText) const
{
    std::string path = In(iName);
    WriteFile(path, iText);
    return path;
}

void Publisher::WriteSite()
{
    VORKTRReportTools::InitFigureNumber(); // so that the scene is figure 1
    VORKTRTableCaption::InitTableNumber();
    const int status =
        _CaseNb > 1 ? _Report.Update() : _Report.MakeReport(_Directory, Escape(_Model.title));
    const int reason = _Report.TakeWriteStatus();
    Check(_Directory, reason < 0 ? reason : status);
}

void Publisher::WriteText() const
{
    VORUnicodeString text;
    _Report.MakeTextReport(_Model.title, text);
    WriteFile(In("report.txt"), text.ToString());
}

std::string Publisher::WriteReloadPage()
{
    std::string page = In("reload.html");
    Check(page, _Report.MakeReloadPage());
    Check(page, _Report.TakeWriteStatus());
    return page;
}

} // namespace truss
