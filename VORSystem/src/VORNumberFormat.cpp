#include "VORNumberFormat.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <string_view>

#include "VORSystemLayer.h"

namespace
{

constexpr std::string_view Flags = "-+ #0'";
constexpr std::string_view LengthModifiers = "hlLqjzt";
constexpr const char* IntConversions = "diuoxXc";
constexpr const char* FloatConversions = "fFeEgGaA";
constexpr short LargestField = 4095; // what every C library can print in one conversion

// A plain loop: a call of the library to search so few characters costs more than the search.
constexpr bool IsOneOf(char iChar, std::string_view iSet)
{
    for (const char c : iSet) {
        if (c == iChar)
            return true;
    }
    return false;
}

bool IsDigit(char iChar)
{
    return iChar >= '0' && iChar <= '9';
}

// Up to the next conversion or the end; null at a '%' that ends the format.
const char* SkipText(const char* iAt)
{
    for (; *iAt; ++iAt) {
        if (*iAt != '%')
            continue;
        if (iAt[1] != '%')
            return iAt[1] ? iAt : nullptr;
        ++iAt;
    }
    return iAt;
}

bool ReadNumber(const char*& ioAt, short& oNumber)
{
    int number = 0;
    for (; IsDigit(*ioAt); ++ioAt) {
        number = number * 10 + (*ioAt - '0');
        if (number > LargestField)
            return false;
    }
    oNumber = static_cast<short>(number);
    return true;
}

void ReadFlags(const char*& ioAt, VORFormatParts& oParts)
{
    for (; *ioAt && IsOneOf(*ioAt, Flags); ++ioAt) {
        oParts.left |= *ioAt == '-';
        oParts.zero |= *ioAt == '0';
        oParts.alternate |= *ioAt == '#';
        if (*ioAt == '+' || (*ioAt == ' ' && oParts.plus == '\0'))
            oParts.plus = *ioAt;
    }
}

bool ReadConversion(const char*& ioAt, std::string_view iConversions, VORFormatParts& oParts)
{
    ReadFlags(++ioAt, oParts);
    if (IsDigit(*ioAt) && !ReadNumber(ioAt, oParts.width))
        return false;
    if (*ioAt == '.' && !ReadNumber(++ioAt, oParts.precision))
        return false;
    while (*ioAt && IsOneOf(*ioAt, LengthModifiers))
        ++ioAt;
    oParts.conversion = *ioAt;
    return *ioAt && IsOneOf(*ioAt++, iConversions);
}

bool Read(const char* iFormat, std::string_view iConversions, VORFormatParts& oParts)
{
    const char* at = SkipText(iFormat);
    if (!at)
        return false;
    oParts.before = static_cast<std::size_t>(at - iFormat);
    oParts.after = oParts.before;
    if (!*at)
        return true;
    if (!ReadConversion(at, iConversions, oParts))
        return false;
    oParts.after = static_cast<std::size_t>(at - iFormat);
    const char* const end = SkipText(at);
    return end && !*end;
}

// Those of the conversion alone when the format is unfit.
VORFormatParts PartsOf(const char* iFormat, const char* iDefault, std::string_view iConversions)
{
    VORFormatParts parts;
    if (Read(iFormat, iConversions, parts))
        return parts;
    parts = VORFormatParts();
    parts.conversion = iDefault[1];
    parts.after = std::strlen(iFormat);
    return parts;
}

using VORLayer::PrintNumber;

// Whole numbers look the same in every locale.
template <typename Int>
int PrintNumber(char* oText, std::size_t iSize, const char* iConversion, Int iNumber)
{
    return std::snprintf(oText, iSize, iConversion, iNumber);
}

// Bounded text that goes on counting when it is full, as snprintf does.
class Output
{
public:
    Output(char* oText, std::size_t iSize) : _Text(oText), _Room(iSize > 0 ? iSize - 1 : 0)
    {
        if (iSize > 0)
            *oText = '\0';
    }

    void Put(std::string_view iText)
    {
        if (_Length < _Room)
            std::memcpy(_Text + _Length, iText.data(), std::min(iText.size(), _Room - _Length));
        _Length += iText.size();
    }

