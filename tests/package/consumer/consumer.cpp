// Writes a report with an item of its own into the directory given, and checks what it wrote.

#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include "VORDictionary.h"
#include "VORFile.h"
#include "VORKTRReportingBuffer.h"
#include "VORKTRReportingList.h"
#include "VORKTRReportingObj.h"

namespace
{

/// A traffic light: a coloured cell in HTML, a word in text.
class Light : public VORKTRReportingObj
{
public:
    void Report(unsigned int iFile, const char*, unsigned char, unsigned int) const override
    {
        VORFWrite(iFile, "<B>red</B>", 10, nullptr);
    }
    void ASCIIReport(VORUnicodeString& ioText) const override { ioText += "red"; }
    int GetWidthInChar() const override { return 3; }
};

// Of two interfaces that nothing here names.
bool AreInterfacesInTheDictionary()
{
    const GUID ids[] = {
        {0x580C9CBA, 0x86E9, 0x4B9A, {0xAC, 0x55, 0x59, 0x6D, 0x6E, 0x89, 0xA4, 0x9E}},
        {0x7AF29DE1, 0xA4E8, 0x4B09, {0xB5, 0x04, 0x60, 0x03, 0x2B, 0x03, 0x90, 0x4E}}};
    return VORFindInDictionary(ids[0]) && VORFindInDictionary(ids[1]);
}

} // namespace

int main(int argc, char** argv)
{
    VORKTRReportingBuffer report;
    auto* const list = new VORKTRReportingList(':');
    list->addLine("State", new Light, "");
    report.AddObject(list);
    VORUnicodeString text;
    if (argc != 2 || report.MakeReport(argv[1], "Lights") != 0 ||
        report.MakeTextReport("", text) != 0)
        return 2;
    std::ifstream page(std::string(argv[1]) + "/index.html");
    const std::string html{std::istreambuf_iterator<char>(page), std::istreambuf_iterator<char>()};
    std::cout << html << text.ConvertToChar(); // in the log when it is wrong
    return AreInterfacesInTheDictionary() &&
                   html.find("<TD ALIGN=RIGHT><B>red</B></TD>\n") != std::string::npos &&
                   text.FindPosition("State : red\n") >= 0
               ? 0
               : 1;
}
