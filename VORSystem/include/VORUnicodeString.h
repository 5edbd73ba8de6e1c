#ifndef VORUnicodeString_h
#define VORUnicodeString_h

/// @file
/// Unicode text.

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "VORSystemExport.h"

/// A character: a code point. A byte that is no part of valid UTF-8 reads as U+DC00 + the byte, and
/// that value is written back as the same byte.
using VORUnicodeChar = char32_t;

/// Number of characters in iLength bytes of UTF-8; a byte that is not valid there counts as one.
VORSYSTEM_EXPORT std::size_t VORCountChars(const char* iText, std::size_t iLength);

/// Unicode text, held as UTF-8. Positions and lengths are in characters (code points) unless an
/// operation says bytes. Bytes that are not valid UTF-8 are kept as they are, one character each,
/// so that narrow text survives the way in and out. A text holds less than 2 GiB: what would make
/// it longer throws std::length_error and changes nothing.
class VORSYSTEM_EXPORT VORUnicodeString
{
public:
    /// The empty text.
    VORUnicodeString() = default;
    /// From NUL-terminated UTF-8; null gives the empty text.
    VORUnicodeString(const char* iText);
    /// From the first iLength bytes of iText, or from all of it when its NUL comes earlier.
    VORUnicodeString(const char* iText, int iLength);
    /// @{ From UTF-8 that may hold NULs.
    VORUnicodeString(std::string iText)
        : _Bytes(std::move(iText)), _Length(LengthOf(_Bytes.data(), _Bytes.size()))
    {
    }
    explicit VORUnicodeString(std::string_view iText) : VORUnicodeString(std::string(iText)) {}
    /// @}
    /// iChar repeated iCount times; a count below 1 gives the empty text. What is no code point
    /// becomes U+FFFD.
    VORUnicodeString(VORUnicodeChar iChar, int iCount);

    /// @{ Copied and moved as values; what was moved from is a valid text.
    VORUnicodeString(const VORUnicodeString&) = default;
    VORUnicodeString(VORUnicodeString&& ioOther) noexcept;
    VORUnicodeString& operator=(const VORUnicodeString&) = default;
    VORUnicodeString& operator=(VORUnicodeString&& ioOther) noexcept;
    ~VORUnicodeString() = default;
    /// @}

    /// @{ Adds iText at the end, in amortised constant time for each byte.
    VORUnicodeString& Append(const VORUnicodeString& iText);
    VORUnicodeString& operator+=(const VORUnicodeString& iText) { return Append(iText); }
    VORUnicodeString& AppendBytes(std::string_view iText)
    {
        return Append(iText.data(), iText.size(), VORCountChars(iText.data(), iText.size()));
    }
    /// @}

    /// The character at iPosition; 0 when the position is out of range. Constant time on ASCII
    /// text.
    VORUnicodeChar operator[](int iPosition) const;

    /// @{ Length of the text, in constant time.
    int GetLengthInChar() const { return static_cast<int>(_Length); }
    int GetLengthInByte() const { return static_cast<int>(_Bytes.size()); }
    /// @}

    /// @{ The UTF-8 bytes, NUL-terminated, not copied: valid until the text changes or is
    /// destroyed.
    const char* ConvertToChar() const { return _Bytes.c_str(); }
    const char* CastToCharPtr() const { return ConvertToChar(); }
    std::string_view GetView() const { return _Bytes; }
    /// @}
    /// The UTF-8 bytes, copied.
    std::string ToString() const { return _Bytes; }

    /// Replaces the text by iValue in the printf format iFormat (see VORFormatInt).
    void BuildFromNum(int iValue, const char* iFormat);

    /// Position of the first iWhat at or behind iFrom (below 0 counts as 0); -1 when there is none
    /// or iWhat is empty.
    int FindPosition(const VORUnicodeString& iWhat, int iFrom = 0) const;

    /// Replaces the iLength characters at iPosition by iBy. A position or length out of range is
    /// brought to the nearest one inside the text.
    void ReplaceSubString(int iPosition, int iLength, const VORUnicodeString& iBy);

    /// Replaces every iWhat by iBy, from the left; what was put in is not searched again. Linear in
    /// the text. An empty iWhat changes nothing.
    void ReplaceAll(const VORUnicodeString& iWhat, const VORUnicodeString& iBy);

    /// @{ Compare bytes; null is the empty text.
    bool operator==(const VORUnicodeString& iOther) const { return _Bytes == iOther._Bytes; }
    bool operator!=(const VORUnicodeString& iOther) const { return _Bytes != iOther._Bytes; }
    bool operator==(const char* iOther) const { return _Bytes == (iOther ? iOther : ""); }
    bool operator!=(const char* iOther) const { return !(*this == iOther); }
    /// @}

private:
    static std::size_t LengthOf(const char* iText, std::size_t iBytes);
    VORUnicodeString& Append(const char* iText, std::size_t iBytes, std::size_t iLength);
    void ReserveMore(std::size_t iBytes);
    std::size_t ByteOffset(int iPosition) const;
    std::size_t FindBytes(const std::string& iWhat, std::size_t iFromByte) const;
    bool IsBoundary(std::size_t iByte) const;

    std::string _Bytes;
    // Equal to the number of bytes exactly when each character is one byte: positions are then byte
    // offsets.
    std::size_t _Length = 0;
};

/// Both texts, one after the other.
VORSYSTEM_EXPORT VORUnicodeString operator+(const VORUnicodeString& iLeft,
                                            const VORUnicodeString& iRight);

#endif
