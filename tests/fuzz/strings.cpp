#include <algorithm>
#include <cstdint>

#include <fuzzer/FuzzedDataProvider.h>

#include "Require.h"
#include "support/Utf8Reference.h"

namespace
{

void Check(const VORUnicodeString& iText, const std::u32string& iChars, const char* iWhat)
{
    RequireEqual(iText.ToString(), Encode(iChars), iWhat);
    const std::u32string chars = Decode(iText.ToString()); // loose bytes may have joined
    RequireEqual(iText.GetLengthInChar(), static_cast<int>(chars.size()), iWhat);
    for (std::size_t i = 0; i < chars.size(); ++i)
        RequireEqual(iText[static_cast<int>(i)], chars[i], iWhat);
}

std::u32string Replaced(std::u32string iText, const std::u32string& iWhat,
                        const std::u32string& iBy)
{
    for (std::size_t at = 0; !iWhat.empty() && (at = iText.find(iWhat, at)) != iText.npos;
         at += iBy.size())
        iText.replace(at, iWhat.size(), iBy);
    return iText;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* iData, std::size_t iSize)
{
    FuzzedDataProvider input(iData, iSize);
    const int position = input.ConsumeIntegralInRange(-3, 70);
    const int length = input.ConsumeIntegralInRange(-3, 70);
    const std::string what = input.ConsumeRandomLengthString(6);
    const std::string by = input.ConsumeRandomLengthString(6);
    const std::string bytes = input.ConsumeRemainingBytesAsString();
    const std::u32string chars = Decode(bytes);
    const VORUnicodeString text(bytes);
    Check(text, chars, "text");

    const auto from = std::min(chars.size(), static_cast<std::size_t>(std::max(0, position)));
    const std::size_t found = what.empty() ? chars.npos : chars.find(Decode(what), from);
    RequireEqual(text.FindPosition(what, position),
                 found == chars.npos ? -1 : static_cast<int>(found), "FindPosition");

    VORUnicodeString changed = text;
    changed.ReplaceAll(what, by);
    Check(changed, Replaced(chars, Decode(what), Decode(by)), "ReplaceAll");

    changed = text;
    changed.ReplaceSubString(position, length, by);
    std::u32string expected = chars;
    expected.replace(from, static_cast<std::size_t>(std::max(0, length)), Decode(by));
    Check(changed, expected, "ReplaceSubString");

    Check(VORUnicodeString(what).Append(text).AppendBytes(by), Decode(what + bytes + by), "Append");
    return 0;
}
