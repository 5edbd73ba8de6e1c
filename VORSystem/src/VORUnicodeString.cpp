#include "VORUnicodeString.h"

#include <algorithm>
#include <climits>
#include <cstdint>
#include <cstring>
#include <functional>
#include <stdexcept>
#include <utility>

#include "VORNumberFormat.h"

namespace
{

constexpr VORUnicodeChar LooseByteBase = 0xDC00;
constexpr VORUnicodeChar ReplacementChar = 0xFFFD;

unsigned char ByteAt(const char* iText)
{
    return static_cast<unsigned char>(*iText);
}

bool IsContinuation(unsigned char iByte)
{
    return (iByte & 0xC0) == 0x80;
}

// Length that a lead byte announces; 1 for ASCII and for what cannot lead.
std::size_t AnnouncedLength(unsigned char iLead)
{
    if (iLead >= 0xC2 && iLead <= 0xDF)
        return 2;
    if (iLead >= 0xE0 && iLead <= 0xEF)
        return 3;
    return iLead >= 0xF0 && iLead <= 0xF4 ? 4 : 1;
}

// Overlong forms, surrogates and values over U+10FFFF show in the second byte.
bool IsSecondByteInRange(unsigned char iLead, unsigned char iSecond)
{
    switch (iLead) {
    case 0xE0:
        return iSecond >= 0xA0;
    case 0xED:
        return iSecond < 0xA0;
    case 0xF0:
        return iSecond >= 0x90;
    case 0xF4:
        return iSecond < 0x90;
    default:
        return true;
    }
}

// Bytes of the character at iText: a whole valid sequence, else 1.
std::size_t SequenceLength(const char* iText, const char* iEnd)
{
    const std::size_t length = AnnouncedLength(ByteAt(iText));
    if (length == 1 || static_cast<std::size_t>(iEnd - iText) < length)
        return 1;
    const bool continued = std::all_of(iText + 1, iText + length, [](char c) {
        return IsContinuation(static_cast<unsigned char>(c));
    });
    return continued && IsSecondByteInRange(ByteAt(iText), ByteAt(iText + 1)) ? length : 1;
}

std::uint64_t EightBytes(const char* iText)
{
    std::uint64_t bytes = 0;
    std::memcpy(&bytes, iText, sizeof bytes);
    return bytes;
}

// Of eight bytes together.
bool IsAscii(std::uint64_t iBytes)
{
    return (iBytes & 0x8080808080808080u) == 0;
}

// Looks at a byte twice, and at all behind one that is not ASCII, rather than branch for each:
// with that W2 takes 1.06 times the instructions.
bool IsAscii(const char* iText, std::size_t iLength)
{
    if (iLength < 8)
        return std::all_of(iText, iText + iLength, [](char c) { return ByteAt(&c) < 0x80; });
    const char* const last = iText + iLength - 8;
    std::uint64_t bytes = EightBytes(last);
    for (; iText < last; iText += 8)
        bytes |= EightBytes(iText);
    return IsAscii(bytes);
}

const char* SkipAscii(const char* iText, const char* iEnd)
{
    while (iEnd - iText >= 8 && IsAscii(EightBytes(iText)))
        iText += 8;
    while (iText != iEnd && ByteAt(iText) < 0x80)
        ++iText;
    return iText;
}

VORUnicodeChar Decode(const char* iText, std::size_t iLength)
{
    const unsigned char lead = ByteAt(iText);
    if (iLength == 1)
        return lead < 0x80 ? lead : LooseByteBase + lead;
    VORUnicodeChar value = lead & (0xFFu >> (iLength + 1));
    for (std::size_t i = 1; i < iLength; ++i)
        value = (value << 6) | (ByteAt(iText + i) & 0x3Fu);
    return value;
}

bool IsLooseByte(VORUnicodeChar iChar)
{
    return iChar >= LooseByteBase + 0x80 && iChar <= LooseByteBase + 0xFF;
}

std::string Encode(VORUnicodeChar iChar)
{
    const auto tail = [iChar](int iShift) {
        return static_cast<char>(0x80 | ((iChar >> iShift) & 0x3F));
    };
    if (iChar < 0x80 || IsLooseByte(iChar))
        return {static_cast<char>(iChar & 0xFF)};
    if (iChar > 0x10FFFF || (iChar >= 0xD800 && iChar <= 0xDFFF))
        return Encode(ReplacementChar);
    if (iChar < 0x800)
        return {static_cast<char>(0xC0 | (iChar >> 6)), tail(0)};
    if (iChar < 0x10000)
        return {static_cast<char>(0xE0 | (iChar >> 12)), tail(6), tail(0)};
    return {static_cast<char>(0xF0 | (iChar >> 18)), tail(12), tail(6), tail(0)};
}

// Where counting has to begin again when bytes are added: at a lead byte that still waits for its
// continuation, else at the end.
std::size_t OpenSequence(const std::string& iBytes)
{
    const std::size_t size = iBytes.size();
    for (std::size_t back = 1; back <= std::min<std::size_t>(3, size); ++back) {
        const auto byte = static_cast<unsigned char>(iBytes[size - back]);
        if (!IsContinuation(byte))
            return AnnouncedLength(byte) > back ? size - back : size;
    }
    return size;
}

// Lengths are ints.
std::size_t RequireLength(std::uint64_t iBytes)
{
    if (iBytes > INT_MAX)
        throw std::length_error("a text of 2 GiB or more");
    return static_cast<std::size_t>(iBytes);
}

std::size_t LengthUpTo(const char* iText, std::size_t iMost)
{
    const void* const end = std::memchr(iText, '\0', iMost);
    return end ? static_cast<std::size_t>(static_cast<const char*>(end) - iText) : iMost;
}

} // namespace

