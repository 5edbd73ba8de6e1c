#ifndef VORKTRCells_h
#define VORKTRCells_h

#include <algorithm>
#include <cstddef>
#include <vector>

#include "VORKTRValue.h"

// An inner part of the table, not for use by applications.

/// Cells that are empty at first. Those of a small table are one piece of memory; a large one adds
/// blocks, so that none moves: as one vector, W1 takes 1.3 times the time to fill; as a deque of
/// small blocks, 1.5 times the time to destroy, W4 1.25 times.
class VORKTRCells
{
public:
    std::size_t GetSize() const { return _First.size() + _Others.size() * BlockSize; }

    /// @{ The cell at an index below the size.
    const VORKTRValue& operator[](std::size_t iIndex) const
    {
        return iIndex < BlockSize ? _First[iIndex]
                                  : _Others[iIndex / BlockSize - 1].cells[iIndex % BlockSize];
    }
    VORKTRValue& operator[](std::size_t iIndex)
    {
        return iIndex < BlockSize ? _First[iIndex]
                                  : _Others[iIndex / BlockSize - 1].cells[iIndex % BlockSize];
    }
    /// @}

    /// Makes the size at least iSize. An operation that throws changes no cell.
    void Grow(std::size_t iSize)
    {
        const std::size_t first = std::min(iSize, BlockSize);
        if (first <= Least)
            _First.reserve(Least);
        if (_First.size() < first)
            _First.resize(first);
        const std::size_t others = (iSize - first + BlockSize - 1) / BlockSize;
        if (_Others.size() < others)
            _Others.resize(others);
    }

private:
    static constexpr std::size_t Least = 32;
    static constexpr std::size_t BlockSize = 512;

    struct Block {
        std::vector<VORKTRValue> cells = std::vector<VORKTRValue>(BlockSize);
    };

    std::vector<VORKTRValue> _First; // at most a block
    std::vector<Block> _Others;
};

#endif
