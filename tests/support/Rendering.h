#ifndef Rendering_h
#define Rendering_h

#include <string>

#include <gtest/gtest.h>

#include "VORFile.h"
#include "VORKTRReportingObj.h"
#include "support/TemporaryDirectory.h"

/// The status of a failure without a status of its own.
constexpr int Failure = static_cast<int>(0x80004005u);

/// The text of tests/expected/<iName>.
inline std::string Expected(const std::string& iName)
{
    return ReadFile(EXPECTED_DIRECTORY "/" + iName);
}

inline bool Holds(const std::string& iText, const std::string& iPart)
{
    return iText.find(iPart) != std::string::npos;
}

inline std::string Repeat(int iCount, const std::string& iText)
{
    std::string all;
    for (int i = 0; i < iCount; ++i)
        all += iText;
    return all;
}

/// What an item appends as text by itself, and as a cell of a table or list.
inline std::string TextOf(const VORKTRReportingObj& iItem)
{
    VORUnicodeString text;
    iItem.ASCIIReport(text);
    return text.ConvertToChar();
}

inline std::string CellTextOf(const VORKTRReportingObj& iItem)
{
    VORUnicodeString text;
    iItem.ASCIIReport_in_Table(text);
    return text.ConvertToChar();
}

/// What iWrite(file) writes into an open page.
template <typename Write>
std::string Written(Write iWrite)
{
    const TemporaryDirectory directory;
    const std::string path = directory.Path("page.html");
    unsigned int file = 0;
    EXPECT_EQ(VORFOpen(path.c_str(), "w", file), 0);
    iWrite(file);
    VORFClose(file);
    return ReadFile(path);
}

inline std::string HtmlOf(const VORKTRReportingObj& iItem)
{
    return Written([&iItem](unsigned int iFile) { iItem.Report(iFile, "", 0, 0); });
}

#endif
