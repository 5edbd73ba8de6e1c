#ifndef Text_h
#define Text_h

#include <string>

#include "WindowsApi.h"

namespace VORLayer
{

/// Text for a wide call; empty when it is not UTF-8. No two texts become the same one.
inline std::wstring Wide(const char* iText)
{
    const int size = MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, iText, -1, nullptr, 0);
    if (size == 0)
        return std::wstring();
    std::wstring text(static_cast<std::size_t>(size), L'\0');
    MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, iText, -1, text.data(), size);
    text.pop_back();
    return text;
}

/// Text of the system; half a surrogate pair becomes U+FFFD.
inline std::string Narrow(const std::wstring& iText)
{
    const auto length = static_cast<int>(iText.size());
    const auto convert = [&](char* oText, int iSize) {
        return WideCharToMultiByte(CP_UTF8, 0, iText.c_str(), length, oText, iSize, nullptr,
                                   nullptr);
    };
    std::string text(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
    convert(text.data(), static_cast<int>(text.size()));
    return text;
}

/// What iCall(text, size) writes, a call that returns the length, or the size that it needs when
/// that is more.
template <typename Call>
std::wstring TextOfCall(Call iCall)
{
    std::wstring text(MAX_PATH, L'\0');
    for (;;) {
        const std::size_t size = text.size();
        text.resize(iCall(text.data(), static_cast<DWORD>(size)));
        if (text.size() < size)
            return text;
    }
}

} // namespace VORLayer

#endif
