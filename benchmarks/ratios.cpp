#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <limits>
#include <map>
#include <string>
#include <vector>

#include <malloc.h>

#include <benchmark/benchmark.h>

namespace
{

/// What is measured, against what. Not a time, which depends on the machine, but how it compares
/// with another one of the same run; or a value that is counted.
struct Figure {
    std::string title;
    std::string measured;
    std::string against; // empty: the value itself
    double goal;
};

constexpr double Margin = 1.1;  // that --check allows, for what is noise
constexpr int MostAttempts = 8; // to get a figure to its goal

constexpr const char* Workloads[] = {"W1", "W2", "W3", "W4", "W4t", "W5"};

/// The time to fill and write a report, in times of a loop.
struct Table {
    const char* title;
    const char* loop;
    double goals[std::size(Workloads)];
};

constexpr Table Tables[] = {{"x hand", "Hand", {1.0, 1.15, 1.45, 1.4, 1.5, 1.4}},
                            {"x {fmt}", "Fmt", {0.5, 0.55, 0.75, 0.75, 0.8, 1.1}}};

Figure FigureOf(const Table& iTable, std::size_t iWorkload)
{
    const std::string workload = Workloads[iWorkload];
    return {iTable.title, "Report<" + workload + ">", "Loop<" + workload + ", " + iTable.loop + ">",
            iTable.goals[iWorkload]};
}

Figure Destruction(const std::string& iWorkload, double iGoal)
{
    return {"destroying " + iWorkload + " : filling it", "Destroy<" + iWorkload + ">",
            "Fill<" + iWorkload + ">", iGoal};
}

Figure DestructionByHand(const std::string& iWorkload, double iGoal)
{
    return {"destroying " + iWorkload + " : a document by hand", "Destroy<" + iWorkload + ">",
            "Destroy<Hand" + iWorkload + ", Document>", iGoal};
}

// A thousandfold number of entries takes at most 1000^1.05 times the time.
Figure Growth(const std::string& iTitle, const std::string& iBenchmark)
{
    return {"growth: " + iTitle, iBenchmark + "/1000000", iBenchmark + "/1000", 1.41};
}

const Figure Figures[] = {
    {"bytes a number cell, 100,000 x 10", "BytesPerNumberCell/100000/10", "", 32},
    {"bytes a number cell, 1,000,000 x 1", "BytesPerNumberCell/1000000/1", "", 32},
    {"bytes a number cell, 10,000 x 10", "BytesPerNumberCell/10000/10", "", 32},
    {"bytes a text cell of 20 characters, 1,000", "BytesPerTextCell/1000", "", 80},
    {"bytes a text cell of 20 characters, 100,000", "BytesPerTextCell/100000", "", 80},
    {"bytes a list line, 1,000", "BytesPerListLine/1000", "", 120},
    {"bytes a list line, 100,000", "BytesPerListLine/100000", "", 120},
    {"allocations a table row while writing", "AllocationsPerRow", "", 0},
    {"allocations a list line while writing", "AllocationsPerLine", "", 0},
    {"allocations a paragraph while writing", "AllocationsPerParagraph", "", 0},
    {"allocations a page while writing", "AllocationsPerPage", "", 4},
    Destruction("W1", 0.07),
    Destruction("W2", 0.14),
    Destruction("W3", 0.06),
    // Many small pieces of memory, which the C library joins one by one as they are freed.
    Destruction("W4", 0.33),
    Destruction("W5", 0.36),
    DestructionByHand("W2", 1),
    DestructionByHand("W4", 0.6),
    Growth("items of a report", "AddItems<VORKTRReportingBuffer>"),
    Growth("items of a bag", "AddItems<VORKTRReportingBag>"),
    Growth("rows", "FillRows"),
    Growth("columns", "FillColumns"),
    Growth("list lines", "AddLines"),
    Growth("removing in order", "RemoveInOrder"),
    Growth("removing in reverse", "RemoveInReverse"),
    Growth("adding one, removing the one before", "AddAndRemovePrevious"),
    Growth("Update", "Update"),
    Growth("Append", "Append"),
    Growth("ReplaceAllOccurrences", "ReplaceAllOccurrences"),
};

/// Shows medians only and keeps the smallest CPU time of each benchmark, which other programs on
/// the machine disturb least; for one that counts something, the count.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        std::vector<Run> shown;
        for (const Run& run : runs) {
            // One that failed has no time; its own mark has changed its name between versions.
            const bool isIteration = run.run_type == Run::RT_Iteration;
            const bool isFailed = isIteration && run.cpu_accumulated_time <= 0;
            if (isIteration && !isFailed)
                Keep(run);
            if (run.repetitions <= 1 || isFailed || run.aggregate_name == "median")
                shown.push_back(run);
        }
        if (!shown.empty())
            ConsoleReporter::ReportRuns(shown);
    }

    /// Below 0 when it was not measured.
    double Get(const std::string& iName) const
    {
        const auto found = _Values.find(iName);
        return found == _Values.end() ? -1 : found->second;
    }