std::size_t VORCountChars(const char* iText, std::size_t iLength)
{
    if (IsAscii(iText, iLength)) // as most texts are
        return iLength;
    const char* const end = iText + iLength;
    std::size_t count = 0;
    while (iText != end) {
        const char* const ascii = SkipAscii(iText, end);
        count += static_cast<std::size_t>(ascii - iText);
        iText = ascii;
        if (iText != end) {
            iText += SequenceLength(iText, end);
            ++count;
        }
    }
    return count;
}

VORUnicodeString::VORUnicodeString(const char* iText)
    : VORUnicodeString(std::string(iText ? iText : ""))
{
}

VORUnicodeString::VORUnicodeString(const char* iText, int iLength)
    : VORUnicodeString(
          iText && iLength > 0
              ? std::string(iText, LengthUpTo(iText, static_cast<std::size_t>(iLength)))
              : std::string())
{
}

VORUnicodeString::VORUnicodeString(VORUnicodeChar iChar, int iCount)
{
    const std::string one = Encode(iChar);
    const std::size_t count = iCount > 0 ? static_cast<std::size_t>(iCount) : 0;
    RequireLength(std::uint64_t{count} * one.size());
    if (one.size() == 1) {
        _Bytes.assign(count, one[0]);
    } else {
        _Bytes.reserve(count * one.size());
        for (std::size_t i = 0; i < count; ++i)
            _Bytes += one;
    }
    _Length = count;
}

VORUnicodeString::VORUnicodeString(VORUnicodeString&& ioOther) noexcept
    : _Bytes(std::move(ioOther._Bytes)), _Length(std::exchange(ioOther._Length, 0))
{
    ioOther._Bytes.clear();
}

VORUnicodeString& VORUnicodeString::operator=(VORUnicodeString&& ioOther) noexcept
{
    std::swap(_Bytes, ioOther._Bytes);
    std::swap(_Length, ioOther._Length);
    return *this;
}

// Not of a string, whose name differs between standard libraries.
std::size_t VORUnicodeString::LengthOf(const char* iText, std::size_t iBytes)
{
    return VORCountChars(iText, RequireLength(iBytes));
}

VORUnicodeString& VORUnicodeString::Append(const VORUnicodeString& iText)
{
    return Append(iText._Bytes.data(), iText._Bytes.size(), iText._Length);
}

// iLength is that of the added text by itself.
VORUnicodeString& VORUnicodeString::Append(const char* iText, std::size_t iBytes,
                                           std::size_t iLength)
{
    RequireLength(std::uint64_t{_Bytes.size()} + iBytes);
    const std::size_t open = OpenSequence(_Bytes);
    const std::size_t openBytes = _Bytes.size() - open;
    const bool isOwn =
        !std::less<>()(iText, _Bytes.data()) && std::less<>()(iText, _Bytes.data() + _Bytes.size());
    if (!isOwn)
        ReserveMore(iBytes);
    _Bytes.append(iText, iBytes);
    if (openBytes == 0) {
        _Length += iLength;
    } else {
        // An unfinished sequence counted one for each of its bytes; the new bytes may complete it.
        _Length = _Length - openBytes + VORCountChars(_Bytes.data() + open, _Bytes.size() - open);
    }
    return *this;
}

