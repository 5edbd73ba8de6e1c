#ifndef heap_in_use_h
#define heap_in_use_h

#include <cstddef>

// Bytes of the heap in use, and the most since it was set.
extern std::size_t HeapInUse;
extern std::size_t LargestHeap;

#endif
