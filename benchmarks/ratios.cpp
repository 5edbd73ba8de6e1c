#include <algorithm>
#include <cstdio>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

namespace
{

constexpr double NoLimit = 0;

/// What matters is not a time, which depends on the machine, but how it compares with another one
/// of the same run.
struct Ratio {
    const char* title;
    std::vector<const char*> measured; // the times of these are added up
    std::vector<const char*> against;
    double limit; // what --check allows: wider than the goal, for machines under load
};

const Ratio Ratios[] = {
    {"add to a report, 1,000,000 : 10,000 items",
     {"AddItems<VORKTRReportingBuffer>/1000000"},
     {"AddItems<VORKTRReportingBuffer>/10000"},
     3},
    {"add to a bag, 1,000,000 : 10,000 items",
     {"AddItems<VORKTRReportingBag>/1000000"},
     {"AddItems<VORKTRReportingBag>/10000"},
     3},
    {"fill by rows, 100,000 x 10 : 1,000 x 10", {"FillRows/100000"}, {"FillRows/1000"}, 3},
    {"fill by columns, 1,000 x 1,000 : 100 x 100",
     {"FillSquareByColumns/1000"},
     {"FillSquareByColumns/100"},
     3},
    {"lines of a list, 100,000 : 1,000", {"AddLines/100000"}, {"AddLines/1000"}, 3},
    {"append, 10 MB : 100 kB", {"Append/1000000"}, {"Append/10000"}, 3},
    {"replace all, 10 MB : 100 kB",
     {"ReplaceAllOccurrences/10000000"},
     {"ReplaceAllOccurrences/100000"},
     3},
    {"nested tables, depth 50 : 25", {"NestTables/50"}, {"NestTables/25"}, 3},
    {"10 MB of text, write : plain write",
     {"Report<LongText, Phase::Write>"},
     {"PlainWrite<LongText>"},
     NoLimit},
    {"100,000 paragraphs, write : plain write",
     {"Report<Paragraphs, Phase::Write>"},
     {"PlainWrite<Paragraphs>"},
     NoLimit},
    {"100,000 paragraphs, write : fprintf",
     {"Report<Paragraphs, Phase::Write>"},
     {"Fprintf<Paragraphs>"},
     NoLimit},
    {"1,000 pages, write : plain write",
     {"Report<FrameSite, Phase::Write>"},
     {"PlainWrite<FrameSite>"},
     NoLimit},
    {"1,000,000 floats, fill and write : fprintf",
     {"Report<Floats<Million>, Phase::Fill>", "Report<Floats<Million>, Phase::Write>"},
     {"Fprintf<Floats<Million>>"},
     1},
    {"1,000,000 floats, fill and write : convert and plain write",
     {"Report<Floats<Million>, Phase::Fill>", "Report<Floats<Million>, Phase::Write>"},
     {"Convert<Floats<Million>>", "PlainWrite<Floats<Million>>"},
     2.5},
    {"1,000,000 floats, fill alone : convert and plain write",
     {"Report<Floats<Million>, Phase::Fill>"},
     {"Convert<Floats<Million>>", "PlainWrite<Floats<Million>>"},
     NoLimit},
    {"1,000,000 floats, destroy : convert and plain write",
     {"Report<Floats<Million>, Phase::Destroy>"},
     {"Convert<Floats<Million>>", "PlainWrite<Floats<Million>>"},
     NoLimit},
    {"100,000 floats, text : convert",
     {"TextReport<Floats<100000>>"},
     {"Convert<Floats<100000>>"},
     NoLimit},
    {"heap bytes for each of 100,000 x 10 floats", {"HeapOfCells/100000/10"}, {}, 96},
    {"heap bytes for each of 1,000,000 x 1 floats", {"HeapOfCells/1000000/1"}, {}, 96},
};

/// Shows medians only and keeps the smallest CPU time of each benchmark, which other programs on
/// the machine disturb least; for one that counts bytes, the bytes.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        std::vector<Run> shown;
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Iteration && !run.error_occurred)
                Keep(run);
            if (run.repetitions <= 1 || run.error_occurred || run.aggregate_name == "median")
                shown.push_back(run);
        }
        if (!shown.empty())
            ConsoleReporter::ReportRuns(shown);
    }

    /// 0 when one of them was not measured.
    double Sum(const std::vector<const char*>& iNames) const
    {
        double sum = 0;
        for (const char* const name : iNames) {
            const auto found = _Values.find(name);
            if (found == _Values.end())
                return 0;
            sum += found->second;
        }
        return sum;
    }

private:
    void Keep(const Run& iRun)
    {
        const std::string& arguments = iRun.run_name.args;
        const std::string name =
            iRun.run_name.function_name + (arguments.empty() ? "" : "/") + arguments;
        const auto bytes = iRun.counters.find("bytes_per_cell");
        const double value = bytes != iRun.counters.end()
                                 ? bytes->second.value
                                 : iRun.cpu_accumulated_time / static_cast<double>(iRun.iterations);
        const auto kept = _Values.emplace(name, value).first;
        kept->second = std::min(kept->second, value);
    }

    std::map<std::string, double> _Values;
};

bool PrintRatio(const Ratio& iRatio, const RatioReporter& iReporter)
{
    const double measured = iReporter.Sum(iRatio.measured);
    const double against = iRatio.against.empty() ? 1 : iReporter.Sum(iRatio.against);
    if (measured <= 0 || against <= 0) {
        std::printf("%-60s not measured\n", iRatio.title);
        return false;
    }
    const double ratio = measured / against;
    const bool isMet = iRatio.limit == NoLimit || ratio <= iRatio.limit;
    std::printf("%-60s %8.2f", iRatio.title, ratio);
    if (iRatio.limit != NoLimit)
        std::printf("  at most %g%s", iRatio.limit, isMet ? "" : ": MISSED");
    std::printf("\n");
    return isMet;
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

/// Takes the options of Google Benchmark, and --check: fail when a ratio is above its limit. Files
/// are written below TMPDIR; on a file system in memory their times vary least.
int main(int argc, char** argv)
{
    const bool isCheck = TakeCheckOption(argc, argv);
    // Ahead of the user's, so that those count.
    std::vector<char*> arguments(argv, argv + argc);
    std::string defaults[] = {"--benchmark_repetitions=5", "--benchmark_min_time=0.05",
                              "--benchmark_enable_random_interleaving=true"};
    for (std::string& option : defaults)
        arguments.insert(arguments.begin() + 1, option.data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 2;

    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    std::printf("\nRatios of the smallest times\n");
    int missed = 0;
    for (const Ratio& ratio : Ratios)
        missed += PrintRatio(ratio, reporter) ? 0 : 1;
    return isCheck && missed > 0 ? 1 : 0;
}
