#include <atomic>
#include <cstdint>

#include "VORSystemLayer.h"
#include "WindowsApi.h"

// Not thread_local: MinGW has given back the memory of such variables when their destructors run.

namespace
{

std::atomic<void (*)(unsigned int)> AtEnd;

unsigned int NumberOf(void* iValue)
{
    return static_cast<unsigned int>(reinterpret_cast<std::uintptr_t>(iValue));
}

void WINAPI EndThread(void* iValue)
{
    AtEnd.load()(NumberOf(iValue));
}

struct Slot {
    const DWORD index = FlsAlloc(EndThread);
    ~Slot() { FlsFree(index); }
};

DWORD IndexOfSlot()
{
    static const Slot slot;
    return slot.index;
}

} // namespace

unsigned int VORLayer::ThreadNumber() noexcept
{
    return NumberOf(FlsGetValue(IndexOfSlot()));
}

void VORLayer::SetThreadNumber(unsigned int iNumber, void (*iAtEnd)(unsigned int)) noexcept
{
    AtEnd = iAtEnd;
    FlsSetValue(IndexOfSlot(), reinterpret_cast<void*>(std::uintptr_t{iNumber}));
}