private:
    void Keep(const Run& iRun)
    {
        const std::string& arguments = iRun.run_name.args;
        const std::string name =
            iRun.run_name.function_name + (arguments.empty() ? "" : "/") + arguments;
        const auto counted = iRun.counters.find("value");
        const double value = counted != iRun.counters.end()
                                 ? counted->second.value
                                 : iRun.cpu_accumulated_time / static_cast<double>(iRun.iterations);
        const auto kept = _Values.emplace(name, value).first;
        kept->second = std::min(kept->second, value);
    }

    std::map<std::string, double> _Values;
};

/// The value of a figure; below 0 when it was not measured.
double ValueOf(const Figure& iFigure, const RatioReporter& iReporter)
{
    const double against = iFigure.against.empty() ? 1 : iReporter.Get(iFigure.against);
    return against > 0 ? iReporter.Get(iFigure.measured) / against : -1;
}

bool IsMet(const Figure& iFigure, double iValue, double iMargin = Margin)
{
    return iValue >= 0 && iValue <= iFigure.goal * iMargin;
}

void Print(const Figure& iFigure, const RatioReporter& iReporter)
{
    const double value = ValueOf(iFigure, iReporter);
    if (value < 0)
        std::printf("   none (%4.4g) ", iFigure.goal);
    else
        std::printf("%7.3g (%4.4g)%c", value, iFigure.goal, IsMet(iFigure, value) ? ' ' : '!');
}

void PrintAll(const RatioReporter& iReporter)
{
    std::printf("\nRatios of the smallest CPU times, goals in brackets, ! beyond the margin\n%-8s",
                "");
    for (const char* const workload : Workloads)
        std::printf("%-15s ", workload);
    for (const Table& table : Tables) {
        std::printf("\n%-8s", table.title);
        for (std::size_t i = 0; i < std::size(Workloads); ++i)
            Print(FigureOf(table, i), iReporter);
    }
    std::printf("\n\n");
    for (const Figure& figure : Figures) {
        Print(figure, iReporter);
        std::printf("  %s\n", figure.title.c_str());
    }
}

std::vector<Figure> FindMissed(const RatioReporter& iReporter, double iMargin)
{
    std::vector<Figure> missed;
    const auto add = [&](const Figure& figure) {
        if (!IsMet(figure, ValueOf(figure, iReporter), iMargin))
            missed.push_back(figure);
    };
    for (const Table& table : Tables) {
        for (std::size_t i = 0; i < std::size(Workloads); ++i)
            add(FigureOf(table, i));
    }
    std::for_each(std::begin(Figures), std::end(Figures), add);
    return missed;
}

/// Measures again what missed its goal, both sides of it: a smallest time comes only nearer to what
/// it would be on a machine without other work.
void MeasureAgain(const std::vector<Figure>& iFigures, RatioReporter& ioReporter)
{
    std::string names;
    for (const Figure& figure : iFigures) {
        if (ValueOf(figure, ioReporter) >= 0 && !figure.against.empty())
            names += (names.empty() ? "^(" : "|") + figure.measured + "|" + figure.against;
    }
    if (!names.empty())
        benchmark::RunSpecifiedBenchmarks(&ioReporter, names + ")$");
}

// What was freed is used again: to get pages from the system takes as long as it is busy, which
// says nothing about report or loop.
void KeepFreedMemory()
{
    ::mallopt(M_MMAP_MAX, 0);
    ::mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
}

bool TakeCheckOption(int& ioCount, char** ioArguments)
{
    char** const end = ioArguments + ioCount;
    char** const kept = std::remove_if(ioArguments, end, [](const char* argument) {
        return std::strcmp(argument, "--check") == 0;
    });
    ioCount = static_cast<int>(kept - ioArguments);
    return kept != end;
}

} // namespace

/// Takes the options of Google Benchmark, and --check: fail when a figure misses its goal by more
/// than the margin. Files are written below TMPDIR; on a file system in memory their times vary
/// least.
int main(int argc, char** argv)
{
    const bool isCheck = TakeCheckOption(argc, argv);
    // Ahead of the user's, so that those count.
    std::vector<char*> arguments(argv, argv + argc);
    std::string defaults[] = {"--benchmark_repetitions=9", "--benchmark_min_time=0.01",
                              "--benchmark_enable_random_interleaving=true"};
    for (std::string& option : defaults)
        arguments.insert(arguments.begin() + 1, option.data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 2;

    KeepFreedMemory();
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    for (int attempt = 1; attempt < MostAttempts; ++attempt)
        MeasureAgain(FindMissed(reporter, 1), reporter);
    PrintAll(reporter);
    return isCheck && !FindMissed(reporter, Margin).empty() ? 1 : 0;
}
