#include "VORKTRFragment.h"

#include <algorithm>
#include <utility>

#include "VORFile.h"

using namespace VORReport;

void VORReport::SendFragment(unsigned int iFile, std::string_view iFragment)
{
    std::size_t written = 0;
    VORFWrite(iFile, iFragment.data(), iFragment.size(), &written);
}

void VORReport::Fragment::Send()
{
    if (GetSize() > 0)
        SendFragment(_File, Get());
    Clear();
}

void VORKTRByteBuffer::Grow(std::size_t iSize)
{
    constexpr std::size_t smallest = 512;
    const std::size_t used = GetSize();
    const std::size_t size = std::max({used + iSize, 2 * used, smallest});
    std::unique_ptr<char[]> bytes(new char[size]);
    std::copy(_Begin, _End, bytes.get());
    _Bytes = std::move(bytes);
    _Begin = _Bytes.get();
    _End = _Begin + used;
    _Limit = _Begin + size;
}
