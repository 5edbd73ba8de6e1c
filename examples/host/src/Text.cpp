#include <algorithm>
#include <cctype>
#include <clocale>
#include <cstdio>
#include <cstring>
#include <type_traits>

#include "VORNumberFormat.h"
#include "VORUnicodeString.h"

namespace
{

bool IsContinuation(char iByte)
{
    return (iByte & 0xC0) == 0x80;
}

// Bytes of the character at iAt: a whole valid sequence, else 1.
std::size_t LengthOfChar(const char* iAt, const char* iEnd)
{
    const unsigned int lead = static_cast<unsigned char>(*iAt);
    const std::size_t length = lead < 0xC2   ? 1
                               : lead < 0xE0 ? 2
                               : lead < 0xF0 ? 3
                               : lead < 0xF5 ? 4
                                             : 1;
    if (length == 1 || static_cast<std::size_t>(iEnd - iAt) < length ||
        !std::all_of(iAt + 1, iAt + length, IsContinuation))
        return 1;
    // Overlong forms, surrogates and what is above U+10FFFF are not valid.
    const unsigned int second = static_cast<unsigned char>(iAt[1]);
    const bool isWrong = (lead == 0xE0 && second < 0xA0) || (lead == 0xED && second >= 0xA0) ||
                         (lead == 0xF0 && second < 0x90) || (lead == 0xF4 && second >= 0x90);
    return isWrong ? 1 : length;
}

std::string Encode(VORUnicodeChar iChar)
{
    const auto tail = [iChar](int iShift) {
        return static_cast<char>(0x80 | (iChar >> iShift & 0x3F));
    };
    if (iChar < 0x80)
        return {static_cast<char>(iChar)};
    if (iChar < 0x800)
        return {static_cast<char>(0xC0 | iChar >> 6), tail(0)};
    if (iChar < 0x10000)
        return {static_cast<char>(0xE0 | iChar >> 12), tail(6), tail(0)};
    return {static_cast<char>(0xF0 | iChar >> 18), tail(12), tail(6), tail(0)};
}

std::size_t ByteOffset(const std::string& iText, int iPosition)
{
    const char* at = iText.data();
    const char* const end = at + iText.size();
    for (; at != end && iPosition > 0; --iPosition)
        at += LengthOfChar(at, end);
    return static_cast<std::size_t>(at - iText.data());
}

/// A printf format in its parts.
struct Format {
    std::string before;
    std::string conversion; // empty: none
    std::string after;
};

// Takes text and "%%" up to the next conversion.
std::string TakeText(const char*& ioAt)
{
    std::string text;
    for (; *ioAt && (*ioAt != '%' || ioAt[1] == '%'); ++ioAt) {
        text += *ioAt;
        ioAt += *ioAt == '%' ? 1 : 0;
    }
    return text;
}

bool TakeField(const char*& ioAt, std::string& ioConversion)
{
    constexpr int largest = 4095;
    int field = 0;
    for (; std::isdigit(static_cast<unsigned char>(*ioAt)) && field <= largest; ++ioAt) {
        field = field * 10 + (*ioAt - '0');
        ioConversion += *ioAt;
    }
    return field <= largest;
}

// False for what must not reach printf. Grouping and length modifiers are left out.
bool TakeConversion(const char*& ioAt, const char* iConversions, std::string& oConversion)
{
    oConversion = *ioAt++;
    for (; *ioAt && std::strchr("-+ #0'", *ioAt); ++ioAt)
        oConversion += *ioAt == '\'' ? "" : std::string(1, *ioAt);
    if (!TakeField(ioAt, oConversion))
        return false;
    if (*ioAt == '.') {
        oConversion += *ioAt++;
        if (!TakeField(ioAt, oConversion))
            return false;
    }
    ioAt += std::strspn(ioAt, "hlLqjzt");
    oConversion += *ioAt;
    return *ioAt && std::strchr(iConversions, *ioAt++);
}

bool Parse(const char* iFormat, const char* iConversions, Format& oFormat)
{
    if (!iFormat)
        return false;
    oFormat.before = TakeText(iFormat);
    if (!*iFormat)
        return true;
    if (!TakeConversion(iFormat, iConversions, oFormat.conversion))
        return false;
    oFormat.after = TakeText(iFormat);
    return !*iFormat;
}

template <typename Number>
std::string Print(Number iValue, std::string iConversion)
{
    if constexpr (std::is_same_v<Number, long long>) {
        if (iConversion.back() == 'c')
            return Print(static_cast<int>(iValue), iConversion);
        iConversion.insert(iConversion.size() - 1, "ll");
    }
    std::string text(
        static_cast<std::size_t>(std::snprintf(nullptr, 0, iConversion.c_str(), iValue)) + 1, '\0');
    std::snprintf(text.data(), text.size(), iConversion.c_str(), iValue);
    text.pop_back();
    if constexpr (std::is_integral_v<Number>)
        return text; // what "%c" writes is no decimal point
    const std::string point = std::localeconv()->decimal_point;
    const std::size_t at = text.find(point);
    return at == std::string::npos ? text : text.replace(at, point.size(), ".");
}

constexpr const char* IntConversions = "diuoxXc";

template <typename Number>
int FormatNumber(Number iValue, const char* iFormat, const char* iConversions, const char* iDefault,
                 char* oText, std::size_t iSize)
{
    Format format;
    if (!Parse(iFormat, iConversions, format))
        format = {"", iDefault, ""};
    std::string text = format.before;
    if (!format.conversion.empty())
        text += Print(iValue, format.conversion) + format.after;
    if (iSize > 0)
        oText[text.copy(oText, iSize - 1)] = '\0';
    return static_cast<int>(text.size());
}

} // namespace

