#include "VORKTRReportingList.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <utility>

#include "VORKTRCell.h"
#include "VORKTRFragment.h"
#include "VORKTRLayout.h"

using namespace VORReport;

VORKTRReportingList::VORKTRReportingList(char separator) : _Separator(separator) {}

VORKTRReportingList::~VORKTRReportingList()
{
    // In their order, which not every vector keeps at its end; an item may add lines.
    for (int i = 0; i < _Lines.GetSize(); ++i) {
        if (_Lines[i].value.IsItem())
            const VORKTRValue ended = std::move(_Lines[i].value);
    }
}

std::string_view VORKTRReportingList::LabelOf(const Line& iLine) const
{
    return std::string_view(_Texts).substr(iLine.label, iLine.labelSize);
}

std::string_view VORKTRReportingList::UnitOf(const Line& iLine) const
{
    return std::string_view(_Texts).substr(iLine.label + iLine.labelSize, iLine.unitSize);
}

int VORKTRReportingList::Store(const VORUnicodeString& iLabel, VORKTRValue ioValue,
                               const VORUnicodeString& iUnit)
{
    const std::string_view label = BytesOf(iLabel);
    const std::string_view unit = BytesOf(iUnit);
    Line line{_Texts.size(), static_cast<unsigned int>(label.size()),
              static_cast<unsigned int>(unit.size()), std::move(ioValue)};
    const VORKTRSteppedArray<Line>::Room room(_Lines);
    const std::size_t size = _Texts.size() + label.size() + unit.size();
    if (size > _Texts.capacity())
        _Texts.reserve(std::max(size, 2 * _Texts.capacity()));
    _Texts.append(label).append(unit);
    _Lines.Append(std::move(line));
    return 0;
}

int VORKTRReportingList::addLine(const VORUnicodeString& label, const VORUnicodeString& value,
                                 const VORUnicodeString& unit)
{
    return Store(label, _Values.Make(value), unit);
}

int VORKTRReportingList::addLine(const VORUnicodeString& label, float value,
                                 const VORUnicodeString& unit, const char* format)
{
    return Store(label, _Values.Make(value, format), unit);
}

int VORKTRReportingList::addLine(const VORUnicodeString& label, double value,
                                 const VORUnicodeString& unit, const char* format)
{
    return addLine(label, static_cast<float>(value), unit, format);
}

int VORKTRReportingList::addLine(const VORUnicodeString& label, int value,
                                 const VORUnicodeString& unit, const char* format)
{
    return Store(label, _Values.Make(value, format), unit);
}

int VORKTRReportingList::addLine(const VORUnicodeString& label, VORKTRReportingObj* value,
                                 const VORUnicodeString& unit)
{
    return Store(label, VORKTRValue(std::unique_ptr<VORKTRReportingObj>(value)), unit);
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
        labelWidth = std::max(labelWidth, CountChars(LabelOf(line)));
        valueWidth = std::max(valueWidth, line.value.GetWidthInChar());
        unitWidth = std::max(unitWidth, CountChars(UnitOf(line)));
    }
}

int VORKTRReportingList::GetType() const
{
    return VORKTRReportingListKind;
}

bool VORKTRReportingList::HasFloats() const
{
    for (int i = 0; i < _Lines.GetSize(); ++i) {
        if (_Lines[i].value.IsFloat())
            return true;
    }
    return false;
}

void VORKTRReportingList::Report(unsigned int iFile, const char* iPath, unsigned char iFrames,
                                 unsigned int iNavigationFile) const
{
    const bool hasFloats = HasFloats();
    Fragment html(iFile);
    html.Append("<P>\n<TABLE BORDER=0>\n");
    for (int i = 0; i < _Lines.GetSize(); ++i) {
        const Line& line = _Lines[i];
        if (line.value.IsEmpty())
            continue;
        html.Append(OpenRow, OpenLeftTD, LabelOf(line), CloseTD);
        AppendSeparatorCell(html, line);
        if (line.value.IsItem()) {
            html.Send();
            line.value.GetItem().Report_in_List(iFile, iPath, iFrames, iNavigationFile, hasFloats);
        } else {
            line.value.AppendInList(html, hasFloats);
        }
        html.Append(OpenLeftTD, "&nbsp;", UnitOf(line), CloseTD, CloseRow);
        html.Send();
    }
    html.Append(CloseTable, "</P>\n", "\n");
    html.Send();
}

void VORKTRReportingList::AppendSeparatorCell(VORKTRByteBuffer& ioHtml, const Line& iLine) const
{
    if (iLine.labelSize > 0)
        ioHtml.Append(OpenCenterTD, std::string_view(&_Separator, 1), CloseTD);
    else
        ioHtml.Append(EmptyCell);
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
    VORKTRByteBuffer text;
    for (int i = 0; i < _Lines.GetSize(); ++i) {
        const Line& line = _Lines[i];
        const std::string_view label = LabelOf(line);
        const std::string_view separator = label.empty() ? " " : std::string_view(&_Separator, 1);
        text.Append(inTable ? "" : "  ", label);
        AppendRun(text, ' ', labelWidth - CountChars(label) + 1);
        text.Append(separator, " ");
        if (!line.value.IsEmpty())
            AppendValue(out, text, line, valueWidth, unitWidth);
        text.Append("\n");
        out.AppendBytes(text.Get());
        text.Clear();
    }
}

// Without units values start right behind the separator. An item finds all that is ahead of it.
void VORKTRReportingList::AppendValue(VORUnicodeString& out, VORKTRByteBuffer& ioText,
                                      const Line& iLine, int iValueWidth, int iUnitWidth) const
{
    if (iUnitWidth > 0)
        AppendRun(ioText, ' ', iValueWidth - iLine.value.GetWidthInChar());
    if (iLine.value.IsItem()) {
        out.AppendBytes(ioText.Get());
        ioText.Clear();
        iLine.value.GetItem().ASCIIReport_in_Table(out);
    } else {
        iLine.value.AppendText(ioText);
    }
    if (iUnitWidth > 0)
        ioText.Append(" ", UnitOf(iLine));
}

int VORKTRReportingList::GetWidthInChar() const
{
    int labelWidth = 0;
    int valueWidth = 0;
    int unitWidth = 0;
    GetColsWidth(labelWidth, valueWidth, unitWidth);
    return labelWidth + valueWidth + unitWidth + (unitWidth > 0 ? 4 : 3);
}
