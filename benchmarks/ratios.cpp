#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <map>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

namespace
{

/// What is measured, against what. Not a time, which depends on the machine, but how it compares
/// with another one of the same run; or a value that is counted.
struct Figure {
    const char* title;
    const char* measured;
    const char* against; // null: the value itself
    double goal;
};

constexpr double Margin = 1.35; // that --check allows, for machines under load

const char* const Workloads[] = {"W1", "W2", "W3", "W4", "W4t", "W5"};

/// The time to fill and write a report, in times of a loop.
struct Table {
    const char* title;
    const char* loop;
    double goals[std::size(Workloads)];
};

const Table Tables[] = {{"x hand", "Hand", {1.0, 1.15, 1.45, 1.4, 1.5, 1.4}},
                        {"x {fmt}", "Fmt", {0.5, 0.55, 0.75, 0.75, 0.8, 1.1}}};

// A thousandfold number of entries takes at most 1000^1.05 times the time.
constexpr double Growth = 1.41;

const Figure Figures[] = {
    {"bytes a number cell, 100,000 x 10", "BytesPerNumberCell/100000/10", nullptr, 32},
    {"bytes a number cell, 1,000,000 x 1", "BytesPerNumberCell/1000000/1", nullptr, 32},
    {"bytes a number cell, 10,000 x 10", "BytesPerNumberCell/10000/10", nullptr, 32},
    {"bytes a text cell of 20 characters, 1,000", "BytesPerTextCell/1000", nullptr, 80},
    {"bytes a text cell of 20 characters, 100,000", "BytesPerTextCell/100000", nullptr, 80},
    {"bytes a list line, 1,000", "BytesPerListLine/1000", nullptr, 120},
    {"bytes a list line, 100,000", "BytesPerListLine/100000", nullptr, 120},
    {"allocations a table row while writing", "AllocationsPerRow", nullptr, 0},
    {"allocations a list line while writing", "AllocationsPerLine", nullptr, 0},
    {"allocations a paragraph while writing", "AllocationsPerParagraph", nullptr, 0},
    {"allocations a page while writing", "AllocationsPerPage", nullptr, 4},
    {"destroying W1 : filling it", "Destroy<W1>", "Fill<W1>", 0.1},
    {"growth: items of a report", "AddItems<VORKTRReportingBuffer>/1000000",
     "AddItems<VORKTRReportingBuffer>/1000", Growth},
    {"growth: items of a bag", "AddItems<VORKTRReportingBag>/1000000",
     "AddItems<VORKTRReportingBag>/1000", Growth},
    {"growth: rows", "FillRows/1000000", "FillRows/1000", Growth},
    {"growth: columns", "FillColumns/1000000", "FillColumns/1000", Growth},
    {"growth: list lines", "AddLines/1000000", "AddLines/1000", Growth},
    {"growth: removing in order", "RemoveInOrder/1000000", "RemoveInOrder/1000", Growth},
    {"growth: removing in reverse", "RemoveInReverse/1000000", "RemoveInReverse/1000", Growth},
    {"growth: adding one, removing the one before", "AddAndRemovePrevious/1000000",
     "AddAndRemovePrevious/1000", Growth},
    {"growth: Update", "Update/1000000", "Update/1000", Growth},
    {"growth: Append", "Append/1000000", "Append/1000", Growth},
    {"growth: ReplaceAllOccurrences", "ReplaceAllOccurrences/1000000", "ReplaceAllOccurrences/1000",
     Growth},
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

/// Prints a value beside its goal. False when it was not measured or is above the goal and the
/// margin.
bool Print(double iValue, double iAgainst, double iGoal)
{
    if (iValue < 0 || iAgainst <= 0) {
        std::printf("   none (%4.4g) ", iGoal);
        return false;
    }
    const double value = iValue / iAgainst;
    const bool isMet = value <= iGoal * Margin;
    std::printf("%7.3g (%4.4g)%c", value, iGoal, isMet ? ' ' : '!');
    return isMet;
}

/// Each prints its figures and returns the number of those that miss their goals.
int PrintTables(const RatioReporter& iReporter)
{
    int missed = 0;
    std::printf("\n%-8s", "");
    for (const char* const workload : Workloads)
        std::printf("%-15s ", workload);
    for (const Table& table : Tables) {
        std::printf("\n%-8s", table.title);
        for (std::size_t i = 0; i < std::size(Workloads); ++i) {
            const std::string workload = Workloads[i];
            const double report = iReporter.Get("Report<" + workload + ">");
            const double loop = iReporter.Get("Loop<" + workload + ", " + table.loop + ">");
            missed += Print(report, loop, table.goals[i]) ? 0 : 1;
        }
    }
    std::printf("\n\n");
    return missed;
}

int PrintFigures(const RatioReporter& iReporter)
{
    int missed = 0;
    for (const Figure& figure : Figures) {
        const double against = figure.against ? iReporter.Get(figure.against) : 1;
        missed += Print(iReporter.Get(figure.measured), against, figure.goal) ? 0 : 1;
        std::printf("  %s\n", figure.title);
    }
    return missed;
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

    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    std::printf("\nRatios of the smallest CPU times, goals in brackets, ! beyond the margin\n");
    const int missed = PrintTables(reporter) + PrintFigures(reporter);
    return isCheck && missed > 0 ? 1 : 0;
}
