#include <cstdio>

#include <locale.h>

#include "VORSystemLayer.h"

namespace
{

/// The calling thread under the numeric locale "C"; other threads keep theirs.
class NumericCLocale
{
public:
    NumericCLocale() : _Previous(uselocale(CLocale())) {}
    NumericCLocale(const NumericCLocale&) = delete;
    NumericCLocale& operator=(const NumericCLocale&) = delete;
    ~NumericCLocale() { uselocale(_Previous); }

private:
    static locale_t CLocale()
    {
        static const locale_t locale = newlocale(LC_NUMERIC_MASK, "C", nullptr);
        return locale;
    }

    locale_t _Previous;
};

} // namespace

int VORLayer::PrintNumber(char* oText, std::size_t iSize, const char* iConversion, double iNumber)
{
    const NumericCLocale locale;
    return std::snprintf(oText, iSize, iConversion, iNumber);
}
