#ifndef NumberReference_h
#define NumberReference_h

#include <algorithm>
#include <clocale>
#include <cstdio>
#include <cstring>
#include <regex>
#include <string>
#include <vector>

#include "VORNumberFormat.h"

/// What printf gives under the locale "C".
template <typename Number>
std::string Printf(Number iNumber, const std::string& iFormat)
{
    const std::string previous = std::setlocale(LC_NUMERIC, nullptr);
    std::setlocale(LC_NUMERIC, "C");
    std::string text(16384, '\0');
    const int length = std::snprintf(text.data(), text.size(), iFormat.c_str(), iNumber);
    std::setlocale(LC_NUMERIC, previous.c_str());
    return text.substr(0, static_cast<std::size_t>(length));
}

/// The well-formed formats: text, flags, fields of at most 4095, a conversion, text.
inline std::regex Grammar(const std::string& iConversions)
{
    const std::string text = "((?:[^%]|%%)*)";
    const std::string field = "(?:0*(?:[0-9]{1,3}|[0-3][0-9]{3}|40[0-8][0-9]|409[0-5]))?";
    return std::regex(text + "(?:%([-+ #0']*)(" + field + "(?:[.]" + field + ")?)[hlLqjzt]*([" +
                      iConversions + "])" + text + ")?");
}

/// The format that printf may have, of which some ignore less than others: without what has no
/// effect, or the default for one that is not well formed.
inline std::string Checked(const std::string& iFormat, const std::regex& iGrammar,
                           const char* iDefault)
{
    std::smatch parts;
    if (!std::regex_match(iFormat, parts, iGrammar))
        return iDefault;
    if (!parts[4].matched)
        return iFormat;
    const bool hasNoSign = std::strchr("uoxX", *parts[4].first) != nullptr;
    std::string flags = parts[2];
    flags.erase(std::remove_if(flags.begin(), flags.end(),
                               [&](char iFlag) {
                                   return std::strchr(hasNoSign ? "'+ " : "'", iFlag) != nullptr;
                               }),
                flags.end());
    return parts[1].str() + '%' + flags + parts[3].str() + parts[4].str() + parts[5].str();
}

/// What is wrong with a number's text in a buffer of iRoom bytes; "" when nothing is.
template <typename Format, typename Number, typename Function>
std::string FaultOf(Number iNumber, const std::string& iFormat, std::size_t iRoom,
                    const std::string& iExpected, Function iFunction)
{
    const auto length = static_cast<int>(iExpected.size());
    const std::size_t shown = std::min(iRoom, iExpected.size() + 1);
    const auto isRight = [&](auto iWrite) {
        std::vector<char> text(iRoom, '#'); // its end is watched
        return iWrite(text.data()) == length &&
               (shown == 0 || (iExpected.compare(0, shown - 1, text.data(), shown - 1) == 0 &&
                               text[shown - 1] == '\0'));
    };
    const Format format(iFormat.c_str());
    if (!isRight([&](char* oText) { return iFunction(iNumber, iFormat.c_str(), oText, iRoom); }))
        return "function";
    if (!isRight([&](char* oText) { return format.Write(iNumber, oText, iRoom); }))
        return "Write";
    return format.GetLength(iNumber) == length ? "" : "GetLength";
}

inline std::string FaultOf(int iNumber, const std::string& iFormat, std::size_t iRoom)
{
    static const std::regex grammar = Grammar("diuoxXc");
    return FaultOf<VORIntFormat>(iNumber, iFormat, iRoom,
                                 Printf(iNumber, Checked(iFormat, grammar, "%d")), VORFormatInt);
}

inline std::string FaultOf(double iNumber, const std::string& iFormat, std::size_t iRoom)
{
    static const std::regex grammar = Grammar("fFeEgGaA");
    return FaultOf<VORFloatFormat>(
        iNumber, iFormat, iRoom, Printf(iNumber, Checked(iFormat, grammar, "%g")), VORFormatFloat);
}

#endif
