#include <algorithm>
#include <cstdint>
#include <regex>
#include <vector>

#include <fuzzer/FuzzedDataProvider.h>

#include "Require.h"
#include "VORNumberFormat.h"

namespace
{

bool IsField(const std::string& iDigits)
{
    const std::string digits =
        iDigits.substr(std::min(iDigits.find_first_not_of('0'), iDigits.size()));
    return digits.size() < 4 || (digits.size() == 4 && digits <= "4095");
}

std::regex Grammar(const char* iConversions)
{
    return std::regex("((?:[^%]|%%)*)(?:%([-+ #0']*)([0-9]*)([.]([0-9]*))?[hlLqjzt]*([" +
                      std::string(iConversions) + "])((?:[^%]|%%)*))?");
}

// The format that printf may have: without what has no effect, or the default for an unfit one.
std::string Checked(const std::string& iFormat, const std::regex& iGrammar, const char* iDefault)
{
    std::smatch parts;
    if (!std::regex_match(iFormat, parts, iGrammar) || !IsField(parts[3]) || !IsField(parts[5]))
        return iDefault;
    if (!parts[6].matched)
        return iFormat;
    std::string flags = parts[2];
    flags.erase(std::remove(flags.begin(), flags.end(), '\''), flags.end());
    return parts[1].str() + '%' + flags + parts[3].str() + parts[4].str() + parts[6].str() +
           parts[7].str();
}

template <typename Number, typename Function>
void Check(Number iNumber, const std::string& iFormat, const std::string& iChecked,
           Function iFunction, std::size_t iRoom)
{
    std::vector<char> expected(16384);
    const int length = std::snprintf(expected.data(), expected.size(), iChecked.c_str(), iNumber);
    std::vector<char> text(iRoom); // its end is watched
    RequireEqual(iFunction(iNumber, iFormat.c_str(), text.data(), iRoom), length, "length");
    const std::size_t shown = std::min(iRoom, static_cast<std::size_t>(length) + 1);
    if (iRoom > 0)
        RequireEqual(std::string(text.data(), shown - 1), std::string(expected.data(), shown - 1),
                     iFormat);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* iData, std::size_t iSize)
{
    static const std::regex intGrammar = Grammar("diuoxXc");
    static const std::regex floatGrammar = Grammar("fFeEgGaA");
    FuzzedDataProvider input(iData, iSize);
    const auto number = input.ConsumeIntegral<int>();
    const double value =
        input.ConsumeBool() ? input.ConsumeFloatingPoint<double>() : number / 1024.;
    const auto room = input.ConsumeIntegralInRange<std::size_t>(0, 8000);
    const std::string format = input.ConsumeRandomLengthString(40).c_str();
    Check(number, format, Checked(format, intGrammar, "%d"), VORFormatInt, room);
    Check(value, format, Checked(format, floatGrammar, "%g"), VORFormatFloat, room);
    return 0;
}
