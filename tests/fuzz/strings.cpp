#include <cstdint>

#include <fuzzer/FuzzedDataProvider.h>

#include "Require.h"
#include "support/StringReference.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* iData, std::size_t iSize)
{
    FuzzedDataProvider input(iData, iSize);
    StringCase one;
    one.position = input.ConsumeIntegralInRange(-3, 70);
    one.length = input.ConsumeIntegralInRange(-3, 70);
    one.what = input.ConsumeRandomLengthString(6);
    one.by = input.ConsumeRandomLengthString(6);
    const auto cut = input.ConsumeIntegralInRange<std::size_t>(0, 70);
    one.bytes = input.ConsumeRemainingBytesAsString();
    one.cut = std::min(cut, one.bytes.size());
    const std::string fault = FaultOf(one);
    RequireEqual(fault, std::string(), fault);
    return 0;
}
