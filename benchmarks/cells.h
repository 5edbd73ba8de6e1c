#ifndef cells_h
#define cells_h

#include "VORKTRReportingTable.h"

// What both groups of benchmarks put into tables.

constexpr int Million = 1000000;

// One to six digits before the point, both signs.
inline float Number(int iIndex)
{
    return static_cast<float>(iIndex % 2 == 0 ? iIndex : -iIndex) * 0.731f + 0.25f;
}

inline void FillByRows(VORKTRReportingTable& oTable, int iRows, int iColumns)
{
    for (int row = 0; row < iRows; ++row) {
        for (int column = 0; column < iColumns; ++column)
            oTable.SetFloat(row, column, Number(row * iColumns + column), "%.3f");
    }
}

#endif
