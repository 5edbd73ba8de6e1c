// Publishes the results of a solver from a table of comma-separated values.

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <vector>

#include "VORKTRArrayTable.h"
#include "VORKTRCharset.h"
#include "VORKTRHeading.h"
#include "VORKTRLook.h"
#include "VORKTRProse.h"
#include "VORKTRReportingBuffer.h"
#include "VORKTRTableCaption.h"
#include "VORStatus.h"

namespace
{

struct Column {
    explicit Column(const std::string& iHead) : name(iHead.substr(0, iHead.find(" [")))
    {
        if (name.size() < iHead.size())
            unit = iHead.substr(name.size() + 2, iHead.find(']', name.size()) - name.size() - 2);
    }

    std::string name, unit;
    std::vector<std::string> fields;
    std::vector<double> numbers; // of the fields when all of them are numbers, else none
    std::string format;          // of plain numbers; others are shown as they stand
};

std::vector<std::string> Split(const std::string& iLine)
{
    std::vector<std::string> fields;
    std::istringstream line(iLine + ",");
    for (std::string field; std::getline(line >> std::ws, field, ',');)
        fields.push_back(field.substr(0, field.find_last_not_of(" \t\r") + 1));
    return fields;
}

void ParseNumbers(Column& ioColumn)
{
    std::size_t decimals = 0;
    bool isPlain = true; // and has no more digits than a double keeps
    for (const std::string& field : ioColumn.fields) {
        char* end = nullptr;
        ioColumn.numbers.push_back(std::strtod(field.c_str(), &end));
        if (field.empty() || *end != '\0' || std::isnan(ioColumn.numbers.back()))
            return ioColumn.numbers.clear();
        const std::size_t point = std::min(field.find('.'), field.size() - 1);
        decimals = std::max(decimals, field.size() - 1 - point);
        isPlain &= field.find_first_not_of("-.0123456789") == field.npos && field.size() <= 15;
    }
    ioColumn.format = isPlain ? "%." + std::to_string(decimals) + "f" : "";
}

std::vector<Column> ReadTable(const std::string& iPath)
{
    std::ifstream file(iPath);
    std::vector<Column> columns;
    std::string line;
    for (int number = 1; std::getline(file, line); ++number) {
        if (line.compare(0, 3, "\xEF\xBB\xBF") == 0)
            line.erase(0, 3); // which some programs put in front of UTF-8
        const std::vector<std::string> fields = Split(line);
        if (fields == std::vector<std::string>{""})
            continue;
        const bool isHead = columns.empty();
        if (isHead)
            columns = std::vector<Column>(fields.begin(), fields.end());
        if (fields.size() != columns.size() || line.find('"') != line.npos)
            throw std::runtime_error(iPath + ":" + std::to_string(number) +
                                     ": not one field, without quotes, for each column");
        if (isHead)
            continue;
        for (std::size_t i = 0; i < columns.size(); ++i)
            columns[i].fields.push_back(fields[i]);
    }
    if (columns.empty())
        throw std::runtime_error(iPath + ": cannot be read or is empty");
    std::for_each(columns.begin(), columns.end(), ParseNumbers);
    return columns;
}

/// The extremes of the numeric columns, each with the first field of its row: where it is.
std::vector<Column> Summarise(const std::vector<Column>& iColumns)
{
    const std::string heads[] = {"result", "unit", "minimum", "at", "maximum", "at"};
    std::vector<Column> summary(std::begin(heads), std::end(heads));
    for (const auto& [name, unit, fields, numbers, format] : iColumns) {
        if (numbers.empty() || &fields == &iColumns.front().fields)
            continue;
        const auto [least, most] = std::minmax_element(numbers.begin(), numbers.end());
        const auto field = fields.begin(), place = iColumns.front().fields.begin();
        const auto low = least - numbers.begin(), high = most - numbers.begin();
        auto column = summary.begin();
        for (const auto& text : {name, unit, field[low], place[low], field[high], place[high]})
            column++->fields.push_back(text);
    }
    return summary;
}

VORKTRTableCaption& AddTable(VORKTRReportingBuffer& ioReport, const char* iCaption,
                             const std::vector<Column>& iColumns)
{
    auto* const caption = new VORKTRTableCaption(iCaption);
    auto* const table = new VORKTRArrayTable(VORKTRTableHeaderRow | VORKTRTableRuled,
                                             static_cast<int>(iColumns.front().fields.size()));
    for (const auto& [name, unit, fields, numbers, format] : iColumns) {
        format.empty() ? table->AddColumn(name, unit, fields.data())
                       : table->AddColumn(name, unit, numbers.data(), format.c_str());
    }
    ioReport.AddObject(caption);
    ioReport.AddObject(table);
    return *caption;
}

void Publish(const std::string& iTable, const std::string& iDirectory)
{
    const std::vector<Column> columns = ReadTable(iTable);
    const std::vector<Column> summary = Summarise(columns);
    VORKTRReportingBuffer report;
    report.AddObject(new VORKTRCharset);
    report.AddObject(new VORKTRLook);
    report.AddObject(new VORKTRProse(std::filesystem::path(iTable).filename().string() + ": " +
                                     std::to_string(columns.front().fields.size()) + " rows of " +
                                     std::to_string(columns.size()) + " columns."));
    report.AddObject(new VORKTRHeading("Summary", 1));
    const auto& extremes = AddTable(report, "Extremes of the columns of numbers", summary);
    report.AddObject(new VORKTRHeading("All results", 1));
    report.AddObject(&(new VORKTRProse("The extremes are in "))->AddLink(extremes).Add("."));
    AddTable(report, "All results", columns);
    report.MakeReport(iDirectory, "Results");
    if (const int status = report.TakeWriteStatus(); status < 0)
        throw std::runtime_error(iDirectory + ": " + VORStatusText(status));
    VORUnicodeString text;
    report.MakeTextReport("Results", text);
    if (!(std::ofstream(iDirectory + "/report.txt") << text.GetView() << std::flush))
        throw std::runtime_error(iDirectory + "/report.txt: cannot be written");
}

} // namespace

int main(int argc, char** argv)
try {
    if (argc != 3)
        throw std::runtime_error("usage: results TABLE.csv DIRECTORY");
    Publish(argv[1], argv[2]);
} catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
}
