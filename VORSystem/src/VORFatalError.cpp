#include "VORFatalError.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>

namespace
{

std::atomic<VORFatalErrorHandler> Handler{nullptr};

} // namespace

void VORFatalError(const char* iKey, const char*, const char*, const char*, const char* iPath,
                   int iLine)
{
    const auto text = [](const char* iText) { return iText ? iText : ""; };
    if (const VORFatalErrorHandler handler = Handler)
        handler(text(iKey), text(iPath), iLine);
    else
        std::fprintf(stderr, "%s (%s, line %d)\n", text(iKey), text(iPath), iLine);
    std::abort();
}

VORFatalErrorHandler VORSetFatalErrorHandler(VORFatalErrorHandler iHandler)
{
    return Handler.exchange(iHandler);
}
