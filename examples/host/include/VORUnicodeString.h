#ifndef VORUnicodeString_h
#define VORUnicodeString_h

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

using VORUnicodeChar = char32_t;

std::size_t VORCountChars(const char* iText, std::size_t iLength);

/// UTF-8 in a std::string. Lengths in characters are counted when they are asked for.
class VORUnicodeString
{
public:
    VORUnicodeString() = default;
    VORUnicodeString(const char* iText) : _Bytes(iText ? iText : "") {}
    VORUnicodeString(std::string iText) : _Bytes(std::move(iText)) {}
    explicit VORUnicodeString(std::string_view iText) : _Bytes(iText) {}
    VORUnicodeString(VORUnicodeChar iChar, int iCount);

    VORUnicodeString& Append(const VORUnicodeString& iText);
    VORUnicodeString& operator+=(const VORUnicodeString& iText) { return Append(iText); }
    VORUnicodeString& AppendBytes(std::string_view iText)
    {
        _Bytes += iText;
        return *this;
    }

    int GetLengthInChar() const;
    int GetLengthInByte() const { return static_cast<int>(_Bytes.size()); }
    const char* ConvertToChar() const { return _Bytes.c_str(); }
    std::string_view GetView() const { return _Bytes; }
    std::string ToString() const { return _Bytes; }

    void BuildFromNum(int iValue, const char* iFormat);
    void ReplaceSubString(int iPosition, int iLength, const VORUnicodeString& iBy);
    void ReplaceAll(const VORUnicodeString& iWhat, const VORUnicodeString& iBy);

    bool operator==(const VORUnicodeString& iOther) const { return _Bytes == iOther._Bytes; }
    bool operator!=(const VORUnicodeString& iOther) const { return _Bytes != iOther._Bytes; }
    bool operator==(const char* iOther) const { return _Bytes == (iOther ? iOther : ""); }
    bool operator!=(const char* iOther) const { return !(*this == iOther); }

private:
    std::string _Bytes;
};

VORUnicodeString operator+(const VORUnicodeString& iLeft, const VORUnicodeString& iRight);

#endif
