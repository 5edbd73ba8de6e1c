// A table over arrays beside a hand-written loop that gives the same bytes, and its heap.

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <string>
#include <vector>

#include "VORFile.h"
#include "VORKTRArrayTable.h"
#include "heap_in_use.h"
#include "support/TemporaryDirectory.h"
#include "workloads.h"

namespace
{

constexpr std::size_t ColumnNb = 10;

using Numbers = std::vector<float>;

void LoopHtml(const Numbers& iNumbers, LoopSink& oSink)
{
    Hand out(oSink);
    out.Put("<BR>\n<CENTER>\n<TABLE BORDER=0 CELLPADDING=5>\n");
    for (std::size_t i = 0; i < iNumbers.size(); i += ColumnNb) {
        out.Put("<TR>\n");
        for (std::size_t column = 0; column < ColumnNb; ++column)
            out.Put("<TD ALIGN=RIGHT>", iNumbers[i + column], "</TD>\n");
        out.Put("</TR>\n");
    }
    out.Put("</TABLE>\n</CENTER>\n");
}

void LoopLines(const Numbers& iNumbers, LoopSink& oSink)
{
    Hand out(oSink);
    for (std::size_t i = 0; i < iNumbers.size(); i += ColumnNb) {
        for (std::size_t column = 0; column < ColumnNb; ++column)
            out.Put(" ", iNumbers[i + column], "");
        out.Put(" \n");
    }
}

/// Fills a table, which has all the numbers or the first of them, and writes it.
class Table
{
public:
    Table(const Numbers& iNumbers, std::size_t iRows, std::size_t iColumns)
        : _Table(0, static_cast<int>(iRows))
    {
        for (std::size_t column = 0; column < iColumns; ++column)
            _Table.AddColumn("", "", &iNumbers[column], "%.3f", iColumns * sizeof(float));
    }
    void WriteHtml(const std::string& iPath) const
    {
        unsigned int file = 0;
        VORFOpen(iPath, "w", file);
        _Table.Report(file, "", 0, 0);
        VORFClose(file);
    }
    void WriteText(VORUnicodeString& oText) const { _Table.ASCIIReport(oText); }

private:
    VORKTRArrayTable _Table;
};

template <typename Step>
void Time(double& ioLeast, Step iStep)
{
    const std::clock_t begin = std::clock();
    iStep();
    ioLeast = std::min(ioLeast, static_cast<double>(std::clock() - begin));
}

template <typename Step>
double HeapOf(Step iStep)
{
    const std::size_t before = HeapInUse;
    LargestHeap = before;
    iStep();
    return static_cast<double>(LargestHeap - before);
}

bool IsAtMost(double iValue, double iLimit, const char* iWhat)
{
    std::printf("%8.2f of at most %-6g %s  %s\n", iValue, iLimit, iValue > iLimit ? "MISSED" : "",
                iWhat);
    return iValue <= iLimit;
}

} // namespace

/// Fails when the bytes differ or a figure is above its limit. Times are CPU times, the least of
/// 15; files are written below TMPDIR.
int main()
{
    const TemporaryDirectory directory;
    const std::string path = directory.Path("table");
    const std::string other = directory.Path("loop");
    Numbers numbers;
    for (int i = 0; i < Million; ++i)
        numbers.push_back(FourDigits(i));
    const std::size_t rowNb = numbers.size() / ColumnNb;

    double html = 1e9, text = 1e9, loopHtml = 1e9, loopText = 1e9;
    bool isMet = true;
    for (int run = 0; run < 15; ++run) {
        VORUnicodeString lines;
        LoopText loopLines;
        Time(html, [&] { Table(numbers, rowNb, ColumnNb).WriteHtml(path); });
        Time(loopHtml, [&] {
            LoopFile file(other);
            LoopHtml(numbers, file);
        });
        Time(text, [&] { Table(numbers, rowNb, ColumnNb).WriteText(lines); });
        Time(loopText, [&] { LoopLines(numbers, loopLines); });
        isMet &= ReadFile(path) == ReadFile(other) && lines.GetView() == loopLines.text;
    }
    std::printf("The bytes %s those of the loop\n", isMet ? "are" : "are not");
    isMet &= IsAtMost(html / loopHtml, 1.15, "a million floats as HTML, by the loop");
    isMet &= IsAtMost(text / loopText, 1.15, "a million floats as text, by the loop");
    isMet &= IsAtMost((html + text) / (loopHtml + loopText), 1.15, "both together");

    const double small = HeapOf([&] { Table(numbers, 1000, 1).WriteHtml(path); });
    const double large = HeapOf([&] { Table(numbers, numbers.size(), 1).WriteHtml(path); });
    isMet &= IsAtMost(large / small, 1.01, "heap of a million rows by that of a thousand");
    VORUnicodeString lines;
    Table(numbers, numbers.size(), 1).WriteText(lines);
    lines.ReplaceSubString(0, lines.GetLengthInChar(), ""); // its memory stays for the next text
    const double beside = HeapOf([&] { Table(numbers, numbers.size(), 1).WriteText(lines); });
    isMet &= IsAtMost(beside / 1024, 192, "KiB of heap for a text of a million rows beside it");
    return isMet ? 0 : 1;
}
