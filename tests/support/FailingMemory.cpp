#include "FailingMemory.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace
{

std::atomic<int> Count{0};
std::atomic<int> Living{0};
int Failing = 0;
bool IsForGood = false;

bool IsRefused()
{
    const int number = ++Count;
    return Failing > 0 && (number == Failing || (IsForGood && number > Failing));
}

void* Allocate(std::size_t iSize)
{
    if (IsRefused())
        return nullptr;
    ++Living;
    return std::malloc(iSize > 0 ? iSize : 1);
}

} // namespace

void FailingMemory::FailAt(int iAllocation, bool iForGood)
{
    Count = 0;
    Failing = iAllocation;
    ::IsForGood = iForGood;
}

int FailingMemory::GetCount()
{
    return Count;
}

int FailingMemory::GetLiving()
{
    return Living;
}

// The other forms end in these. Arrays do so too, but not where a sanitizer has its own.
void* operator new[](std::size_t iSize)
{
    return operator new(iSize);
}
void operator delete[](void* iPlace) noexcept
{
    operator delete(iPlace);
}
void operator delete[](void* iPlace, std::size_t) noexcept
{
    operator delete(iPlace);
}
void* operator new(std::size_t iSize)
{
    if (void* const place = Allocate(iSize))
        return place;
    throw std::bad_alloc();
}
void* operator new(std::size_t iSize, const std::nothrow_t&) noexcept
{
    return Allocate(iSize);
}
void operator delete(void* iPlace) noexcept
{
    Living -= iPlace ? 1 : 0;
    std::free(iPlace);
}
void operator delete(void* iPlace, std::size_t) noexcept
{
    operator delete(iPlace);
}
