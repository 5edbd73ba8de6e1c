#include "TrussPublisher.h"

#include <fstream>
#include <stdexcept>
#include <system_error>

#include <stdlib.h>

#include "TrussChapters.h"
#include "TrussFigures.h"
#include "VORKTRReportTools.h"

namespace fs = std::filesystem;

namespace truss
{
namespace
{

void WriteFile(const fs::path& iPath, const std::string& iText)
{
    std::ofstream file(iPath, std::ios::binary);
    file << iText;
    file.close();
    if (!file)
        throw std::runtime_error(iPath.string() + ": cannot be written");
}

/// A site's title is HTML.
VORUnicodeString Escape(const std::string& iText)
{
    VORUnicodeString text(iText.c_str());
    VORKTRReportingText::ReplaceAllOccurrences(text, "&", "&amp;");
    VORKTRReportingText::ReplaceAllOccurrences(text, "<", "&lt;");
    VORKTRReportingText::ReplaceAllOccurrences(text, ">", "&gt;");
    return text;
}

} // namespace

TemporaryDirectory::TemporaryDirectory()
{
    std::string path = (fs::temp_directory_path() / "truss-XXXXXX").string();
    if (!::mkdtemp(path.data()))
        throw std::runtime_error(path + ": cannot be created");
    _Path = path;
}

TemporaryDirectory::~TemporaryDirectory()
{
    std::error_code ignored;
    fs::remove_all(_Path, ignored);
}

Publisher::Publisher(const Model& iModel, const fs::path& iDirectory)
    : _Model(iModel), _Directory(iDirectory),
      _Summary(new VORKTRReportingText("Linear statics of a space truss: small displacements.\n"
                                       "The bars are pinned at the nodes and carry axial force "
                                       "only.\n"))
{
    _Report.AddObject(_Summary);
    const std::string scene = WriteTemporary("scene.wrl", WriteScene(iModel));
    _Report.AddObject(MakeModelChapter(iModel, scene).release());
}

void Publisher::Publish(const LoadCase& iCase, const Solution& iSolution)
{
    ++_CaseNb;
    _Summary->WriteUnicode(Summarise(_Model, iCase, iSolution).c_str());
    const std::string drawing = WriteTemporary("drawing.svg", DrawSvg(_Model, iSolution));
    const int figure = _CaseNb + 1; // behind the scene
    _Report.AddObject(MakeCaseChapter(_Model, iCase, iSolution, drawing, figure).release());
    WriteSite();
}

std::string Publisher::WriteTemporary(const char* iName, const std::string& iText) const
{
    const fs::path path = _Temporary.Path() / iName;
    WriteFile(path, iText);
    return path.string();
}

void Publisher::WriteSite()
{
    VORKTRReportTools::InitFigureNumber(); // the text refers to the figures of this site by number
    const int status = _CaseNb > 1 ? _Report.Update()
                                   : _Report.MakeReport(_Directory.c_str(), Escape(_Model.title));
    if (status < 0)
        throw std::runtime_error(_Directory.string() + ": the report cannot be written");
    CheckSite();
}

/// The report does not tell of a full disk, but a page that ends short gives it away, and so does a
/// figure that was not taken.
void Publisher::CheckSite()
{
    for (const char* name : {"main.css", "navigation.css"})
        CheckFile(name, "}\n");
    for (const char* name : {"index.html", "navigation.html"})
        CheckFile(name, "</HTML>\n");
    for (int page = 1; page <= _Report.GetPagesNumber(); ++page)
        CheckFile("page" + std::to_string(page) + ".html", "</HTML>\n");
    if (!fs::is_empty(_Temporary.Path()))
        throw std::runtime_error(_Directory.string() + ": a figure cannot be written");
}

void Publisher::CheckFile(const std::string& iName, const std::string& iEnd) const
{
    std::ifstream file(_Directory / iName, std::ios::binary);
    file.seekg(-static_cast<std::streamoff>(iEnd.size()), std::ios::end);
    std::string end(iEnd.size(), '\0');
    file.read(end.data(), static_cast<std::streamsize>(end.size()));
    if (!file || end != iEnd)
        throw std::runtime_error((_Directory / iName).string() + ": cannot be written completely");
}

void Publisher::WriteText() const
{
    VORUnicodeString text;
    _Report.MakeTextReport(_Model.title.c_str(), text);
    WriteFile(_Directory / "report.txt", text.ConvertToChar());
}

fs::path Publisher::WriteReloadPage()
{
    if (_Report.MakeReloadPage() < 0)
        throw std::runtime_error(_Directory.string() + ": the reload page cannot be written");
    CheckFile("reload.html", "</HTML>\n");
    return _Directory / "reload.html";
}

} // namespace truss
