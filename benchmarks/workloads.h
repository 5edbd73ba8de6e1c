#ifndef workloads_h
#define workloads_h

#include <charconv>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>

#include "VORKTRReportingBuffer.h"
#include "VORKTRReportingList.h"
#include "VORKTRReportingTable.h"
#include "VORKTRReportingText.h"
#include "VORKTRReportingTitle.h"
#include "loops.h"

// The reports that are measured, W1 to W5. Each fills a report and writes it, as a site or as a
// text in memory, and prints the same bytes in a loop with an Out of loops.h. What is a text is
// returned.

constexpr int Million = 1000000;

/// One to six digits before the point, both signs.
inline float Number(int iIndex)
{
    return static_cast<float>(iIndex % 2 == 0 ? iIndex : -iIndex) * 0.731f + 0.25f;
}

/// Four digits before the point, so that columns of text need no blanks.
inline float FourDigits(int iIndex)
{
    return 1000.0f +
           static_cast<float>(static_cast<unsigned int>(iIndex) * 7919u % 9000000u) / 1001.0f;
}

/// An eighth of a KiB of prose.
constexpr std::string_view Prose =
    "While the largest strain stays < 0.2 % & the load keeps to the limits of table 3, the part "
    "is taken to be safe in every case. ";

inline std::string Paragraph(int iPieces)
{
    std::string text;
    for (int i = 0; i < iPieces; ++i)
        text += Prose;
    return text;
}

inline VORKTRReportingTable* NewTable(int iRows, int iColumns, float (*iNumber)(int),
                                      int iFirst = 0)
{
    auto* const table = new VORKTRReportingTable(0);
    for (int row = 0; row < iRows; ++row) {
        for (int column = 0; column < iColumns; ++column)
            table->SetFloat(row, column, iNumber(iFirst + row * iColumns + column), "%.3f");
    }
    return table;
}

template <typename Out>
void PrintHtmlTable(Out& out, int iRows, int iColumns, float (*iNumber)(int), int iFirst = 0)
{
    out.Put("<BR>\n<CENTER>\n<TABLE BORDER=0 CELLPADDING=5>\n");
    for (int row = 0; row < iRows; ++row) {
        out.Put("<TR>\n");
        for (int column = 0; column < iColumns; ++column)
            out.Put("<TD ALIGN=RIGHT>", iNumber(iFirst + row * iColumns + column), "</TD>\n");
        out.Put("</TR>\n");
    }
    out.Put("</TABLE>\n</CENTER>\n");
}

// Columns of 9 characters, each with its separator.
template <typename Out>
void PrintTextTable(Out& out, int iRows, int iColumns, std::string_view iIndent,
                    std::string_view iPadLeft, std::string_view iPadRight, int iFirst = 0)
{
    const std::string before(iPadLeft);
    const std::string after = std::string(iPadRight) + " ";
    for (int row = 0; row < iRows; ++row) {
        out.Put(iIndent);
        for (int column = 0; column < iColumns; ++column)
            out.Put(before, FourDigits(iFirst + row * iColumns + column), after);
        out.Put("\n");
    }
}

template <typename Out>
void PrintHead(Out& out, std::string_view iTitle)
{
    out.Put("<HTML>\n<HEAD>\n<TITLE>");
    out.Put(iTitle);
    out.Put("</TITLE>\n<META NAME=\"Generator\" CONTENT=\"ZENOA\">\n"
            "<LINK REL=\"STYLESHEET\" TYPE=\"TEXT/CSS\" HREF=\"main.css\">\n</HEAD>\n\n"
            "<BODY BGCOLOR=\"#EEF3FF\">\n");
}

constexpr std::string_view MainTitle = "<P class=\"maintitle\">Analysis</P>\n";
constexpr std::string_view EndOfPage = "</BODY>\n</HTML>\n";

/// A site whose only page has what W::Print prints.
template <typename W>
struct OnePage {
    static VORUnicodeString Write(VORKTRReportingBuffer& io, const std::string& iDirectory)
    {
        io.MakeReport(iDirectory.c_str(), "Analysis");
        return {};
    }
    template <typename Out>
    static std::string Loop(const std::string& iDirectory)
    {
        typename Out::File file(iDirectory + "/index.html");
        Out out(file);
        PrintHead(out, "Analysis");
        out.Put(MainTitle);
        W::Print(out);
        out.Put(EndOfPage);
        return {};
    }
};

/// A text in memory of what W::Print prints.
template <typename W>
struct OneText {
    static VORUnicodeString Write(VORKTRReportingBuffer& io, const std::string&)
    {
        VORUnicodeString text;
        io.MakeTextReport("", text);
        return text;
    }
    template <typename Out>
    static std::string Loop(const std::string&)
    {
        LoopText text;
        {
            Out out(text);
            W::Print(out);
        }
        return std::move(text.text);
    }
};

