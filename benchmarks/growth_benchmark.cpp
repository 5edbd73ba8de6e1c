#include <deque>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "VORKTRReportingBag.h"
#include "VORKTRReportingInt.h"
#include "support/TemporaryDirectory.h"
#include "workloads.h"

// How time grows with the number of entries.

namespace
{

constexpr int Small = 1000;

// Makes parts that hold iTotal entries together, and times iUse on each once iPrepare has made it.
// As small parts use as much memory as big ones, only a cost that grows with the size tells them
// apart.
template <typename Part, typename Prepare, typename Use, typename... Arguments>
void UseParts(benchmark::State& state, int iTotal, Prepare&& iPrepare, Use&& iUse,
              Arguments... iArguments)
{
    const int size = static_cast<int>(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        std::deque<Part> parts;
        for (int count = 0; count < iTotal; count += size)
            iPrepare(parts.emplace_back(iArguments...), size);
        state.ResumeTiming();
        for (Part& part : parts)
            iUse(part, size);
        state.PauseTiming();
        parts.clear();
        state.ResumeTiming();
    }
}

template <typename Part, typename FillPart, typename... Arguments>
void FillParts(benchmark::State& state, int iTotal, FillPart&& iFill, Arguments... iArguments)
{
    UseParts<Part>(
        state, iTotal, [](Part&, int) {}, iFill, iArguments...);
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
    const auto fill = [](VORKTRReportingTable& table, int rows) {
        for (int row = 0; row < rows; ++row)
            table.SetFloat(row, 0, Number(row), "%.3f");
    };
    FillParts<VORKTRReportingTable>(state, Million, fill, 0);
}

void FillColumns(benchmark::State& state)
{
    const auto fill = [](VORKTRReportingTable& table, int size) {
        for (int column = 0; column < size / 10; ++column) {
            for (int row = 0; row < 10; ++row)
                table.SetFloat(row, column, Number(row), "%.3f");
        }
    };
    FillParts<VORKTRReportingTable>(state, Million, fill, 0);
}

void AddLines(benchmark::State& state)
{
    const auto fill = [](VORKTRReportingList& list, int size) {
        for (int i = 0; i < size; ++i)
            list.addLine("Stress", Number(i), "MPa", "%.3f");
    };
    FillParts<VORKTRReportingList>(state, Million, fill, ':');
}

/// A report whose items are known.
struct Known {
    VORKTRReportingBuffer report;
    std::vector<VORKTRReportingObj*> items;

    void Add()
    {
        items.push_back(new VORKTRReportingInt(1, "%d"));
        report.AddObject(items.back());
    }
    void Fill(int iSize)
    {
        for (int i = 0; i < iSize; ++i)
            Add();
    }
};

void RemoveInOrder(benchmark::State& state)
{
    const auto fill = [](Known& known, int size) { known.Fill(size); };
    UseParts<Known>(state, Million, fill, [](Known& known, int) {
        for (auto* const item : known.items)
            known.report.RemoveObject(item);
    });
}

void RemoveInReverse(benchmark::State& state)
{
    const auto fill = [](Known& known, int size) { known.Fill(size); };
    UseParts<Known>(state, Million, fill, [](Known& known, int) {
        for (auto item = known.items.rbegin(); item != known.items.rend(); ++item)
            known.report.RemoveObject(*item);
    });
}

// As a monitor does: the newest takes the place of the one before it.
void AddAndRemovePrevious(benchmark::State& state)
{
    FillParts<Known>(state, Million, [](Known& known, int size) {
        known.Add();
        for (int i = 1; i < size; ++i) {
            known.Add();
            known.report.RemoveObject(known.items[known.items.size() - 2]);
        }
    });
}

void Update(benchmark::State& state)
{
    const TemporaryDirectory directory;
    const VORUnicodeString path(directory.Path().c_str());
    UseParts<Known>(
        state, Million,
        [&path](Known& known, int size) {
            known.Fill(size);
            known.report.MakeReport(path, "Analysis");
        },
        [](Known& known, int) { known.report.Update(); });
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

} // namespace

BENCHMARK_TEMPLATE(AddItems, VORKTRReportingBuffer)->Arg(Small)->Arg(Million);
BENCHMARK_TEMPLATE(AddItems, VORKTRReportingBag)->Arg(Small)->Arg(Million);
BENCHMARK(FillRows)->Arg(Small)->Arg(Million);
BENCHMARK(FillColumns)->Arg(Small)->Arg(Million);
BENCHMARK(AddLines)->Arg(Small)->Arg(Million);
BENCHMARK(RemoveInOrder)->Arg(Small)->Arg(Million);
BENCHMARK(RemoveInReverse)->Arg(Small)->Arg(Million);
BENCHMARK(AddAndRemovePrevious)->Arg(Small)->Arg(Million);
BENCHMARK(Update)->Arg(Small)->Arg(Million);
BENCHMARK(Append)->Arg(Small)->Arg(Million);
BENCHMARK(ReplaceAllOccurrences)->Arg(Small)->Arg(Million);
