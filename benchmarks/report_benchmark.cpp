#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <malloc.h>

#include <benchmark/benchmark.h>

#include "loops.h"
#include "support/TemporaryDirectory.h"
#include "workloads.h"

// Whole reports, filled and written, beside loops that write the same bytes.

namespace
{

/// Runs iStep, timed, in a directory that is fresh, as writing over files costs more.
template <typename Step>
void TimeInDirectory(benchmark::State& state, Step&& iStep)
{
    for (auto _ : state) {
        state.PauseTiming();
        {
            const TemporaryDirectory directory;
            iStep(directory.Path());
        }
        state.ResumeTiming();
    }
}

template <typename W>
void Report(benchmark::State& state)
{
    TimeInDirectory(state, [&state](const std::string& iDirectory) {
        std::optional<VORKTRReportingBuffer> report;
        state.ResumeTiming();
        report.emplace();
        W::Fill(*report);
        const VORUnicodeString text = W::Write(*report, iDirectory);
        state.PauseTiming();
    });
}

// False when the text or a file of the loop is not that of the report.
template <typename W, typename Out>
bool IsTheReport()
{
    const TemporaryDirectory expected;
    const TemporaryDirectory directory;
    VORKTRReportingBuffer report;
    W::Fill(report);
    const VORUnicodeString text = W::Write(report, expected.Path());
    if (W::template Loop<Out>(directory.Path()) != text.ToString())
        return false;
    for (const auto& entry : std::filesystem::directory_iterator(directory.Path())) {
        const std::string name = entry.path().filename().string();
        if (ReadFile(entry.path().string()) != ReadFile(expected.Path(name)))
            return false;
    }
    return true;
}

template <typename W, typename Out>
void Loop(benchmark::State& state)
{
    static const bool isTheReport = IsTheReport<W, Out>();
    if (!isTheReport)
        state.SkipWithError("the bytes are not those of the report");
    TimeInDirectory(state, [&state](const std::string& iDirectory) {
        state.ResumeTiming();
        const std::string text = W::template Loop<Out>(iDirectory);
        state.PauseTiming();
    });
}

// What a program might keep by hand: each text, label and cell in a string of its own.
using Document = std::vector<std::unique_ptr<std::string>>;

struct HandW2 {
    static void Fill(Document& io)
    {
        for (int i = 0; i < W2::Count; ++i)
            io.push_back(std::make_unique<std::string>(Paragraph(8)));
    }
};

struct HandW4 {
    static void Fill(Document& io)
    {
        const auto add = [&io](auto&& text) { io.push_back(std::make_unique<std::string>(text)); };
        for (int i = 0; i < W4::Count; ++i) {
            add("Load case " + std::to_string(i));
            for (int paragraph = 0; paragraph < 3; ++paragraph)
                add(Paragraph(5) + "\n");
            for (const char* const text : {"Stress", "MPa", "Strain", "Displacement", "mm", "Node",
                                           "Force", "kN", "Result", "safe"})
                add(text);
            for (int number = 0; number < 55; ++number)
                add(fmt::format("{:.3f}", FourDigits(i + number)));
        }
    }
};

// From fresh memory, as in a program that makes one report.
template <typename W, typename Holder = VORKTRReportingBuffer>
void Fill(benchmark::State& state)
{
    for (auto _ : state) {
        state.PauseTiming();
        std::optional<Holder> report(std::in_place);
        ::malloc_trim(0);
        state.ResumeTiming();
        W::Fill(*report);
        state.PauseTiming();
        report.reset();
        state.ResumeTiming();
    }
}

template <typename W, typename Holder = VORKTRReportingBuffer>
void Destroy(benchmark::State& state)
{
    for (auto _ : state) {
        state.PauseTiming();
        std::optional<Holder> report(std::in_place);
        W::Fill(*report);
        state.ResumeTiming();
        report.reset();
    }
}

} // namespace

#define WORKLOAD(W)                                                                                \
    BENCHMARK_TEMPLATE(Report, W);                                                                 \
    BENCHMARK_TEMPLATE(Loop, W, Hand);                                                             \
    BENCHMARK_TEMPLATE(Loop, W, Fmt)

WORKLOAD(W1);
WORKLOAD(W2);
WORKLOAD(W3);
WORKLOAD(W4);
WORKLOAD(W4t);
WORKLOAD(W5);
#define HELD(...)                                                                                  \
    BENCHMARK_TEMPLATE(Fill, __VA_ARGS__);                                                         \
    BENCHMARK_TEMPLATE(Destroy, __VA_ARGS__)

HELD(W1);
HELD(W2);
HELD(W3);
HELD(W4);
HELD(W5);
HELD(HandW2, Document);
HELD(HandW4, Document);
