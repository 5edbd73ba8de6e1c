#include "VORKTRReportTools.h"

#include <string>

#include "VOREnvironment.h"
#include "VORKTRBytes.h"
#include "VORKTREscape.h"
#include "VORPath.h"

using namespace VORReport;

std::atomic<int> VORKTRReportTools::_figureNb{0};

void VORKTRReportTools::InitFigureNumber()
{
    _figureNb = 0;
}

int VORKTRReportTools::GetFigureNumber()
{
    return ++_figureNb;
}

int VORKTRReportTools::StartBrowser(const VORUnicodeString& page, unsigned char)
{
    if (VORGetEnv("KTR_ODT"))
        return 0;
    VORUnicodeString command;
    if (const char* const path = VORGetEnv("VORCommandPath"))
        VORFindPath("RunNs.sh", path, command);
    if (command == "")
        return -1;
    command.Append(" ").Append(page);
    return VORRunCommand(command);
}

void VORKTRReportTools::AppendEscaped(VORUnicodeString& ioHtml, const VORUnicodeString& iText)
{
    std::string html; // both texts may be one
    EscapeHtml(BytesOf(iText), [&html](std::string_view piece) { html += piece; });
    ioHtml.AppendBytes(html);
}
