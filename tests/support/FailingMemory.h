#ifndef FailingMemory_h
#define FailingMemory_h

#include <atomic>

/// The allocations of a test program that links FailingMemory.cpp.
namespace FailingMemory
{

inline std::atomic<int> Count{0};  ///< Allocations since FailAt.
inline std::atomic<int> Living{0}; ///< What is not yet freed, whenever allocated.
inline int Failing = 0;
inline bool IsForGood = false;

/// Counts from 0. Allocation iAllocation from now fails, the next one being 1; with iForGood, all
/// that follow too. 0: none.
inline void FailAt(int iAllocation, bool iForGood = false)
{
    Count = 0;
    Failing = iAllocation;
    IsForGood = iForGood;
}

} // namespace FailingMemory

#endif
