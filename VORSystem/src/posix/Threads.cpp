#include <utility>

#include "VORSystemLayer.h"

namespace
{

thread_local unsigned int Number = 0;
thread_local bool HasEnded = false; // objects that end later may still close files

struct End {
    void (*atEnd)(unsigned int);
    ~End()
    {
        HasEnded = true;
        atEnd(std::exchange(Number, 0));
    }
};

} // namespace

unsigned int VORLayer::ThreadNumber() noexcept
{
    return Number;
}

void VORLayer::SetThreadNumber(unsigned int iNumber, void (*iAtEnd)(unsigned int)) noexcept
{
    if (HasEnded)
        return iAtEnd(iNumber);
    thread_local const End end{iAtEnd};
    Number = iNumber;
}
