#ifndef FailingMemory_h
#define FailingMemory_h

#include <cstddef>

/// The allocations of a test program that links FailingMemory.cpp.
namespace FailingMemory
{

/// Counts from 0. Allocation iAllocation from now fails, the next one being 1; with iForGood, all
/// that follow too. 0: none.
void FailAt(int iAllocation, bool iForGood = false);
/// The next allocation of iSize bytes fails.
void FailAtSize(std::size_t iSize);

int GetCount();  ///< Allocations since FailAt.
int GetLiving(); ///< What is not yet freed, whenever allocated.

} // namespace FailingMemory

#endif
