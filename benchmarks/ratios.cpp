#include <algorithm>
#include <cstdio>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

namespace
{

using Names = std::vector<const char*>;

/// What matters is not a time, which depends on the machine, but how it compares with another one
/// of the same run.
struct Ratio {
    Names measured; // the times of these are added up
    Names against;
    double limit = 0; // what --check allows: wider than the goal, for machines under load; 0: any
};

const char* const Fill = "Report<Floats<Million>, Phase::Fill>";
const char* const Write = "Report<Floats<Million>, Phase::Write>";
const char* const Destroy = "Report<Floats<Million>, Phase::Destroy>";
const char* const Convert = "Convert<Floats<Million>>";
const char* const PlainWrite = "PlainWrite<Floats<Million>>";

const Ratio Ratios[] = {
    {{"AddItems<VORKTRReportingBuffer>/1000000"}, {"AddItems<VORKTRReportingBuffer>/10000"}, 3},
    {{"AddItems<VORKTRReportingBag>/1000000"}, {"AddItems<VORKTRReportingBag>/10000"}, 3},
    {{"FillRows/100000"}, {"FillRows/1000"}, 3},
    {{"FillSquareByColumns/1000"}, {"FillSquareByColumns/100"}, 3},
    {{"AddLines/100000"}, {"AddLines/1000"}, 3},
    {{"Append/1000000"}, {"Append/10000"}, 3},
    {{"ReplaceAllOccurrences/10000000"}, {"ReplaceAllOccurrences/100000"}, 3},
    {{"NestTables/50"}, {"NestTables/25"}, 3},
    {{"Report<LongText, Phase::Write>"}, {"PlainWrite<LongText>"}},
    {{"Report<Paragraphs, Phase::Write>"}, {"PlainWrite<Paragraphs>"}},
    {{"Report<Paragraphs, Phase::Write>"}, {"Fprintf<Paragraphs>"}},
    {{"Report<FrameSite, Phase::Write>"}, {"PlainWrite<FrameSite>"}},
    {{Fill, Write}, {"Fprintf<Floats<Million>>"}, 1},
    {{Fill, Write}, {Convert, PlainWrite}, 2.5},
    {{Fill}, {Convert, PlainWrite}},
    {{Destroy}, {Convert, PlainWrite}},
    {{"TextReport<Floats<100000>>"}, {"Convert<Floats<100000>>"}},
    {{"HeapBytesPerCell/100000/10"}, {}, 96},
    {{"HeapBytesPerCell/1000000/1"}, {}, 96},
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

    /// 0 when one of them was not measured.
    double Sum(const Names& iNames) const
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

std::string Terms(const Names& iNames)
{
    std::string terms;
    for (const char* const name : iNames)
        terms += (terms.empty() ? "" : " + ") + std::string(name);
    return terms;
}

/// False when it was not measured or is above its limit.
bool PrintRatio(const Ratio& iRatio, const RatioReporter& iReporter)
{
    const double measured = iReporter.Sum(iRatio.measured);
    const double against = iRatio.against.empty() ? 1 : iReporter.Sum(iRatio.against);
    const bool isMeasured = measured > 0 && against > 0;
    const bool isMet = isMeasured && (iRatio.limit <= 0 || measured / against <= iRatio.limit);
    if (isMeasured)
        std::printf("%8.2f", measured / against);
    else
        std::printf("%8s", "none");
    if (iRatio.limit > 0)
        std::printf(" of at most %-3g %s", iRatio.limit, isMet ? "      " : "MISSED");
    else
        std::printf("%23s", "");
    std::printf("  %s%s%s\n", Terms(iRatio.measured).c_str(), iRatio.against.empty() ? "" : " : ",
                Terms(iRatio.against).c_str());
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
