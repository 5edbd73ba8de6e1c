#ifndef Require_h
#define Require_h

#include <cstdio>
#include <cstdlib>
#include <string>

/// Ends the fuzzer's run, which keeps its input, when two texts or numbers differ.
template <typename Value>
void RequireEqual(const Value& iActual, const Value& iExpected, const std::string& iWhat)
{
    if (iActual == iExpected)
        return;
    std::fprintf(stderr, "%s differs\n", iWhat.c_str());
    std::abort();
}

#endif
