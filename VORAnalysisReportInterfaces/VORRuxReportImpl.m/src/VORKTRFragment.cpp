#include "VORKTRFragment.h"

#include <algorithm>

#include "VORFile.h"

void SendFragment(unsigned int iFile, std::string_view iFragment)
{
    std::size_t written = 0;
    VORFWrite(iFile, iFragment.data(), iFragment.size(), &written);
}

void Fragment::Send()
{
    if (_End == _Begin)
        return;
    SendFragment(_File, {_Begin, static_cast<std::size_t>(_End - _Begin)});
    _End = _Begin;
}

void Fragment::Grow(std::size_t iSize)
{
    const auto used = static_cast<std::size_t>(_End - _Begin);
    const auto before = static_cast<std::size_t>(_Limit - _Begin);
    const std::size_t size =
        std::max({used + iSize, 2 * before, static_cast<std::size_t>(2 * Long)});
    std::unique_ptr<char[]> bytes(new char[size]);
    std::copy(_Begin, _End, bytes.get());
    _Bytes = std::move(bytes);
    _Begin = _Bytes.get();
    _End = _Begin + used;
    _Limit = _Begin + size;
}
