#ifndef VORKTRLayout_h
#define VORKTRLayout_h

#include <algorithm>
#include <cstddef>

#include "VORKTRFragment.h"
#include "VORUnicodeString.h"

namespace VORReport
{

// The page of the plain-text report.

constexpr int PageWidth = 80;
constexpr int FrameWidth = PageWidth - 2;       // of a frame's rules, behind one blank
constexpr int FrameInnerWidth = FrameWidth - 2; // between the bars of a framed line
constexpr int LongestBannerTitle = FrameInnerWidth - 2;

/// A run of one character; empty when the count is not positive.
inline VORUnicodeString Repeat(char iChar, int iCount)
{
    return VORUnicodeString(static_cast<VORUnicodeChar>(iChar), iCount);
}

/// Appends a run of one character; nothing when the count is not positive.
inline void AppendRun(VORKTRByteBuffer& ioText, char iChar, int iCount)
{
    const auto count = static_cast<std::size_t>(std::max(iCount, 0));
    ioText.EndAt(std::fill_n(ioText.MakeRoom(count), count, iChar));
}

/// Blanks on the left of what is iWidth wide, to centre it on the page; 0 when it does not fit.
inline int MarginOf(int iWidth)
{
    return (PageWidth - std::min(iWidth, PageWidth)) / 2;
}

/// A text between the bars of a frame; the odd blank goes to the right. One that is too long gets
/// no blanks.
inline VORUnicodeString CenteredInFrame(const VORUnicodeString& iText)
{
    const int length = std::min(iText.GetLengthInChar(), FrameInnerWidth);
    return Repeat(' ', (FrameInnerWidth - length) / 2)
        .Append(iText)
        .Append(Repeat(' ', FrameInnerWidth / 2 - length / 2));
}

} // namespace VORReport

#endif