/// A table of 100,000 x 10 floats.
struct W1 : OnePage<W1> {
    static void Fill(VORKTRReportingBuffer& io) { io.AddObject(NewTable(100000, 10, Number)); }
    template <typename Out>
    static void Print(Out& out)
    {
        PrintHtmlTable(out, 100000, 10, Number);
    }
};

/// 50,000 paragraphs of 1 KiB.
struct W2 : OnePage<W2> {
    static constexpr int Count = 50000;

    static void Fill(VORKTRReportingBuffer& io)
    {
        const std::string text = Paragraph(8);
        for (int i = 0; i < Count; ++i)
            io.AddObject(new VORKTRReportingText(text.c_str()));
    }
    template <typename Out>
    static void Print(Out& out)
    {
        const std::string text = Paragraph(8);
        for (int i = 0; i < Count; ++i) {
            out.Put("<p>");
            out.PutEscaped(text);
            out.Put("</p>\n");
        }
    }
};

/// A table of 10,000 x 10 floats as text.
struct W3 : OneText<W3> {
    static void Fill(VORKTRReportingBuffer& io) { io.AddObject(NewTable(10000, 10, FourDigits)); }
    template <typename Out>
    static void Print(Out& out)
    {
        PrintTextTable(out, 10000, 10, " ", "", "");
    }
};

/// Sections, each of a heading, 3 paragraphs of 640 bytes, a list of 6 lines and a table of 10 x 5.
template <int Level>
struct Sections {
    static void Fill(VORKTRReportingBuffer& io, int iCount)
    {
        const std::string text = Paragraph(5) + "\n";
        for (int i = 0; i < iCount; ++i) {
            io.AddObject(
                new VORKTRReportingTitle(("Load case " + std::to_string(i)).c_str(), Level));
            for (int paragraph = 0; paragraph < 3; ++paragraph)
                io.AddObject(new VORKTRReportingText(text.c_str()));
            auto* const list = new VORKTRReportingList('=');
            list->addLine("Stress", FourDigits(i), "MPa", "%.3f");
            list->addLine("Strain", FourDigits(i + 1), "", "%.3f");
            list->addLine("Displacement", FourDigits(i + 2), "mm", "%.3f");
            list->addLine("Node", 1000 + i % 9000, "", "%d");
            list->addLine("Force", FourDigits(i + 3), "kN", "%.3f");
            list->addLine("Result", "safe", "");
            io.AddObject(list);
            io.AddObject(NewTable(10, 5, FourDigits, i));
        }
    }
};

template <typename Out>
void PrintFloatLine(Out& out, std::string_view iLabel, float iNumber, std::string_view iUnit)
{
    char text[32];
    const std::string_view number(
        text,
        static_cast<std::size_t>(
            std::to_chars(text, std::end(text), iNumber, std::chars_format::fixed, 3).ptr - text));
    const std::size_t point = number.find('.');
    out.Put("<TR>\n<TD ALIGN=LEFT>");
    out.Put(iLabel);
    out.Put("</TD>\n<TD ALIGN=CENTER>=</TD>\n<TD ALIGN=RIGHT> ");
    out.Put(number.substr(0, point));
    out.Put("</TD>\n<TD ALIGN=CENTER>.</TD>\n<TD ALIGN=LEFT>");
    out.Put(number.substr(point + 1));
    out.Put("</TD>\n<TD ALIGN=LEFT>&nbsp;");
    out.Put(iUnit);
    out.Put("</TD>\n</TR>\n");
}

template <typename Out>
void PrintHtmlSection(Out& out, int iIndex, const std::string& iText)
{
    for (int paragraph = 0; paragraph < 3; ++paragraph) {
        out.Put("<p>");
        out.PutEscaped(iText);
        out.Put("</p>\n");
    }
    out.Put("<P>\n<TABLE BORDER=0>\n");
    PrintFloatLine(out, "Stress", FourDigits(iIndex), "MPa");
    PrintFloatLine(out, "Strain", FourDigits(iIndex + 1), "");
    PrintFloatLine(out, "Displacement", FourDigits(iIndex + 2), "mm");
    out.Put("<TR>\n<TD ALIGN=LEFT>Node</TD>\n<TD ALIGN=CENTER>=</TD>\n<TD ALIGN=RIGHT>",
            1000 + iIndex % 9000,
            "</TD>\n<TD COLSPAN=2>&nbsp;</TD>\n<TD ALIGN=LEFT>&nbsp;</TD>\n</TR>\n");
    PrintFloatLine(out, "Force", FourDigits(iIndex + 3), "kN");
    out.Put("<TR>\n<TD ALIGN=LEFT>Result</TD>\n<TD ALIGN=CENTER>=</TD>\n"
            "<TD ALIGN=CENTER COLSPAN=3>&nbsp;safe</TD>\n<TD ALIGN=LEFT>&nbsp;</TD>\n</TR>\n"
            "</TABLE>\n</P>\n\n");
    PrintHtmlTable(out, 10, 5, FourDigits, iIndex);
}

