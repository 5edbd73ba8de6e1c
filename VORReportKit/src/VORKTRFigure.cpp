#include "VORKTRFigure.h"

#include "VORFile.h"
#include "VORKTRKitPieces.h"
#include "VORKTRReportTools.h"
#include "VORKTRReportingBuffer.h"
#include "VORPath.h"

using namespace VORKit;

VORKTRFigure::VORKTRFigure(const VORUnicodeString& iPath, const VORUnicodeString& iCaption,
                           const VORUnicodeString& iAlternative, int iWidth)
    : VORKTRCaption("Figure", &VORKTRReportTools::GetFigureNumber, iCaption,
                    iAlternative == "" ? "[Image]" : "[" + iAlternative + "]"),
      _File(VORKTRReportingImage, iPath.ConvertToChar()), _Path(iPath),
      _Alternative(OnOneLine(iAlternative)), _Width(iWidth)
{
}

void VORKTRFigure::SetBuffer(VORKTRReportingBuffer* iBuffer)
{
    VORKTRCaption::SetBuffer(iBuffer);
    _File.SetBuffer(iBuffer);
}

void VORKTRFigure::SetBufferData(const VORUnicodeString* iDirectory)
{
    if (_Name || !iDirectory)
        return;
    _Directory = *iDirectory; // first what may throw
    _Name.reset(_File.MoveFile(_Directory.ConvertToChar()));
}

int VORKTRFigure::RemoveFromReport()
{
    VORUnicodeString path = _Path;
    VORStatus status = _Name ? VORMakePath(_Directory, _Name.get(), path) : VOR_S_OK;
    if (status >= 0)
        status = VORDeleteFile(path);
    if (_Buffer)
        _Buffer->NoteWriteStatus(status);
    return status == VOR_S_OK ? VOR_S_OK : VOR_E_FAIL;
}

std::string VORKTRFigure::GetHtml(const std::string& iAnchor, const std::string& iCaption) const
{
    VORUnicodeString alternative = Escaped(_Alternative.GetView());
    alternative.ReplaceAll("\"", "&quot;");
    return "<CENTER>\n<FIGURE ID=\"" + iAnchor + "\">\n<IMG SRC=\"" +
           (_Name ? _Name.get() : _Path.ConvertToChar()) + "\" ALT=\"" + alternative.ToString() +
           "\"" + (_Width > 0 ? " WIDTH=" + std::to_string(_Width) : "") + ">\n<FIGCAPTION>" +
           iCaption + "</FIGCAPTION>\n</FIGURE>\n</CENTER>\n";
}

void VORKTRFigure::ASCIIReport(VORUnicodeString& ioText) const
{
    VORKTRCaption::ASCIIReport(ioText);
    ioText.Append("\n");
}
