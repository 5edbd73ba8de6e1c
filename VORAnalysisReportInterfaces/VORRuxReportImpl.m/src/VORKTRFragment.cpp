#include "VORKTRFragment.h"

#include "VORFile.h"

void SendFragment(unsigned int iFile, std::string_view iFragment)
{
    std::size_t written = 0;
    VORFWrite(iFile, iFragment.data(), iFragment.size(), &written);
}
