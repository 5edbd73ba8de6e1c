// Runs the example of the guide whose name is the argument, in the current directory.

#include "GuideExamples.h"

#include <iostream>
#include <stdexcept>

void Publish(VORKTRReportingBuffer& ioReport)
{
    VORUnicodeString text;
    if (ioReport.MakeReport("report", "Guide") < 0 || ioReport.MakeTextReport("", text) < 0)
        throw std::runtime_error("the report cannot be written");
    std::cout << text.ConvertToChar();
}

int main(int, char** iArguments)
{
    VORKTRReportingBuffer report;
    GuideExamples.at(iArguments[1])(report);
    return std::cout.flush() ? 0 : 1;
}