    void Put(char iChar, std::size_t iCount)
    {
        if (iCount > 0 && _Length < _Room)
            std::memset(_Text + _Length, iChar, std::min(iCount, _Room - _Length));
        _Length += iCount;
    }

    void PutFormatText(std::string_view iText)
    {
        for (auto at = iText.find('%'); at != std::string_view::npos; at = iText.find('%')) {
            Put(iText.substr(0, at + 1));
            iText.remove_prefix(at + 2);
        }
        Put(iText);
    }

    // printf straight into what is left of the text.
    template <typename Number>
    void PutPrintf(const char* iConversion, Number iValue)
    {
        const std::size_t room = _Length < _Room ? _Room - _Length + 1 : 0;
        const int length =
            PrintNumber(room > 0 ? _Text + _Length : nullptr, room, iConversion, iValue);
        _Length += static_cast<std::size_t>(length);
    }

    int Finish()
    {
        if (_Room > 0)
            _Text[std::min(_Length, _Room)] = '\0';
        return static_cast<int>(_Length);
    }

private:
    char* _Text;
    std::size_t _Room;
    std::size_t _Length = 0;
};

// Places "-12.5" or "12.5" in the field that the format asks for.
void PutPadded(Output& ioOutput, const VORFormatParts& iParts, std::string_view iNumber)
{
    char sign = iParts.plus;
    if (iNumber.front() == '-') {
        sign = '-';
        iNumber.remove_prefix(1);
    }
    const std::size_t length = iNumber.size() + (sign ? 1 : 0);
    const auto width = static_cast<std::size_t>(std::max<short>(iParts.width, 0));
    const std::size_t padding = width > length ? width - length : 0;
    if (!iParts.left && !iParts.zero)
        ioOutput.Put(' ', padding);
    if (sign)
        ioOutput.Put(sign, 1);
    if (!iParts.left && iParts.zero)
        ioOutput.Put('0', padding);
    ioOutput.Put(iNumber);
    if (iParts.left)
        ioOutput.Put(' ', padding);
}

constexpr const char* LengthModifierOf(long long)
{
    return "ll";
}

template <typename Number>
constexpr const char* LengthModifierOf(Number)
{
    return "";
}

// Put together anew from what was checked, so that nothing else of the caller's reaches printf.
template <typename Number>
void PutPrintf(Output& ioOutput, const VORFormatParts& iParts, Number iValue)
{
    char conversion[24];
    Output text(conversion, sizeof conversion);
    const auto putIf = [&text](bool iGiven, char iChar) { text.Put(iChar, iGiven ? 1 : 0); };
    const auto putNumber = [&text](int iNumber) {
        char digits[8];
        text.Put({digits, static_cast<std::size_t>(
                              std::to_chars(digits, std::end(digits), iNumber).ptr - digits)});
    };
    text.Put('%', 1);
    putIf(iParts.left, '-');
    putIf(iParts.zero, '0');
    putIf(iParts.alternate, '#');
    // Signs are for signed numbers, which not every printf knows.
    putIf(iParts.plus != '\0' && !IsOneOf(iParts.conversion, "ouxXc"), iParts.plus);
    if (iParts.width >= 0)
        putNumber(iParts.width);
    putIf(iParts.precision >= 0, '.');
    if (iParts.precision >= 0)
        putNumber(iParts.precision);
    text.Put(LengthModifierOf(iValue));
    text.Put(iParts.conversion, 1);
    text.Finish();
    ioOutput.PutPrintf(conversion, iValue);
}

constexpr auto PowersOfTen = [] {
    std::array<std::uint64_t, 17> powers{1};
    for (std::size_t i = 1; i < powers.size(); ++i)
        powers[i] = powers[i - 1] * 10;
    return powers;
}();

constexpr auto DoublePowersOfTen = [] {
    std::array<double, PowersOfTen.size()> powers{};
    for (std::size_t i = 0; i < powers.size(); ++i)
        powers[i] = static_cast<double>(PowersOfTen[i]);
    return powers;
}();

// "00", "01" to "99", one after the other.
constexpr auto Pairs = [] {
    std::array<char, 200> pairs{};
    for (std::size_t i = 0; i < pairs.size(); ++i)
        pairs[i] = static_cast<char>('0' + (i % 2 == 0 ? i / 20 : i / 2 % 10));
    return pairs;
}();

/// A number that is an integer once its point is moved: a float in "%.3f" or its like, which is
/// what reports are made of. Integer arithmetic gives the digits of to_chars several times as fast:
/// without it W1 takes 2.3 times the instructions.
class ScaledNumber
{
public:
    static constexpr std::size_t LongestText = 20; // sign, 16 digits, point, NUL
    static constexpr int LargestPrecision = 12;    // of an IsExact number

