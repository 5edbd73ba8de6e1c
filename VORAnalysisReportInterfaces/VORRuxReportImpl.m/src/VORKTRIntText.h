#ifndef VORKTRIntText_h
#define VORKTRIntText_h

#include <cstddef>
#include <memory>
#include <string_view>

#include "VORNumberFormat.h"

namespace VORReport
{

/// The text of an int, made on the stack unless it is long. It ends at a NUL, that of "%c" with 0.
class IntText
{
public:
    IntText(int iValue, const VORIntFormat& iFormat)
    {
        const auto size =
            static_cast<std::size_t>(iFormat.Write(iValue, _Short, sizeof _Short)) + 1;
        if (size <= sizeof _Short)
            return;
        _Long.reset(new char[size]);
        iFormat.Write(iValue, _Long.get(), size);
    }

    std::string_view Get() const { return _Long ? _Long.get() : _Short; }

private:
    char _Short[64];
    std::unique_ptr<char[]> _Long;
};

} // namespace VORReport

#endif
