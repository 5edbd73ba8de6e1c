#ifndef VORKTRSteppedArray_h
#define VORKTRSteppedArray_h

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

/// The entries of a report, a bag or a list. Its capacity, as the owner reports it, starts at 5 and
/// grows by 5; the memory behind it grows geometrically, so that an entry costs the same however
/// many there are.
template <typename Entry>
class VORKTRSteppedArray
{
public:
    /// Number of entries.
    int GetSize() const { return static_cast<int>(_Entries.size()); }
    /// Number of entries that there is room for, as reported.
    int GetCapacity() const { return _Capacity; }

    /// @{ The entry at a position that Holds.
    Entry& operator[](int iIndex) { return _Entries[static_cast<std::size_t>(iIndex)]; }
    const Entry& operator[](int iIndex) const { return _Entries[static_cast<std::size_t>(iIndex)]; }
    /// @}

    /// True for a position below the size.
    bool Holds(int iIndex) const { return iIndex >= 0 && iIndex < GetSize(); }

    /// Grows the capacity by one step when it is used up.
    void Reallocate()
    {
        if (GetSize() == _Capacity)
            _Capacity += Step;
    }

    /// Adds an entry at the end, room for it having been made.
    void Append(Entry&& ioEntry) { _Entries.push_back(std::move(ioEntry)); }

    /// Adds an entry before a position that Holds, room for it having been made.
    void Insert(int iIndex, Entry&& ioEntry)
    {
        _Entries.insert(_Entries.begin() + iIndex, std::move(ioEntry));
    }

private:
    static constexpr int Step = 5;

    std::vector<Entry> _Entries;
    int _Capacity = Step;
};

class VORKTRReportingObj;

/// The items of a report or a bag; a removed one leaves a null entry.
using VORKTRItemArray = VORKTRSteppedArray<std::unique_ptr<VORKTRReportingObj>>;

#endif
