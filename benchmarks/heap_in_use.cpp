#include "heap_in_use.h"

#include <algorithm>
#include <cstdlib>
#include <new>

// In a file of its own, as allocations.cpp: where an optimiser sees more, it warns.

std::size_t HeapInUse = 0;
std::size_t LargestHeap = 0;

void* operator new(std::size_t iSize)
{
    auto* const block = static_cast<std::size_t*>(std::malloc(iSize + 16));
    if (!block)
        throw std::bad_alloc();
    *block = iSize;
    LargestHeap = std::max(LargestHeap, HeapInUse += *block);
    return block + 2;
}

void operator delete(void* iBlock) noexcept
{
    if (!iBlock)
        return;
    auto* const block = static_cast<std::size_t*>(iBlock) - 2;
    HeapInUse -= *block;
    std::free(block);
}

void operator delete(void* iBlock, std::size_t) noexcept
{
    operator delete(iBlock);
}
