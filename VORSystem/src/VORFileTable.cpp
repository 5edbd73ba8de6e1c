#include "VORFileTable.h"

#include <array>
#include <atomic>
#include <cstring>
#include <mutex>
#include <new>
#include <utility>

namespace
{

constexpr std::size_t BufferSize = std::size_t{64} * 1024;

} // namespace

VORStatus VOROutputFile::Open(const char* iPath)
{
    if (!_Buffer)
        _Buffer.reset(new (std::nothrow) char[BufferSize]);
    if (!_Buffer)
        return VOR_E_OUT_OF_MEMORY;
    _Status = VORLayer::OpenToWrite(iPath, _File);
    _IsOpen = _Status >= 0;
    return _Status;
}

void VOROutputFile::Reserve(VORStatus iStatus)
{
    _Status = iStatus;
    _IsOpen = true;
}

VORStatus VOROutputFile::Write(const void* iBytes, std::size_t iLength)
{
    if (_Status < 0)
        return _Status;
    if (iLength > BufferSize - _Used)
        Flush();
    if (iLength > BufferSize) {
        Send(iBytes, iLength);
    } else if (iLength > 0) {
        std::memcpy(_Buffer.get() + _Used, iBytes, iLength);
        _Used += iLength;
    }
    return _Status;
}

VORStatus VOROutputFile::Close()
{
    Flush();
    if (_File != VORLayer::NoFile) {
        const VORStatus status = VORLayer::Close(_File);
        if (_Status == VOR_S_OK)
            _Status = status;
    }
    _File = VORLayer::NoFile;
    _IsOpen = false;
    return _Status;
}

void VOROutputFile::Flush()
{
    Send(_Buffer.get(), _Used);
    _Used = 0;
}

// After a failure nothing more is sent: a file with a hole in its middle helps nobody.
void VOROutputFile::Send(const void* iBytes, std::size_t iLength)
{
    if (_Status == VOR_S_OK)
        _Status = VORLayer::Write(_File, iBytes, iLength);
}

namespace
{

constexpr unsigned int ChunkSize = 64;
constexpr unsigned int ChunkCount = 1024; // 65,536 open files
using Chunk = std::array<VOROutputFile, ChunkSize>;

// Places never move, so that one thread finds its file while another adds places. They are there
// before and after every object that may hold a handle: nothing here is constructed or destroyed.
std::atomic<Chunk*> Chunks[ChunkCount];

std::mutex Mutex; // guards what follows
unsigned int HandleCount = 0;
unsigned int SharedFree = 0;

VOROutputFile& Place(unsigned int iHandle)
{
    Chunk* const chunk = Chunks[(iHandle - 1) / ChunkSize].load(std::memory_order_acquire);
    return (*chunk)[(iHandle - 1) % ChunkSize];
}

// A new handle; 0 when there are no more of them or no memory for their places.
unsigned int Add()
{
    const unsigned int chunk = HandleCount / ChunkSize;
    if (chunk == ChunkCount)
        return 0;
    if (!Chunks[chunk].load(std::memory_order_relaxed))
        Chunks[chunk].store(new (std::nothrow) Chunk, std::memory_order_release);
    return Chunks[chunk].load(std::memory_order_relaxed) ? ++HandleCount : 0;
}

// Gives a thread's free handle, if it has one, to all.
void Share(unsigned int iHandle)
{
    if (iHandle == 0)
        return;
    const std::lock_guard<std::mutex> lock(Mutex);
    Place(iHandle).nextFree = std::exchange(SharedFree, iHandle);
}

// Writes out what a program leaves open at its end.
struct ProcessEnd {
    ~ProcessEnd()
    {
        for (unsigned int handle = 1; handle <= HandleCount; ++handle) {
            if (Place(handle).IsOpen())
                Place(handle).Close();
        }
    }
};
const ProcessEnd CloseAll;

} // namespace

// The handle that the calling thread freed last is its number. It is set here in any case: what the
// end of the thread needs is then there before anything is closed.
unsigned int VORFileTable::Take()
{
    const unsigned int own = VORLayer::ThreadNumber();
    VORLayer::SetThreadNumber(0, Share);
    if (own != 0)
        return own;
    const std::lock_guard<std::mutex> lock(Mutex);
    const unsigned int shared = SharedFree;
    if (shared == 0)
        return Add();
    SharedFree = Place(shared).nextFree;
    return shared;
}

void VORFileTable::Free(unsigned int iHandle)
{
    Share(VORLayer::ThreadNumber());
    VORLayer::SetThreadNumber(iHandle, Share);
}

VOROutputFile* VORFileTable::PlaceOf(unsigned int iHandle)
{
    const unsigned int chunk = (iHandle - 1) / ChunkSize;
    if (iHandle == 0 || chunk >= ChunkCount || !Chunks[chunk].load(std::memory_order_acquire))
        return nullptr;
    return &Place(iHandle);
}
