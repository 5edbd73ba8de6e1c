// Writes a report with an item of its own into the directory given, and checks what it wrote.

#include <cstdio>
#include <fstream>
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
    explicit Light(const char* iColour) : _Colour(iColour) {}

    int GetType() const override { return 100; }
    void Report(unsigned int iFile, const char*, unsigned char, unsigned int) const override
    {
        const VORUnicodeString html = "<B CLASS=\"" + _Colour + "\">" + _Colour + "</B>";
        VORFWrite(iFile, html.ConvertToChar(), static_cast<std::size_t>(html.GetLengthInByte()),
                  nullptr);
    }
    void ASCIIReport(VORUnicodeString& ioText) const override { ioText += _Colour; }
    int GetWidthInChar() const override { return _Colour.GetLengthInChar(); }

private:
    VORUnicodeString _Colour;
};

// Of two interfaces that nothing here names.
bool AreInterfacesInTheDictionary()
{
    const GUID ids[] = {
        {0x580C9CBA, 0x86E9, 0x4B9A, {0xAC, 0x55, 0x59, 0x6D, 0x6E, 0x89, 0xA4, 0x9E}},
        {0x7AF29DE1, 0xA4E8, 0x4B09, {0xB5, 0x04, 0x60, 0x03, 0x2B, 0x03, 0x90, 0x4E}}};
    return VORFindInDictionary(ids[0]) && VORFindInDictionary(ids[1]);
}

bool Contains(const std::string& iText, const std::string& iPart)
{
    const bool found = iText.find(iPart) != std::string::npos;
    if (!found)
        std::fprintf(stderr, "missing: %s\nin:\n%s\n", iPart.c_str(), iText.c_str());
    return found;
}

} // namespace

int main(int argc, char** argv)
{
    VORKTRReportingBuffer report;
    auto* const list = new VORKTRReportingList(':');
    list->addLine("State", new Light("red"), "");
    report.AddObject(list);
    VORUnicodeString text;
    if (argc != 2 || !AreInterfacesInTheDictionary() || report.MakeReport(argv[1], "Lights") != 0 ||
        report.MakeTextReport("", text) != 0)
        return 1;
    std::ifstream page(std::string(argv[1]) + "/index.html");
    const std::string html{std::istreambuf_iterator<char>(page), std::istreambuf_iterator<char>()};
    return Contains(html, "<TD ALIGN=RIGHT><B CLASS=\"red\">red</B></TD>\n") &&
                   Contains(text.ConvertToChar(), "State : red\n")
               ? 0
               : 1;
}
