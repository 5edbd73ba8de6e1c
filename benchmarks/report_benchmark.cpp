#include <algorithm>
#include <charconv>
#include <cstdio>
#include <filesystem>
#include <iterator>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include <fcntl.h>
#include <unistd.h>

#include <benchmark/benchmark.h>

#include "VORKTRReportingBuffer.h"
#include "VORKTRReportingTable.h"
#include "VORKTRReportingText.h"
#include "VORKTRReportingTitle.h"
#include "cells.h"
#include "support/TemporaryDirectory.h"

// Whole reports beside the least that their output costs.

namespace
{

// The reports that are written, some with a hand-written loop that prints the same HTML.

struct LongText {
    static void Add(VORKTRReportingBuffer& oReport)
    {
        auto* const text = new VORKTRReportingText;
        for (int i = 0; i < 10 * Million / 50; ++i)
            text->WriteUnicode("While strain < 0.2 % & load > 0, the part is safe\n");
        oReport.AddObject(text);
    }
};

struct Paragraphs {
    static constexpr int Count = 100000;

    static void Add(VORKTRReportingBuffer& oReport)
    {
        char text[100];
        for (int i = 0; i < Count; ++i) {
            std::snprintf(text, sizeof text, "Load case %d: stress < 235 MPa & safe.", i);
            oReport.AddObject(new VORKTRReportingText(text));
        }
    }

    static void Print(std::FILE* iFile)
    {
        for (int i = 0; i < Count; ++i)
            std::fprintf(iFile, "<p>Load case %d: stress &lt; 235 MPa &amp; safe.</p>\n", i);
    }
};

template <int Count>
struct Floats {
    static constexpr int Columns = 10;

    static void Add(VORKTRReportingBuffer& oReport)
    {
        auto* const table = new VORKTRReportingTable(0);
        FillByRows(*table, Count / Columns, Columns);
        oReport.AddObject(table);
    }

    static void Print(std::FILE* iFile)
    {
        std::fprintf(iFile, "<BR>\n<CENTER>\n<TABLE BORDER=0 CELLPADDING=5>\n");
        for (int i = 0; i < Count; ++i) {
            if (i % Columns == 0)
                std::fprintf(iFile, "<TR>\n");
            std::fprintf(iFile, "<TD ALIGN=RIGHT>% .3f</TD>\n", static_cast<double>(Number(i)));
            if (i % Columns == Columns - 1)
                std::fprintf(iFile, "</TR>\n");
        }
        std::fprintf(iFile, "</TABLE>\n</CENTER>\n");
    }

