#include <cstddef>
#include <string>

#include <malloc.h>

#include <benchmark/benchmark.h>

#include "support/TemporaryDirectory.h"
#include "workloads.h"

// What entries take of the heap, and how often writing asks for more.

std::size_t CountAllocations(); // since the program began

namespace
{

std::size_t HeapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

// Of one entry, when iFill has put iCount of them into a Part.
template <typename Part, typename FillPart>
void BytesPer(benchmark::State& state, int iCount, FillPart&& iFill)
{
    for (auto _ : state) {
        const std::size_t before = HeapInUse();
        Part part('=');
        for (int i = 0; i < iCount; ++i)
            iFill(part, i);
        state.counters["value"] = static_cast<double>(HeapInUse() - before) / iCount;
    }
}

void BytesPerNumberCell(benchmark::State& state)
{
    const auto columns = static_cast<int>(state.range(1));
    BytesPer<VORKTRReportingTable>(state, static_cast<int>(state.range(0)) * columns,
                                   [columns](VORKTRReportingTable& io, int i) {
                                       io.SetFloat(i / columns, i % columns, Number(i), "%.3f");
                                   });
}

void BytesPerTextCell(benchmark::State& state)
{
    const VORUnicodeString text("twenty characters...");
    BytesPer<VORKTRReportingTable>(
        state, static_cast<int>(state.range(0)),
        [&text](VORKTRReportingTable& io, int i) { io.SetText(i / 10, i % 10, text); });
}

void BytesPerListLine(benchmark::State& state)
{
    BytesPer<VORKTRReportingList>(
        state, static_cast<int>(state.range(0)),
        [](VORKTRReportingList& io, int i) { io.addLine("Stress", Number(i), "MPa", "%.3f"); });
}

// Allocations that MakeReport makes for each entry, beyond those that it makes without any.
template <typename AddEntries>
void AllocationsPer(benchmark::State& state, AddEntries&& iAdd)
{
    constexpr int count = 1000;
    const auto write = [&iAdd](int iEntries) {
        const TemporaryDirectory directory;
        const VORUnicodeString path(directory.Path().c_str());
        VORKTRReportingBuffer report;
        iAdd(report, iEntries);
        const std::size_t before = CountAllocations();
        report.MakeReport(path, "Analysis");
        return CountAllocations() - before;
    };
    for (auto _ : state)
        state.counters["value"] = static_cast<double>(write(2 * count) - write(count)) / count;
}

void AllocationsPerRow(benchmark::State& state)
{
    AllocationsPer(state, [](VORKTRReportingBuffer& io, int iEntries) {
        io.AddObject(NewTable(iEntries, 10, Number));
    });
}

void AllocationsPerLine(benchmark::State& state)
{
    AllocationsPer(state, [](VORKTRReportingBuffer& io, int iEntries) {
        auto* const list = new VORKTRReportingList('=');
        for (int i = 0; i < iEntries; ++i)
            list->addLine("Stress", Number(i), "MPa", "%.3f");
        io.AddObject(list);
    });
}

void AllocationsPerParagraph(benchmark::State& state)
{
    AllocationsPer(state, [](VORKTRReportingBuffer& io, int iEntries) {
        const std::string text = Paragraph(5);
        for (int i = 0; i < iEntries; ++i)
            io.AddObject(new VORKTRReportingText(text.c_str()));
    });
}

void AllocationsPerPage(benchmark::State& state)
{
    AllocationsPer(state, [](VORKTRReportingBuffer& io, int iEntries) {
        for (int i = 0; i < iEntries; ++i)
            io.AddObject(new VORKTRReportingTitle("Load case", 1));
    });
}

} // namespace

BENCHMARK(BytesPerNumberCell)->Args({100000, 10})->Args({Million, 1})->Args({10000, 10});
BENCHMARK(BytesPerTextCell)->Arg(1000)->Arg(100000);
BENCHMARK(BytesPerListLine)->Arg(1000)->Arg(100000);
BENCHMARK(AllocationsPerRow);
BENCHMARK(AllocationsPerLine);
BENCHMARK(AllocationsPerParagraph);
BENCHMARK(AllocationsPerPage);
