#include "VORFatalError.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace
{

VORFatalErrorHandler Handler = nullptr;

} // namespace

void VORFatalError(const char* iKey, const char*, const char*, const char*, const char* iPath,
                   int iLine)
{
    if (Handler)
        Handler(iKey, iPath, iLine);
    else
        std::fprintf(stderr, "%s (%s, line %d)\n", iKey, iPath, iLine);
    std::abort();
}

VORFatalErrorHandler VORSetFatalErrorHandler(VORFatalErrorHandler iHandler)
{
    return std::exchange(Handler, iHandler);
}
