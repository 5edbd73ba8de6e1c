#include "VORKTRFigure.h"

#include <iterator>
#include <memory>

#include "VORFile.h"
#include "VORKTRKitPieces.h"
#include "VORKTRReportTools.h"
#include "VORKTRReportingBuffer.h"
#include "VORPath.h"

namespace
{

constexpr VORKTRCaption::Kind Figures = {"Figure ", "Figure_Number", "figure",
                                         &VORKTRReportTools::GetFigureNumber};

}

VORKTRFigure::VORKTRFigure(const char* iPath, const VORUnicodeString& iCaption,
                           const VORUnicodeString& iAlternative, int iWidth)
    : VORKTRReportingFile(VORKTRReportingImage, iPath), VORKTRCaption(Figures, iCaption),
      _Path(iPath), _Name(_Path.GetView()), _Alternative(iAlternative), _Width(iWidth)
{
    _Alternative.ReplaceAll("\n", " "); // it becomes an attribute
}

void VORKTRFigure::SetBufferData(const VORUnicodeString* iDirectory)
{
    if (_IsMoved || !iDirectory)
        return;
    const std::unique_ptr<const char[]> name(MoveFile(iDirectory->ConvertToChar()));
    if (!name)
        return;
    _IsMoved = true;
    _Name = name.get();
    VORMakePath(*iDirectory, name.get(), _Path);
}

int VORKTRFigure::RemoveFromReport()
{
    const VORStatus status = VORDeleteFile(_Path);
    if (_Buffer)
        _Buffer->NoteWriteStatus(status);
    return status == 0 ? VOR_S_OK : VOR_E_FAIL;
}

void VORKTRFigure::Report(unsigned int iFile, const char*, unsigned char iFrames,
                          unsigned int) const
{
    const std::string anchor = TakeNumber(_Buffer, iFrames);
    VORUnicodeString alternative = Escaped(_Alternative.GetView());
    alternative.ReplaceAll("\"", "&quot;");
    const std::string width = _Width > 0 ? " WIDTH=" + std::to_string(_Width) : "";
    WriteHtml(iFile, "<CENTER>\n<FIGURE ID=\"" + anchor + "\">\n<IMG SRC=\"" + _Name + "\" ALT=\"" +
                         alternative.ToString() + "\"" + width + ">\n<FIGCAPTION>" + GetHtml() +
                         "</FIGCAPTION>\n</FIGURE>\n</CENTER>\n");
}

std::vector<std::string> VORKTRFigure::GetAllLines(int iWidth) const
{
    const VORUnicodeString shown = _Alternative == "" ? "Image" : _Alternative;
    std::vector<std::string> lines = BreakLines(("[" + shown + "]").GetView(), iWidth);
    std::vector<std::string> caption = GetLines(iWidth);
    std::move(caption.begin(), caption.end(), std::back_inserter(lines));
    return lines;
}

void VORKTRFigure::ASCIIReport(VORUnicodeString& ioText) const
{
    ioText.AppendBytes("\n" + JoinCentred(GetAllLines(CaptionWidth)) + "\n");
}

int VORKTRFigure::GetWidthInChar() const
{
    return WidestLine(JoinIndented(GetAllLines(CellWidth), 0));
}

void VORKTRFigure::ASCIIReport_in_Table(VORUnicodeString& ioText) const
{
    ioText.AppendBytes(JoinIndented(GetAllLines(CellWidth), 0));
}
