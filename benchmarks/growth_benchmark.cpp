#include <cstddef>
#include <deque>

#include <malloc.h>

#include <benchmark/benchmark.h>

#include "VORFile.h"
#include "VORKTRReportingBag.h"
#include "VORKTRReportingBuffer.h"
#include "VORKTRReportingInt.h"
#include "VORKTRReportingList.h"
#include "VORKTRReportingTable.h"
#include "VORKTRReportingText.h"
#include "cells.h"
#include "support/TemporaryDirectory.h"

// How time grows with the number of entries, and what a cell takes of memory.

namespace
{

// Makes parts that hold iTotal entries together, and times iFill on each. As small parts use as
// much memory as big ones, only a cost that grows with the size tells them apart.
template <typename Part, typename FillPart, typename... Arguments>
void FillParts(benchmark::State& state, int iTotal, FillPart&& iFill, Arguments... iArguments)
{
    const int size = static_cast<int>(state.range(0));
    for (auto _ : state) {
        std::deque<Part> parts;
        for (int count = 0; count < iTotal; count += size)
            iFill(parts.emplace_back(iArguments...), size);
        state.PauseTiming();
        parts.clear();
        state.ResumeTiming();
    }
}

template <typename Holder>
void AddItems(benchmark::State& state)
{
    FillParts<Holder>(state, Million, [](Holder& holder, int size) {
        for (int i = 0; i < size; ++i)
            holder.AddObject(new VORKTRReportingInt(i, "%d"));
    });
}

void FillRows(benchmark::State& state)
{
    const auto fill = [](VORKTRReportingTable& table, int rows) { FillByRows(table, rows, 10); };
    FillParts<VORKTRReportingTable>(state, Million / 10, fill, 0);
}

void FillSquareByColumns(benchmark::State& state)
{
    const int side = static_cast<int>(state.range(0));
    const auto fill = [side](VORKTRReportingTable& table, int) {
        for (int column = 0; column < side; ++column) {
            for (int row = 0; row < side; ++row)
                table.SetFloat(row, column, Number(row), "%.3f");
        }
    };
    FillParts<VORKTRReportingTable>(state, Million / side, fill, 0);
}

void AddLines(benchmark::State& state)
{
    const auto fill = [](VORKTRReportingList& list, int size) {
        for (int i = 0; i < size; ++i)
            list.addLine("Stress", Number(i), "MPa", "%.3f");
    };
    FillParts<VORKTRReportingList>(state, Million / 10, fill, ':');
}

void Append(benchmark::State& state)
{
    const VORUnicodeString piece("ten bytes.");
    FillParts<VORUnicodeString>(state, Million, [&](VORUnicodeString& text, int size) {
        for (int i = 0; i < size; ++i)
            text.Append(piece);
    });
}

void ReplaceAllOccurrences(benchmark::State& state)
{
    FillParts<VORUnicodeString>(state, 10 * Million, [](VORUnicodeString& text, int size) {
        text = VORUnicodeString(U'&', size);
        VORKTRReportingText::ReplaceAllOccurrences(text, "&", "&amp;");
    });
}

VORKTRReportingObj* NestedTables(int iDepth)
{
    VORKTRReportingObj* inner = new VORKTRReportingInt(1, "%d");
    for (int i = 0; i < iDepth; ++i) {
        auto* const table = new VORKTRReportingTable(0);
        table->SetObj(0, 0, inner);
        inner = table;
    }
    return inner;
}

void NestTables(benchmark::State& state)
{
    const TemporaryDirectory directory;
    unsigned int file = 0;
    VORFOpen(directory.Path("nested.html").c_str(), "w", file);
    FillParts<VORKTRReportingBag>(state, 10000, [&](VORKTRReportingBag& bag, int depth) {
        bag.AddObject(NestedTables(depth));
        bag.Report(file, "", 0, 0);
        VORUnicodeString text;
        bag.ASCIIReport(text);
    });
    VORFClose(file);
}

std::size_t HeapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

void HeapBytesPerCell(benchmark::State& state)
{
    const int rows = static_cast<int>(state.range(0));
    const int columns = static_cast<int>(state.range(1));
    std::size_t bytes = 0;
    while (state.KeepRunning()) {
        const std::size_t before = HeapInUse();
        VORKTRReportingTable table(0);
        FillByRows(table, rows, columns);
        bytes = HeapInUse() - before;
    }
    state.counters["bytes_per_cell"] = static_cast<double>(bytes) / rows / columns;
}

} // namespace

BENCHMARK_TEMPLATE(AddItems, VORKTRReportingBuffer)->Arg(10000)->Arg(Million);
BENCHMARK_TEMPLATE(AddItems, VORKTRReportingBag)->Arg(10000)->Arg(Million);
BENCHMARK(FillRows)->Arg(1000)->Arg(100000);
BENCHMARK(FillSquareByColumns)->Arg(100)->Arg(1000);
BENCHMARK(AddLines)->Arg(1000)->Arg(100000);
BENCHMARK(Append)->Arg(10000)->Arg(Million);
BENCHMARK(ReplaceAllOccurrences)->Arg(100000)->Arg(10000000);
BENCHMARK(NestTables)->Arg(25)->Arg(50);
BENCHMARK(HeapBytesPerCell)->Args({100000, 10})->Args({Million, 1});
