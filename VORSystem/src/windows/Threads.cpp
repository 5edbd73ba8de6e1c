#include <atomic>
#include <cstdint>

#include "VORSystemLayer.h"
#include "WindowsApi.h"

// Not thread_local: MinGW has given back the memory of such variables when their destructors run.

namespace
{

std::atomic<void (*)(unsigned int)> AtEnd;

void WINAPI EndThread(void* iValue);

struct Slots {
    const DWORD number = FlsAlloc(EndThread); // holds it plus 1: EndThread is not called for 0
    const DWORD hasEnded = TlsAlloc();        // objects that end later may still close files
    ~Slots()
    {
        FlsFree(number);
        TlsFree(hasEnded);
    }
};

const Slots& TheSlots()
{
    static const Slots slots;
    return slots;
}

unsigned int NumberOf(void* iValue)
{
    return iValue ? static_cast<unsigned int>(reinterpret_cast<std::uintptr_t>(iValue) - 1) : 0;
}

void WINAPI EndThread(void* iValue)
{
    TlsSetValue(TheSlots().hasEnded, iValue);
    AtEnd.load()(NumberOf(iValue));
}

} // namespace

unsigned int VORLayer::ThreadNumber() noexcept
{
    const Slots& slots = TheSlots();
    return TlsGetValue(slots.hasEnded) ? 0 : NumberOf(FlsGetValue(slots.number));
}

void VORLayer::SetThreadNumber(unsigned int iNumber, void (*iAtEnd)(unsigned int)) noexcept
{
    AtEnd = iAtEnd;
    const Slots& slots = TheSlots();
    if (TlsGetValue(slots.hasEnded) ||
        !FlsSetValue(slots.number, reinterpret_cast<void*>(std::uintptr_t{iNumber} + 1)))
        iAtEnd(iNumber);
}
