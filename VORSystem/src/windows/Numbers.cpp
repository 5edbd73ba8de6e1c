#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>

#include "VORSystemLayer.h"

// No thread has a locale of its own with every runtime of this system: what a locale changes in a
// number, its decimal point, is put right afterwards.

namespace
{

bool IsDecimalPoint(char iChar)
{
    return !std::strchr("0123456789+- abcdefinpxABCDEFINPX", iChar);
}

// Letter by letter "nan" in the place of "inf".
char LetterOfNan(char iLetter)
{
    constexpr const char* letters = "infINF";
    const char* const at = std::strchr(letters, iLetter);
    return at ? "nanNAN"[at - letters] : iLetter;
}

} // namespace

int VORLayer::PrintNumber(char* oText, std::size_t iSize, const char* iConversion, double iNumber)
{
    const bool isNegativeNan = std::isnan(iNumber) && std::signbit(iNumber); // loses its sign here
    const int length =
        std::snprintf(oText, iSize, iConversion, isNegativeNan ? -HUGE_VAL : iNumber);
    if (iSize == 0)
        return length;
    char* const end = oText + std::min(static_cast<std::size_t>(length), iSize - 1);
    std::replace_if(oText, end, IsDecimalPoint, '.');
    if (isNegativeNan)
        std::transform(oText, end, oText, LetterOfNan);
    return length;
}
