// Publishes the results of a solver from a table of comma-separated values.

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <string>
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
    std::string name;
    std::string unit = {};
    std::vector<std::string> fields = {};
    std::vector<double> numbers = {}; // of the fields when all of them are numbers, else none
    std::string format = {};          // shows the digits that the fields have
};

std::vector<std::string> Split(const std::string& iLine)
{
    std::vector<std::string> fields;
    std::istringstream line(iLine + ",");
    for (std::string field; std::getline(line, field, ',');) {
        field.erase(0, field.find_first_not_of(" \t\r"));
        fields.push_back(field.erase(field.find_last_not_of(" \t\r") + 1));
    }
    return fields;
}

void ParseNumbers(Column& ioColumn)
{
    std::size_t decimals = 0;
    char kind = 'f';
    for (const std::string& field : ioColumn.fields) {
        char* end = nullptr;
        ioColumn.numbers.push_back(std::strtod(field.c_str(), &end));
        if (field.empty() || *end != '\0')
            return ioColumn.numbers.clear();
        const std::size_t digits = std::min(field.find_first_of("eE"), field.size());
        decimals = std::max(decimals, digits - 1 - std::min(field.find('.'), digits - 1));
        kind = digits < field.size() ? 'e' : kind;
    }
    ioColumn.format = "%." + std::to_string(decimals) + kind;
}

std::vector<Column> ReadTable(const std::string& iPath)
{
    std::ifstream file(iPath);
    std::string line;
    if (!std::getline(file, line))
        throw std::runtime_error(iPath + ": cannot be read");
    std::vector<Column> columns;
    for (const std::string& head : Split(line)) {
        const std::size_t name = std::min(head.find(" ["), head.size());
        const std::size_t unit = std::min(name + 2, head.size());
        columns.push_back({head.substr(0, name), head.substr(unit, head.find(']') - unit)});
    }
    for (int number = 2; std::getline(file, line); ++number) {
        const std::vector<std::string> fields = Split(line);
        if (fields.size() < columns.size())
            throw std::runtime_error(iPath + ":" + std::to_string(number) + ": too few fields");
        for (std::size_t i = 0; i < columns.size(); ++i)
            columns[i].fields.push_back(fields[i]);
    }
    std::for_each(columns.begin(), columns.end(), ParseNumbers);
    return columns;
}

/// The extremes of the numeric columns, each with the first field of its row: where it is.
std::vector<Column> Summarise(const std::vector<Column>& iColumns)
{
    std::vector<Column> summary{{"result"}, {"unit"}, {"minimum"}, {"at"}, {"maximum"}, {"at"}};
    for (auto column = iColumns.begin() + 1; column != iColumns.end(); ++column) {
        const std::vector<double>& numbers = column->numbers;
        const auto [low, high] = std::minmax_element(numbers.begin(), numbers.end());
        if (numbers.empty())
            continue;
        summary[0].fields.push_back(column->name);
        summary[1].fields.push_back(column->unit);
        for (const std::size_t at : {2u, 4u}) {
            const auto row = static_cast<std::size_t>((at == 2 ? low : high) - numbers.begin());
            summary[at].fields.push_back(column->fields[row]);
            summary[at + 1].fields.push_back(iColumns.front().fields[row]);
        }
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
        if (numbers.empty())
            table->AddColumn(name, unit, fields.data());
        else
            table->AddColumn(name, unit, numbers.data(), format.c_str());
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
    report.AddObject(new VORKTRHeading("Summary", 1));
    const auto& extremes = AddTable(report, "Extremes of the results", summary);
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