    static void Convert()
    {
        char text[64];
        for (int i = 0; i < Count; ++i) {
            std::to_chars(text, std::end(text), Number(i), std::chars_format::fixed, 3);
            benchmark::DoNotOptimize(text);
        }
    }
};

struct FrameSite {
    static void Add(VORKTRReportingBuffer& oReport)
    {
        for (int page = 0; page < 1000; ++page) {
            oReport.AddObject(new VORKTRReportingTitle("Load case", 1));
            oReport.AddObject(new VORKTRReportingText("The part is safe."));
        }
    }
};

using FileMap = std::map<std::string, std::string>;

/// The files of a report, by name.
template <typename Content>
const FileMap& Files()
{
    static const FileMap files = [] {
        const TemporaryDirectory directory;
        VORKTRReportingBuffer report;
        Content::Add(report);
        report.MakeReport(directory.Path().c_str(), "Analysis");
        FileMap result;
        for (const auto& entry : std::filesystem::directory_iterator(directory.Path()))
            result[entry.path().filename().string()] = ReadFile(entry.path().string());
        return result;
    }();
    return files;
}

enum class Phase { Fill, Write, Destroy };

template <typename Step>
void Time(benchmark::State& state, bool iIsTimed, Step&& iStep)
{
    if (iIsTimed)
        state.ResumeTiming();
    iStep();
    if (iIsTimed)
        state.PauseTiming();
}

// The life of a report, of which one phase is timed. The directory is fresh each time, as writing
// over files costs more.
template <typename Content, Phase Timed>
void Report(benchmark::State& state)
{
    for (auto _ : state) {
        state.PauseTiming();
        {
            const TemporaryDirectory directory;
            std::optional<VORKTRReportingBuffer> report(std::in_place);
            Time(state, Timed == Phase::Fill, [&] { Content::Add(*report); });
            Time(state, Timed == Phase::Write,
                 [&] { report->MakeReport(directory.Path().c_str(), "Analysis"); });
            Time(state, Timed == Phase::Destroy, [&] { report.reset(); });
        }
        state.ResumeTiming();
    }
}

// Times iWrite on each of the files of a report, in a directory that is fresh each time too.
template <typename Content, typename WriteFile>
void WriteFiles(benchmark::State& state, WriteFile&& iWrite)
{
    const FileMap& files = Files<Content>();
    for (auto _ : state) {
        state.PauseTiming();
        {
            const TemporaryDirectory directory;
            Time(state, true, [&] {
                for (const auto& [name, bytes] : files)
                    iWrite(directory.Path(name), bytes);
            });
            for (const auto& [name, bytes] : files) {
                if (ReadFile(directory.Path(name)) != bytes)
                    state.SkipWithError("the bytes are not those of the report");
            }
        }
        state.ResumeTiming();
    }
}

void WriteBlocks(const std::string& iPath, std::string_view iBytes)
{
    constexpr std::size_t block = 65536;
    const int file = ::open(iPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
    for (; !iBytes.empty(); iBytes.remove_prefix(std::min(block, iBytes.size())))
        benchmark::DoNotOptimize(::write(file, iBytes.data(), std::min(block, iBytes.size())));
    ::close(file);
}

template <typename Content>
void PlainWrite(benchmark::State& state)
{
    WriteFiles<Content>(state, WriteBlocks);
}

template <typename Content>
void Fprintf(benchmark::State& state)
{
    WriteFiles<Content>(state, [](const std::string& iPath, const std::string& iBytes) {
        if (iPath.find(".html") == std::string::npos)
            return WriteBlocks(iPath, iBytes);
        const std::string_view endOfHead = "</P>\n";
        std::FILE* const file = std::fopen(iPath.c_str(), "w");
        std::fwrite(iBytes.data(), 1, iBytes.find(endOfHead) + endOfHead.size(), file);
        Content::Print(file);
        std::fprintf(file, "</BODY>\n</HTML>\n");
        std::fclose(file);
    });
}

template <typename Content>
void Convert(benchmark::State& state)
{
    for (auto _ : state)
        Content::Convert();
}

template <typename Content>
void TextReport(benchmark::State& state)
{
    VORKTRReportingBuffer report;
    Content::Add(report);
    for (auto _ : state) {
        VORUnicodeString text;
        report.MakeTextReport("Analysis", text);
        benchmark::DoNotOptimize(text.ConvertToChar());
    }
}

} // namespace

BENCHMARK_TEMPLATE(Report, LongText, Phase::Write);
BENCHMARK_TEMPLATE(PlainWrite, LongText);
BENCHMARK_TEMPLATE(Report, Paragraphs, Phase::Write);
BENCHMARK_TEMPLATE(PlainWrite, Paragraphs);
BENCHMARK_TEMPLATE(Fprintf, Paragraphs);
BENCHMARK_TEMPLATE(Report, FrameSite, Phase::Write);
BENCHMARK_TEMPLATE(PlainWrite, FrameSite);
BENCHMARK_TEMPLATE(Report, Floats<Million>, Phase::Fill);
BENCHMARK_TEMPLATE(Report, Floats<Million>, Phase::Write);
BENCHMARK_TEMPLATE(Report, Floats<Million>, Phase::Destroy);
BENCHMARK_TEMPLATE(PlainWrite, Floats<Million>);
BENCHMARK_TEMPLATE(Fprintf, Floats<Million>);
BENCHMARK_TEMPLATE(Convert, Floats<Million>);
BENCHMARK_TEMPLATE(TextReport, Floats<100000>);
BENCHMARK_TEMPLATE(Convert, Floats<100000>);
