#include <cstdint>

#include <fuzzer/FuzzedDataProvider.h>

#include "Require.h"
#include "support/PathReference.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* iData, std::size_t iSize)
{
    FuzzedDataProvider input(iData, iSize);
    const auto room = input.ConsumeIntegralInRange<std::size_t>(0, 40);
    const std::string directory = input.ConsumeRandomLengthString(30).c_str();
    const std::string name = input.ConsumeRandomLengthString(30).c_str();
    RequireEqual(MakesPath(directory, name, room), true, "path");
    RequireEqual(SplitsPath(directory, room), true, "split");
    RequireEqual(SplitsPath(directory + '/' + name, room), true, "split");
    return 0;
}
