#include "VORKTRReportingList.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <utility>

#include "VORKTRCell.h"
#include "VORKTRFragment.h"
#include "VORKTRLayout.h"
#include "VORKTRMakeItem.h"
#include "VORKTRReportingFloat.h"
#include "VORKTRReportingInt.h"
#include "VORKTRReportingText.h"

VORKTRReportingList::VORKTRReportingList(char separator) : _Separator(separator) {}

VORKTRReportingList::~VORKTRReportingList() = default;

int VORKTRReportingList::Store(const VORUnicodeString& iLabel,
                               std::unique_ptr<VORKTRReportingObj> ioValue,
                               const VORUnicodeString& iUnit)
{
    _Lines.Append({iLabel, std::move(ioValue), iUnit});
    return 0;
}

int VORKTRReportingList::addLine(const VORUnicodeString& label, const VORUnicodeString& value,
                                 const VORUnicodeString& unit)
{
    return Store(label, MakeItem<VORKTRReportingText>(value), unit);
}

int VORKTRReportingList::addLine(const VORUnicodeString& label, float value,
                                 const VORUnicodeString& unit, const char* format)
{
    return Store(label, MakeItem<VORKTRReportingFloat>(value, format), unit);
}

int VORKTRReportingList::addLine(const VORUnicodeString& label, double value,
                                 const VORUnicodeString& unit, const char* format)
{
    return addLine(label, static_cast<float>(value), unit, format);
}

int VORKTRReportingList::addLine(const VORUnicodeString& label, int value,
                                 const VORUnicodeString& unit, const char* format)
{
    return Store(label, MakeItem<VORKTRReportingInt>(value, format), unit);
}

int VORKTRReportingList::addLine(const VORUnicodeString& label, VORKTRReportingObj* value,
                                 const VORUnicodeString& unit)
{
    return Store(label, std::unique_ptr<VORKTRReportingObj>(value), unit);
}

char VORKTRReportingList::float_separator()
{
    char text[30];
    std::snprintf(text, sizeof text, "%f", 1.0);
    const char separator = text[std::strspn(text, "0123456789+-")];
    return separator ? separator : '.';
}

void VORKTRReportingList::GetColsWidth(int& labelWidth, int& valueWidth, int& unitWidth) const
{
    labelWidth = valueWidth = unitWidth = 0;
    for (int i = 0; i < _Lines.GetSize(); ++i) {
        const Line& line = _Lines[i];
        labelWidth = std::max(labelWidth, line.label.GetLengthInChar());
        if (line.value)
            valueWidth = std::max(valueWidth, line.value->GetWidthInChar());
        unitWidth = std::max(unitWidth, line.unit.GetLengthInChar());
    }
}

int VORKTRReportingList::GetType() const
{
    return VORKTRReportingListKind;
}

bool VORKTRReportingList::HasFloats() const
{
    for (int i = 0; i < _Lines.GetSize(); ++i) {
        if (_Lines[i].value && _Lines[i].value->GetType() == VORKTRReportingFloatKind)
            return true;
    }
    return false;
}

void VORKTRReportingList::Report(unsigned int iFile, const char* iPath, unsigned char iFrames,
                                 unsigned int iNavigationFile) const
{
    const bool hasFloats = HasFloats();
    WriteFragment(iFile, "<P>\n<TABLE BORDER=0>\n");
    for (int i = 0; i < _Lines.GetSize(); ++i) {
        const Line& line = _Lines[i];
        if (!line.value)
            continue;
        WriteFragment(iFile, OpenRow);
        WriteFragment(iFile, OpenLeftTD, line.label, CloseTD);
        WriteSeparatorCell(iFile, line);
        line.value->Report_in_List(iFile, iPath, iFrames, iNavigationFile, hasFloats);
        WriteFragment(iFile, OpenLeftTD, "&nbsp;", line.unit, CloseTD, CloseRow);
    }
    WriteFragment(iFile, CloseTable, "</P>\n", "\n");
}

void VORKTRReportingList::WriteSeparatorCell(unsigned int iFile, const Line& iLine) const
{
    const std::string_view separator(&_Separator, 1);
    if (iLine.label != "")
        WriteFragment(iFile, CenteredCell(0).open, separator, CloseTD);
    else
        WriteFragment(iFile, EmptyCell);
}

void VORKTRReportingList::ASCIIReport(VORUnicodeString& ioText) const
{
    ASCIIReport_generic(ioText, 0);
}

void VORKTRReportingList::ASCIIReport_in_Table(VORUnicodeString& ioText) const
{
    ASCIIReport_generic(ioText, 1);
}

void VORKTRReportingList::ASCIIReport_generic(VORUnicodeString& out, unsigned char inTable) const
{
    int labelWidth = 0;
    int valueWidth = 0;
    int unitWidth = 0;
    GetColsWidth(labelWidth, valueWidth, unitWidth);
    const VORUnicodeString separator(&_Separator, 1);
    for (int i = 0; i < _Lines.GetSize(); ++i) {
        const Line& line = _Lines[i];
        out.Append(inTable ? "" : "  ").Append(line.label);
        out.Append(Repeat(' ', labelWidth - line.label.GetLengthInChar())).Append(" ");
        out.Append(line.label != "" ? separator : " ").Append(" ");
        if (line.value)
            AppendValue(out, line, valueWidth, unitWidth);
        out.Append("\n");
    }
}

// Without units values start right behind the separator.
void VORKTRReportingList::AppendValue(VORUnicodeString& out, const Line& iLine, int iValueWidth,
                                      int iUnitWidth) const
{
    if (iUnitWidth > 0)
        out.Append(Repeat(' ', iValueWidth - iLine.value->GetWidthInChar()));
    iLine.value->ASCIIReport_in_Table(out);
    if (iUnitWidth > 0)
        out.Append(" ").Append(iLine.unit);
}

int VORKTRReportingList::GetWidthInChar() const
{
    int labelWidth = 0;
    int valueWidth = 0;
    int unitWidth = 0;
    GetColsWidth(labelWidth, valueWidth, unitWidth);
    return labelWidth + valueWidth + unitWidth + (unitWidth > 0 ? 4 : 3);
}
