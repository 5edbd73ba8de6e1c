#include "detail/VORKTRValue.h"

#include <new>

#include "VORKTRCell.h"
#include "VORKTRFragment.h"
#include "VORKTRIntText.h"
#include "VORKTRReportingFloat.h"
#include "VORKTRReportingInt.h"

using namespace VORReport;

namespace
{

const char* CopyOf(const VORUnicodeString& iText)
{
    const std::string_view bytes = BytesOf(iText);
    char* const copy = new char[bytes.size()];
    bytes.copy(copy, bytes.size());
    return copy;
}

template <typename Item, typename Format, typename Number>
VORKTRValue MakeNumber(VORKTRFormats<Format>& ioFormats, Number iNumber, const char* iFormat)
{
    try {
        if (const Format* const format = ioFormats.Find(iFormat))
            return VORKTRValue(iNumber, *format);
        return VORKTRValue(std::make_unique<Item>(iNumber, iFormat));
    } catch (const std::bad_alloc&) {
        return {};
    }
}

} // namespace

VORKTRValue::VORKTRValue(int iNumber, const VORIntFormat& iFormat) : _Content(&iFormat)
{
    _Content.get_deleter().kind = Kind::Int;
    _Content.get_deleter().integer = iNumber;
}

VORKTRValue::VORKTRValue(float iNumber, const VORFloatFormat& iFormat) : _Content(&iFormat)
{
    _Content.get_deleter().kind = Kind::Float;
    _Content.get_deleter().real = iNumber;
}

VORKTRValue::VORKTRValue(const VORUnicodeString& iText) : _Content(CopyOf(iText))
{
    _Content.get_deleter().kind = Kind::Text;
    _Content.get_deleter().length = static_cast<unsigned int>(iText.GetLengthInByte());
}

VORKTRValue::VORKTRValue(std::unique_ptr<VORKTRReportingObj> ioItem) : _Content(ioItem.release()) {}

bool VORKTRValue::IsFloat() const
{
    return IsItem() ? GetItem().GetType() == VORKTRReportingFloatKind
                    : !IsEmpty() && GetKind() == Kind::Float;
}

int VORKTRValue::GetWidthInChar() const
{
    switch (GetKind()) {
    case Kind::Int:
        return static_cast<int>(IntText(GetInt(), GetIntFormat()).Get().size());
    case Kind::Float:
        return VORKTRReportingFloat::GetTextLength(GetFloat(), GetFloatFormat());
    case Kind::Text:
        return WidthOfText(GetText());
    default:
        return IsEmpty() ? 0 : GetItem().GetWidthInChar();
    }
}

void VORKTRValue::AppendInTable(VORKTRByteBuffer& ioHtml, char iHeader) const
{
    switch (GetKind()) {
    case Kind::Int:
        return AppendIntInTable(ioHtml, GetInt(), GetIntFormat(), iHeader);
    case Kind::Float:
        return AppendFloatInTable(ioHtml, GetFloat(), GetFloatFormat(), iHeader);
    default:
        return AppendTextInTable(ioHtml, GetText(), iHeader);
    }
}

void VORKTRValue::AppendInList(VORKTRByteBuffer& ioHtml, char iWide) const
{
    switch (GetKind()) {
    case Kind::Int:
        return AppendIntInList(ioHtml, GetInt(), GetIntFormat(), iWide);
    case Kind::Float:
        return AppendFloatInList(ioHtml, GetFloat(), GetFloatFormat());
    default:
        return AppendTextInList(ioHtml, GetText(), iWide);
    }
}

void VORKTRValue::AppendText(VORKTRByteBuffer& ioText) const
{
    switch (GetKind()) {
    case Kind::Int:
        return AppendInt(ioText, GetInt(), GetIntFormat());
    case Kind::Float:
        return AppendFloat(ioText, GetFloat(), GetFloatFormat());
    default:
        return ioText.Append(GetText());
    }
}

VORKTRValue VORKTRValues::Make(int iNumber, const char* iFormat)
{
    return MakeNumber<VORKTRReportingInt>(_IntFormats, iNumber,
                                          iFormat ? iFormat : VORDefaultIntFormat);
}

VORKTRValue VORKTRValues::Make(float iNumber, const char* iFormat)
{
    return MakeNumber<VORKTRReportingFloat>(_FloatFormats, iNumber,
                                            iFormat ? iFormat : VORDefaultFloatFormat);
}

VORKTRValue VORKTRValues::Make(const VORUnicodeString& iText)
{
    try {
        return VORKTRValue(iText);
    } catch (const std::bad_alloc&) {
        return {};
    }
}