    ScaledNumber(double iValue, int iPrecision)
        : _Precision(iPrecision), _Count(iPrecision + 1), _Negative(std::signbit(iValue) ? 1 : 0)
    {
        constexpr double largest = 9e15; // below 2^53
        const double scaled =
            std::abs(iValue) * DoublePowersOfTen[static_cast<std::size_t>(iPrecision)];
        _IsExact = scaled < largest && static_cast<double>(static_cast<float>(iValue)) == iValue;
        if (!_IsExact)
            return;
        _Digits = Round(scaled);
        while (_Digits >=
               PowersOfTen[static_cast<std::size_t>(_Count)]) // the last of them is larger
            ++_Count;
    }

    /// True when scaling the number gave the integer exactly, or a fraction that was rounded: it
    /// was a float, whose 24 bits and the 28 of 5^12 fit a double. Without this there are no
    /// digits.
    bool IsExact() const { return _IsExact; }

    int GetLength() const { return _Negative + _Count + (_Precision > 0 ? 1 : 0); }

    /// Returns the end of what it writes.
    char* Write(char* oText) const
    {
        std::uint64_t rest = _Digits;
        char* const end = oText + GetLength();
        char* at = PutDigits(end, rest, _Precision);
        if (_Precision > 0)
            *--at = '.';
        PutDigits(at, rest, _Count - _Precision);
        if (_Negative)
            *oText = '-';
        return end;
    }

private:
    // To the nearest integer, a half to the even one, whatever the rounding mode.
    static std::uint64_t Round(double iScaled)
    {
        const auto whole = static_cast<std::int64_t>(iScaled);
        const double rest = iScaled - static_cast<double>(whole);
        const bool isUp = rest > 0.5 || (rest == 0.5 && whole % 2 != 0);
        return static_cast<std::uint64_t>(whole + (isUp ? 1 : 0));
    }

    // The last iCount digits of ioNumber, which loses them, in front of iEnd.
    static char* PutDigits(char* iEnd, std::uint64_t& ioNumber, int iCount)
    {
        for (; iCount >= 2; iCount -= 2) {
            const auto pair = static_cast<std::size_t>(ioNumber % 100 * 2);
            std::memcpy(iEnd -= 2, &Pairs[pair], 2);
            ioNumber /= 100;
        }
        if (iCount > 0) {
            *--iEnd = static_cast<char>('0' + ioNumber % 10);
            ioNumber /= 10;
        }
        return iEnd;
    }

