#include <utility>

#include "VORSystemLayer.h"

namespace
{

thread_local unsigned int Number = 0;

struct End {
    void (*atEnd)(unsigned int);
    ~End() { atEnd(std::exchange(Number, 0)); }
};

} // namespace

unsigned int VORLayer::ThreadNumber() noexcept
{
    return Number;
}

void VORLayer::SetThreadNumber(unsigned int iNumber, void (*iAtEnd)(unsigned int)) noexcept
{
    thread_local const End end{iAtEnd};
    Number = iNumber;
}
