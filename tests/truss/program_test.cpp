// The program as a whole, run by the shell of a Unix.

#include <cstdlib>
#include <filesystem>
#include <regex>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "TestSystem.h"
#include "support/TemporaryDirectory.h"

namespace fs = std::filesystem;

namespace
{

std::string ModelPath(const std::string& iName)
{
    return std::string(MODEL_DIRECTORY "/") + iName + ".truss";
}

int Occurrences(const std::string& iText, const std::string& iPattern)
{
    const std::regex pattern(iPattern);
    return static_cast<int>(std::distance(std::sregex_iterator(iText.begin(), iText.end(), pattern),
                                          std::sregex_iterator()));
}

class TrussProgram : public testing::Test
{
protected:
    /// Exit status of a program; what it says is kept.
    int RunTruss(const std::string& iArguments)
    {
        const int status =
            std::system((TRUSS_PROGRAM " " + iArguments + " >" + Path("log") + " 2>&1").c_str());
        _Said = ReadFile(Path("log"));
        return ExitStatus(status);
    }
    std::string Path(const std::string& iName) const { return _Directory.Path(iName); }

    const TemporaryDirectory _Directory;
    const std::string _Site = Path("site");
    std::string _Said;
};

} // namespace

TEST_F(TrussProgram, RefusesBadInputAndWritesNothing)
{
    // A model that lacks supports and loads; then, behind each @, a message and what is added for
    // it.
    std::istringstream cases(ReadFile(REFUSED_MODELS));
    std::string beginning, one;
    std::getline(cases, beginning, '@');
    const std::string path = Path("m.truss");
    while (std::getline(cases, one, '@')) {
        const std::size_t end = one.find('\n');
        WriteFile(path, beginning + one.substr(end + 1));
        EXPECT_EQ(RunTruss(path + " " + _Site), 2);
        EXPECT_EQ(_Said.find(path + one.substr(0, end)), 0u) << _Said << " instead of " << one;
    }
    const std::string tower = ModelPath("tower25");
    for (const std::string& arguments :
         {std::string(), tower + " ''", "--close " + tower + " " + _Site,
          tower + " " + _Site + " torsion earthquake", "--open " + tower + " '" + _Site + ";x'"})
        EXPECT_EQ(RunTruss(arguments), 2) << arguments;
    // Only the model and what was said.
    EXPECT_EQ(std::distance(fs::directory_iterator(_Directory.Path()), {}), 2);
}

TEST_F(TrussProgram, TellsWhatCannotBeWritten)
{
    const std::string model = ModelPath("two_bar") + " ";
    EXPECT_EQ(RunTruss(model + Path("missing/site")), 1);
    for (const std::string name : {"page5.html", "main.css", "report.txt"}) {
        const std::string site = Path("full-" + name);
        fs::create_directory(site);
        fs::create_symlink("/dev/full", fs::path(site) / name);
        EXPECT_EQ(RunTruss(model + site), 1) << name;
        EXPECT_EQ(Occurrences(_Said, "cannot be written: disk full"), 1) << _Said;
    }
}

TEST_F(TrussProgram, WritesSiteAndFigures)
{
    SetEnv("VORCommandPath", nullptr);
    SetEnv("KTRReportODT", "1"); // names of included files without a time stamp
    ASSERT_EQ(RunTruss("--open " + ModelPath("tower25") + " " + _Site + " wires torsion"), 0);
    EXPECT_EQ(Occurrences(_Said, "no browser launcher"), 1);
    const std::string text = ReadFile(_Site + "/report.txt");
    EXPECT_LT(text.find("Load case wires"), text.find("Load case torsion"));
    EXPECT_LT(text.find("Load case torsion"), text.size());
    EXPECT_TRUE(fs::exists(_Site + "/reload.html"));
    const std::string scene = ReadFile(_Site + "/file1.wrl");
    EXPECT_EQ(scene.find("#VRML V2.0 utf8\n"), 0u);
    EXPECT_EQ(Occurrences(scene, "USE BAR"), 25);
    for (const char* const name : {"/file2.svg", "/file3.svg"}) {
        const std::string drawing = ReadFile(_Site + name);
        EXPECT_EQ(Occurrences(drawing, "nan|inf"), 0);
        EXPECT_EQ(Occurrences(drawing, "class=\"deformed\"[^>]*stroke=\"rgb"), 25);
    }
}
