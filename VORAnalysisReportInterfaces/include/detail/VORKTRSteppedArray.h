#ifndef VORKTRSteppedArray_h
#define VORKTRSteppedArray_h

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

// An inner part of the report, bag and list, not for use by applications.

/// The entries of a report, a bag or a list. Its capacity, as the owner reports it, starts at 5 and
/// grows by 5; the memory behind it grows geometrically, so that an entry costs the same however
/// many there are. An operation that throws changes nothing.
template <typename Entry>
class VORKTRSteppedArray
{
public:
    /// Number of entries.
    int GetSize() const { return static_cast<int>(_Entries.size()); }
    /// Number of entries that there is room for, as reported; never less than the size.
    int GetCapacity() const { return _Capacity; }

    /// @{ The entry at a position that Holds.
    Entry& operator[](int iIndex) { return _Entries[static_cast<std::size_t>(iIndex)]; }
    const Entry& operator[](int iIndex) const { return _Entries[static_cast<std::size_t>(iIndex)]; }
    /// @}

    /// True for a position below the size.
    bool Holds(int iIndex) const { return iIndex >= 0 && iIndex < GetSize(); }

    /// Makes room for one more entry: the capacity grows by one step when it is used up.
    void Reallocate()
    {
        if (_Entries.size() == _Entries.capacity())
            _Entries.reserve(2 * _Entries.size() + Least);
        if (GetSize() >= _Capacity)
            _Capacity += Step;
    }

    /// Room for one more entry, taken back at the end when it was not used.
    class Room
    {
    public:
        explicit Room(VORKTRSteppedArray& ioArray) : _Array(ioArray), _Before(ioArray._Capacity)
        {
            _Array.Reallocate();
        }
        Room(const Room&) = delete;
        Room& operator=(const Room&) = delete;
        ~Room()
        {
            if (_Array.GetSize() <= _Before)
                _Array._Capacity = _Before;
        }

    private:
        VORKTRSteppedArray& _Array;
        int _Before;
    };

    /// Adds an entry at the end. Does not throw while a Room is unused.
    void Append(Entry&& ioEntry) { Insert(GetSize(), std::move(ioEntry)); }

    /// Adds an entry before a position that Holds, or at the end. Does not throw while a Room is
    /// unused.
    void Insert(int iIndex, Entry&& ioEntry)
    {
        Reallocate();
        _Entries.insert(_Entries.begin() + iIndex, std::move(ioEntry));
    }

private:
    static constexpr int Step = 5;
    static constexpr std::size_t Least = 8; // with 5, W4 takes 1.05 times the time to fill

    std::vector<Entry> _Entries;
    int _Capacity = Step;
};

class VORKTRReportingObj;

/// The items of a report or a bag; a removed one leaves a null entry.
using VORKTRItemArray = VORKTRSteppedArray<std::unique_ptr<VORKTRReportingObj>>;

#endif
