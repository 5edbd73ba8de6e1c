#include <cstddef>
#include <cstdlib>
#include <new>

// Counts allocations. In a file of its own: where an optimiser sees both, it takes malloc and free
// for a mismatch with new and delete.

namespace
{

std::size_t Allocations = 0;

} // namespace

std::size_t CountAllocations()
{
    return Allocations;
}

void* operator new(std::size_t iSize)
{
    ++Allocations;
    if (void* const memory = std::malloc(iSize))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* ioMemory) noexcept
{
    std::free(ioMemory);
}

void operator delete(void* ioMemory, std::size_t) noexcept
{
    std::free(ioMemory);
}