int VORFormatInt(int iValue, const char* iFormat, char* oText, std::size_t iSize)
{
    return FormatNumber(iValue, iFormat, IntConversions, VORDefaultIntFormat, oText, iSize);
}

int VORFormatInt(long long iValue, const char* iFormat, char* oText, std::size_t iSize)
{
    return FormatNumber(iValue, iFormat, IntConversions, VORDefaultIntFormat, oText, iSize);
}

int VORFormatFloat(double iValue, const char* iFormat, char* oText, std::size_t iSize)
{
    return FormatNumber(iValue, iFormat, "fFeEgGaA", VORDefaultFloatFormat, oText, iSize);
}

std::size_t VORCountChars(const char* iText, std::size_t iLength)
{
    std::size_t count = 0;
    for (const char* const end = iText + iLength; iText != end; ++count)
        iText += LengthOfChar(iText, end);
    return count;
}

VORUnicodeString::VORUnicodeString(VORUnicodeChar iChar, int iCount)
{
    for (int i = 0; i < iCount; ++i)
        _Bytes += Encode(iChar);
}

VORUnicodeString& VORUnicodeString::Append(const VORUnicodeString& iText)
{
    _Bytes += iText._Bytes;
    return *this;
}

int VORUnicodeString::GetLengthInChar() const
{
    return static_cast<int>(VORCountChars(_Bytes.data(), _Bytes.size()));
}

void VORUnicodeString::BuildFromNum(int iValue, const char* iFormat)
{
    std::string text(static_cast<std::size_t>(VORFormatInt(iValue, iFormat, nullptr, 0)) + 1, '\0');
    VORFormatInt(iValue, iFormat, text.data(), text.size());
    _Bytes = text.c_str();
}

void VORUnicodeString::ReplaceSubString(int iPosition, int iLength, const VORUnicodeString& iBy)
{
    const std::size_t from = ByteOffset(_Bytes, iPosition);
    _Bytes.replace(from, ByteOffset(_Bytes, iPosition + iLength) - from, iBy._Bytes);
}

void VORUnicodeString::ReplaceAll(const VORUnicodeString& iWhat, const VORUnicodeString& iBy)
{
    std::string bytes;
    std::size_t done = 0;
    while (done < _Bytes.size()) {
        const char* const at = _Bytes.data() + done;
        const bool isMatch =
            iWhat._Bytes != "" && _Bytes.compare(done, iWhat._Bytes.size(), iWhat._Bytes) == 0;
        const std::size_t step =
            isMatch ? iWhat._Bytes.size() : LengthOfChar(at, _Bytes.data() + _Bytes.size());
        bytes += isMatch ? iBy._Bytes : std::string(at, step);
        done += step;
    }
    _Bytes = bytes;
}

VORUnicodeString operator+(const VORUnicodeString& iLeft, const VORUnicodeString& iRight)
{
    return VORUnicodeString(iLeft).Append(iRight);
}
