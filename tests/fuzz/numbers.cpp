#include <cstdint>

#include <fuzzer/FuzzedDataProvider.h>

#include "Require.h"
#include "support/NumberReference.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* iData, std::size_t iSize)
{
    FuzzedDataProvider input(iData, iSize);
    const auto number = input.ConsumeIntegral<int>();
    const double value =
        input.ConsumeBool() ? input.ConsumeFloatingPoint<double>() : number / 1024.;
    const auto room = input.ConsumeIntegralInRange<std::size_t>(0, 8000);
    const std::string format = input.ConsumeRandomLengthString(40).c_str();
    RequireEqual(FaultOf(number, format, room), std::string(), format);
    RequireEqual(FaultOf(value, format, room), std::string(), format);
    return 0;
}