void VORUnicodeString::ReserveMore(std::size_t iBytes)
{
    const std::size_t needed = _Bytes.size() + iBytes;
    const std::size_t capacity = _Bytes.capacity();
    if (needed <= capacity)
        return;
    // A text report of megabytes grows in longer steps: memory that is not used yet costs nothing
    // on most systems, moving the text does: W4t takes 1.2 times the time with steps of 2.
    const bool isReport = capacity >= std::size_t{1} << 20 && capacity < std::size_t{1} << 26;
    _Bytes.reserve(std::max(needed, (isReport ? 4 : 2) * capacity));
}

std::size_t VORUnicodeString::ByteOffset(int iPosition) const
{
    const std::size_t position =
        std::min(static_cast<std::size_t>(std::max(iPosition, 0)), _Length);
    if (_Length == _Bytes.size())
        return position;
    const char* const end = _Bytes.data() + _Bytes.size();
    const char* at = _Bytes.data();
    for (std::size_t i = 0; i < position; ++i)
        at += SequenceLength(at, end);
    return static_cast<std::size_t>(at - _Bytes.data());
}

VORUnicodeChar VORUnicodeString::operator[](int iPosition) const
{
    if (static_cast<std::size_t>(iPosition) >= _Length) // a negative one too
        return 0;
    const char* const at = _Bytes.data() + ByteOffset(iPosition);
    return Decode(at, SequenceLength(at, _Bytes.data() + _Bytes.size()));
}

void VORUnicodeString::BuildFromNum(int iValue, const char* iFormat)
{
    char text[64];
    const int length = VORFormatInt(iValue, iFormat, text, sizeof text);
    if (static_cast<std::size_t>(length) < sizeof text) {
        *this = VORUnicodeString(text, length);
        return;
    }
    std::string longText(static_cast<std::size_t>(length) + 1, '\0');
    VORFormatInt(iValue, iFormat, longText.data(), longText.size());
    *this = VORUnicodeString(longText.c_str());
}

// False inside a valid sequence, whose lead byte is at most three bytes back.
bool VORUnicodeString::IsBoundary(std::size_t iByte) const
{
    const char* const end = _Bytes.data() + _Bytes.size();
    for (std::size_t back = 1; back <= std::min<std::size_t>(3, iByte); ++back) {
        const char* const lead = _Bytes.data() + iByte - back;
        if (!IsContinuation(ByteAt(lead)))
            return SequenceLength(lead, end) <= back;
    }
    return true;
}

std::size_t VORUnicodeString::FindBytes(const std::string& iWhat, std::size_t iFromByte) const
{
    if (iWhat.empty())
        return std::string::npos;
    std::size_t at = _Bytes.find(iWhat, iFromByte);
    while (at != std::string::npos && !(IsBoundary(at) && IsBoundary(at + iWhat.size())))
        at = _Bytes.find(iWhat, at + 1);
    return at;
}

int VORUnicodeString::FindPosition(const VORUnicodeString& iWhat, int iFrom) const
{
    const std::size_t from = ByteOffset(iFrom);
    const std::size_t at = FindBytes(iWhat._Bytes, from);
    if (at == std::string::npos)
        return -1;
    if (_Length == _Bytes.size())
        return static_cast<int>(at);
    return static_cast<int>(VORCountChars(_Bytes.data(), at));
}

void VORUnicodeString::ReplaceSubString(int iPosition, int iLength, const VORUnicodeString& iBy)
{
    const int position = std::clamp(iPosition, 0, GetLengthInChar());
    const int length = std::clamp(iLength, 0, GetLengthInChar() - position);
    const std::size_t from = ByteOffset(position);
    std::string bytes = _Bytes;
    bytes.replace(from, ByteOffset(position + length) - from, iBy._Bytes);
    *this = VORUnicodeString(std::move(bytes));
}

void VORUnicodeString::ReplaceAll(const VORUnicodeString& iWhat, const VORUnicodeString& iBy)
{
    std::size_t at = FindBytes(iWhat._Bytes, 0);
    if (at == std::string::npos)
        return;
    std::string bytes;
    std::size_t done = 0;
    for (; at != std::string::npos; at = FindBytes(iWhat._Bytes, done)) {
        bytes.append(_Bytes, done, at - done).append(iBy._Bytes);
        done = at + iWhat._Bytes.size();
    }
    bytes.append(_Bytes, done, std::string::npos);
    *this = VORUnicodeString(std::move(bytes));
}

VORUnicodeString operator+(const VORUnicodeString& iLeft, const VORUnicodeString& iRight)
{
    VORUnicodeString sum(iLeft);
    sum += iRight;
    return sum;
}