/// 5,000 sections on one page.
struct W4 : OnePage<W4> {
    static constexpr int Count = 5000;

    static void Fill(VORKTRReportingBuffer& io) { Sections<3>::Fill(io, Count); }
    template <typename Out>
    static void Print(Out& out)
    {
        const std::string text = Paragraph(5) + "\n";
        for (int i = 0; i < Count; ++i) {
            out.Put("\n<A NAME=\"", i + 2, "\"><H3>Load case ");
            out.Put("", i, "</H3></A>\n");
            PrintHtmlSection(out, i, text);
        }
    }
};

/// W4 as text.
struct W4t : OneText<W4t> {
    static void Fill(VORKTRReportingBuffer& io) { W4::Fill(io); }
    template <typename Out>
    static void Print(Out& out)
    {
        const std::string text = Paragraph(5) + "\n";
        for (int i = 0; i < W4::Count; ++i) {
            const auto length = static_cast<std::size_t>(i < 10     ? 11
                                                         : i < 100  ? 12
                                                         : i < 1000 ? 13
                                                                    : 14);
            const std::string_view blanks = "                                        ";
            const std::string_view rule = "--------------";
            const std::string_view margin = blanks.substr(0, (80 - length) / 2);
            out.Put("\n");
            out.Put(margin);
            out.Put("Load case ", i, "\n");
            out.Put(margin);
            out.Put(rule.substr(0, length));
            out.Put("\n\n");
            for (int paragraph = 0; paragraph < 3; ++paragraph)
                out.Put(text);
            out.Put("  Stress       = ", FourDigits(i), " MPa\n");
            out.Put("  Strain       = ", FourDigits(i + 1), " \n");
            out.Put("  Displacement = ", FourDigits(i + 2), " mm\n");
            out.Put("  Node         =      ", 1000 + i % 9000, " \n");
            out.Put("  Force        = ", FourDigits(i + 3), " kN\n");
            out.Put("  Result       =      safe \n");
            PrintTextTable(out, 10, 5, "          ", " ", " ", i);
        }
    }
};

/// 10,000 sections, each on a page of its own, with frames.
struct W5 {
    static constexpr int Count = 10000;

    static void Fill(VORKTRReportingBuffer& io) { Sections<1>::Fill(io, Count); }
    static VORUnicodeString Write(VORKTRReportingBuffer& io, const std::string& iDirectory)
    {
        io.MakeReport(iDirectory.c_str(), "Analysis");
        return {};
    }
    template <typename Out>
    static std::string Loop(const std::string& iDirectory)
    {
        const std::string text = Paragraph(5) + "\n";
        std::string navigation =
            "<HTML>\n<HEAD>\n<TITLE>Analysis</TITLE>\n<META NAME=\"Generator\" CONTENT=\"ZENOA\">\n"
            "<BASE TARGET=\"TextFrame\">\n<LINK REL=\"STYLESHEET\" TYPE=\"TEXT/CSS\" "
            "HREF=\"navigation.css\">\n</HEAD>\n\n<BODY BGCOLOR=\"#EEF3FF\" ALINK=\"#0000FF\">\n"
            "<A HREF=\"page1.html\"><NOBR><H1>Analysis</H1></NOBR></A>\n";
        {
            typename Out::File file(iDirectory + "/page1.html");
            Out out(file);
            PrintHead(out, "Analysis");
            out.Put(MainTitle);
            out.Put(EndOfPage);
        }
        for (int i = 0; i < Count; ++i) {
            const std::string title = "Load case " + std::to_string(i);
            const std::string page = "page" + std::to_string(i + 2) + ".html";
            const std::string heading = "<H1>" + title + "</H1>";
            navigation += "<A HREF=\"" + page + "#0\"><NOBR>" + heading + "</NOBR></A>\n";
            typename Out::File file(iDirectory + "/" + page);
            Out out(file);
            PrintHead(out, title);
            out.Put("\n<A NAME=\"0\">");
            out.Put(heading);
            out.Put("</A>\n");
            PrintHtmlSection(out, i, text);
            out.Put(EndOfPage);
        }
        typename Out::File file(iDirectory + "/navigation.html");
        Out out(file);
        out.Put(navigation);
        out.Put(EndOfPage);
        return {};
    }
};

#endif
