#include <locale.h>

#include "VORSystemLayer.h"

namespace
{

locale_t CLocale()
{
    static const locale_t locale = newlocale(LC_NUMERIC_MASK, "C", nullptr);
    return locale;
}

} // namespace

VORLayer::NumericCLocale::NumericCLocale() : _Previous(uselocale(CLocale())) {}

VORLayer::NumericCLocale::~NumericCLocale()
{
    uselocale(static_cast<locale_t>(_Previous));
}
