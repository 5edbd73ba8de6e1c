#ifndef FailingMemory_h
#define FailingMemory_h

/// The allocations of a test program that links FailingMemory.cpp.
namespace FailingMemory
{

/// Counts from 0. Allocation iAllocation from now fails, the next one being 1; with iForGood, all
/// that follow too. 0: none.
void FailAt(int iAllocation, bool iForGood = false);

int GetCount();  ///< Allocations since FailAt.
int GetLiving(); ///< What is not yet freed, whenever allocated.

} // namespace FailingMemory

#endif
