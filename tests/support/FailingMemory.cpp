#include "FailingMemory.h"

#include <cstdlib>
#include <new>

// The other forms end in these.
void* operator new(std::size_t iSize, const std::nothrow_t&) noexcept
{
    using namespace FailingMemory;
    const int number = ++Count;
    if (Failing > 0 && (number == Failing || (IsForGood && number > Failing)))
        return nullptr;
    ++Living;
    return std::malloc(iSize > 0 ? iSize : 1);
}
void* operator new(std::size_t iSize)
{
    if (void* const place = operator new(iSize, std::nothrow))
        return place;
    throw std::bad_alloc();
}
void operator delete(void* iPlace) noexcept
{
    FailingMemory::Living -= iPlace ? 1 : 0;
    std::free(iPlace);
}
void operator delete(void* iPlace, std::size_t) noexcept
{
    operator delete(iPlace);
}
// Arrays do so too, but not where a sanitizer has its own.
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