    std::uint64_t _Digits = 0;
    int _Precision;
    int _Count; // of all digits
    int _Negative;
    bool _IsExact;
};

int PrecisionOf(const VORFormatParts& iParts)
{
    return iParts.precision < 0 ? 6 : iParts.precision;
}

template <typename Integer>
std::to_chars_result Convert(char* oBegin, char* oEnd, const VORFormatParts&, Integer iValue)
{
    return std::to_chars(oBegin, oEnd, iValue);
}

std::to_chars_result Convert(char* oBegin, [[maybe_unused]] char* oEnd,
                             const VORFormatParts& iParts, double iValue)
{
    const int precision = PrecisionOf(iParts);
    if (iParts.conversion == 'f' && precision <= ScaledNumber::LargestPrecision) {
        const ScaledNumber number(iValue, precision);
        if (number.IsExact())
            return {number.Write(oBegin), std::errc()};
    }
#ifdef __cpp_lib_to_chars
    const auto style = iParts.conversion == 'f'   ? std::chars_format::fixed
                       : iParts.conversion == 'e' ? std::chars_format::scientific
                                                  : std::chars_format::general;
    return std::to_chars(oBegin, oEnd, iValue, style, precision);
#else
    return {oBegin, std::errc::not_supported};
#endif
}

template <typename Integer>
bool IsPlain(const VORFormatParts& iParts, Integer)
{
    return IsOneOf(iParts.conversion, "di") && iParts.precision < 0;
}

bool IsPlain(const VORFormatParts& iParts, double iValue)
{
    return IsOneOf(iParts.conversion, "feg") && !iParts.alternate && std::isfinite(iValue);
}

template <typename Number>
int Write(const char* iFormat, const VORFormatParts& iParts, Number iValue, char* oText,
          std::size_t iSize)
{
    Output output(oText, iSize);
    output.PutFormatText({iFormat, iParts.before});
    if (iParts.conversion) {
        char number[128];
        std::to_chars_result result = {number, std::errc::value_too_large};
        if (IsPlain(iParts, iValue))
            result = Convert(number, std::end(number), iParts, iValue);
        if (result.ec == std::errc())
            PutPadded(output, iParts, {number, static_cast<std::size_t>(result.ptr - number)});
        else
            PutPrintf(output, iParts, iValue);
        output.PutFormatText(iFormat + iParts.after);
    }
    return output.Finish();
}

} // namespace

VORNumberFormat::VORNumberFormat(const char* iFormat, const char* iDefault,
                                 const char* iConversions)
    : _Text(iFormat ? iFormat : iDefault), _Parts(PartsOf(_Text.c_str(), iDefault, iConversions))
{
}

VORIntFormat::VORIntFormat(const char* iFormat)
    : VORNumberFormat(iFormat, VORDefaultIntFormat, IntConversions)
{
}

int VORIntFormat::Write(int iValue, char* oText, std::size_t iSize) const
{
    return ::Write(_Text.c_str(), _Parts, iValue, oText, iSize);
}

int VORIntFormat::Write(long long iValue, char* oText, std::size_t iSize) const
{
    if (_Parts.conversion == 'c')
        return Write(static_cast<int>(iValue), oText, iSize);
    return ::Write(_Text.c_str(), _Parts, iValue, oText, iSize);
}

VORFloatFormat::VORFloatFormat(const char* iFormat)
    : VORNumberFormat(iFormat, VORDefaultFloatFormat, FloatConversions),
      _IsPlainFixed(_Parts.conversion == 'f' && !_Parts.alternate && !_Parts.plus &&
                    _Parts.width < 0 && PrecisionOf(_Parts) <= ScaledNumber::LargestPrecision &&
                    _Parts.before == 0 && _Parts.after == _Text.size()),
      _HasPoint(_Parts.conversion && IsOneOf(_Parts.conversion, "fFeE") && _Parts.precision != 0)
{
}

int VORFloatFormat::Write(double iValue, char* oText, std::size_t iSize) const
{
    if (_IsPlainFixed && iSize >= ScaledNumber::LongestText) {
        const ScaledNumber number(iValue, PrecisionOf(_Parts));
        if (number.IsExact()) {
            char* const end = number.Write(oText);
            *end = '\0';
            return static_cast<int>(end - oText);
        }
    }
    return ::Write(_Text.c_str(), _Parts, iValue, oText, iSize);
}

int VORFloatFormat::GetLength(double iValue) const
{
    if (_IsPlainFixed) {
        const ScaledNumber number(iValue, PrecisionOf(_Parts));
        if (number.IsExact())
            return number.GetLength();
    }
    return ::Write(_Text.c_str(), _Parts, iValue, nullptr, 0);
}

int VORFormatInt(int iValue, const char* iFormat, char* oText, std::size_t iSize)
{
    const char* const format = iFormat ? iFormat : VORDefaultIntFormat;
    return Write(format, PartsOf(format, VORDefaultIntFormat, IntConversions), iValue, oText,
                 iSize);
}

int VORFormatFloat(double iValue, const char* iFormat, char* oText, std::size_t iSize)
{
    const char* const format = iFormat ? iFormat : VORDefaultFloatFormat;
    return Write(format, PartsOf(format, VORDefaultFloatFormat, FloatConversions), iValue, oText,
                 iSize);
}
