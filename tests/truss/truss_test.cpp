#include <cstdlib>
#include <filesystem>
#include <numeric>
#include <regex>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/wait.h>

#include "TrussReader.h"
#include "TrussSolver.h"
#include "support/TemporaryDirectory.h"

namespace fs = std::filesystem;

namespace
{

using truss::Vector;

std::string ModelPath(const std::string& iName)
{
    return std::string(MODEL_DIRECTORY "/") + iName + ".truss";
}

/// Exit status of the program; its messages go to a file.
int RunTruss(const std::string& iArguments, const std::string& iMessages)
{
    const int status =
        std::system((TRUSS_PROGRAM " " + iArguments + " >" + iMessages + " 2>&1").c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void ExpectNear(const Vector& iActual, const Vector& iExpected)
{
    EXPECT_LT((iActual - iExpected).norm(), 1e-9 * iExpected.norm())
        << iActual.transpose() << " instead of " << iExpected.transpose();
}

int Occurrences(const std::string& iText, const std::string& iPattern)
{
    const std::regex pattern(iPattern);
    return static_cast<int>(std::distance(std::sregex_iterator(iText.begin(), iText.end(), pattern),
                                          std::sregex_iterator()));
}

/// Every element is closed in its turn, and no bare ampersand or angle bracket is left.
bool IsWellFormed(const std::string& iXml)
{
    const std::regex tag("<(/?)([a-zA-Z]+)[^<>]*?(/?)>");
    std::vector<std::string> open;
    for (std::sregex_iterator i(iXml.begin(), iXml.end(), tag), end; i != end; ++i) {
        if (i->length(1) > 0 && (open.empty() || open.back() != i->str(2)))
            return false;
        if (i->length(1) > 0)
            open.pop_back();
        else if (i->length(3) == 0)
            open.push_back(i->str(2));
    }
    return open.empty() && Occurrences(std::regex_replace(iXml, tag, ""), "<[^?]|&") == 0;
}

} // namespace

TEST(Truss, ClosedForm)
{
    const truss::Model model = truss::ReadModel(ModelPath("two_bar"));
    const truss::Solver solver(model);
    const truss::Solution weight = solver.Solve(model.cases[0]);
    ExpectNear(weight.displacements[2], {0, 0, -0.005});
    ExpectNear(weight.reactions[0], {48000, 0, 36000});
    const truss::Solution sway = solver.Solve(model.cases[1]);
    ExpectNear(sway.displacements[2], {0.005, 0, 0});
    ExpectNear(sway.reactions[1], {-64000, 0, 48000});
    for (std::size_t bar = 0; bar < 2; ++bar) {
        const double sign = bar == 0 ? 1 : -1;
        EXPECT_NEAR(weight.bars[bar].force, -60000, 6e-5);
        EXPECT_NEAR(weight.bars[bar].stress, -1.2e8, 0.12);
        EXPECT_NEAR(sway.bars[bar].force, sign * 80000, 8e-5);
        EXPECT_NEAR(sway.bars[bar].elongation, sign * 0.004, 4e-12);
    }
}

TEST(Truss, TowerAndMastAreInEquilibrium)
{
    for (const char* name : {"tower25", "mast"}) {
        const truss::Model model = truss::ReadModel(ModelPath(name));
        const truss::Solver solver(model);
        for (const truss::LoadCase& loadCase : model.cases) {
            SCOPED_TRACE(name + (" " + loadCase.name));
            const truss::Solution solution = solver.Solve(loadCase);
            std::vector<Vector> forces = solution.reactions;
            double size = 0;
            for (const truss::Load& load : loadCase.loads) {
                forces[load.node] += load.force;
                size += load.force.norm();
            }
            const Vector sum = std::accumulate(forces.begin(), forces.end(), Vector(0, 0, 0));
            EXPECT_LT(sum.norm(), 1e-9 * size);
            for (std::size_t i = 0; i < model.bars.size(); ++i) {
                const truss::Bar& bar = model.bars[i];
                const Vector span = model.nodes[bar.end].position - model.nodes[bar.start].position;
                forces[bar.start] += solution.bars[i].force * span / span.norm();
                forces[bar.end] -= solution.bars[i].force * span / span.norm();
            }
            for (const Vector& force : forces)
                EXPECT_LT(force.norm(), 1e-9 * size);
        }
    }
}

// The loads of "torsion" stay the same when the tower is turned by half a turn about z. The areas
// are those of a design whose displacements reach the limit of 0.35 in.
TEST(Truss, TowerIsSymmetricAndReachesItsLimit)
{
    const truss::Model model = truss::ReadModel(ModelPath("tower25"));
    const truss::Solver solver(model);
    const auto torsion = solver.Solve(model.cases[0]).displacements;
    for (const auto& [node, image] : std::vector<std::pair<std::size_t, std::size_t>>{
             {0, 1}, {2, 4}, {3, 5}}) // 1 and 2, 3 and 5, 4 and 6
        ExpectNear(torsion[image], {-torsion[node].x(), -torsion[node].y(), torsion[node].z()});
    EXPECT_NEAR(torsion[0].y(), 0.35, 1e-4);
    EXPECT_NEAR(solver.Solve(model.cases[1]).displacements[1].y(), 0.35, 1e-4);
}

TEST(Truss, BadInputIsRefusedAndNothingIsWritten)
{
    const std::string head = "title T\nunits m N kg\nmaterial s 2e11\nnode a 0 0 0\nnode b 1 0 0\n"
                             "support a xyz\nbar 1 a b s 1e-4\n"; // 7 lines
    const std::string rest = "support b yz\ncase c\nload b 1 0 0\n";
    const std::string mechanism = ": the structure is a mechanism: node ";
    const std::pair<std::string, std::string> inputs[] = {
        {"bridge", ":8: unknown keyword \"bridge\""},
        {"node c 1 2", ":8: expected: node NAME X Y Z"},
        {"node c 1 2 3 4", ":8: expected: node NAME X Y Z"},
        {"node c 1 2 3x # no", ":8: \"3x\" is not a number or out of range"},
        {"node c 1 inf 0", ":8: \"inf\" is not a number or out of range"},
        {"node c 1 nan 0", ":8: \"nan\" is not a number or out of range"},
        {"node c 1 1e999 0", ":8: \"1e999\" is not a number or out of range"},
        {"\n# two lines down\nnode a 1 2 3", ":10: node a is defined twice"},
        {"bar 2 a c s 1", ":8: node c is not defined above"},
        {"bar 2 a b t 1", ":8: material t is not defined above"},
        {"bar 2 a a s 1", ":8: bar 2 has no length"},
        {"bar 2 a b s 0", ":8: the area must be positive"},
        {"material t -1", ":8: the modulus must be positive"},
        {"support a x", ":8: node a has a support already"},
        {"support b xx", ":8: the directions of a support are some of x, y and z, as in \"xz\""},
        {"load b 1 0 0", ":8: a load must follow the case that it belongs to"},
        {"case c\ncase d", ":9: load case c has no loads"},
        {"node <c> 1 2 3", ":8: a name is made of ASCII characters other than & < > and \""},
        {"title U", ":8: there is a title already"},
        {"", ":9: the model has no load case"},
        {"support b z\ncase c\nload b 1 0 0", mechanism + "b is free to move in y"},
        {"node lonely 3 3 3\n" + rest, mechanism + "lonely is free to move in "},
        {"node d 0 1 0\nnode e 0 2 0\nbar 2 d e s 1\n" + rest, mechanism},
        {"node c .3 .7 .4\nbar 2 a c s 1\nbar 3 b c s 1\n" + rest,
         mechanism + "c is free to move in "},
        {rest + "load b 3e38 0 0\nload b 3e38 0 0", ": load case c: the results are out of range"},
    };
    const TemporaryDirectory directory;
    const std::string path = directory.Path("m.truss");
    for (const auto& [text, message] : inputs) {
        WriteFile(path, head + text + "\n");
        EXPECT_EQ(RunTruss(path + " " + directory.Path("site"), directory.Path("log")), 2);
        const std::string messages = ReadFile(directory.Path("log"));
        EXPECT_EQ(messages.find(path + message), 0u) << messages << " instead of " << message;
        EXPECT_FALSE(fs::exists(directory.Path("site")));
    }
    const std::string tower = ModelPath("tower25"), site = directory.Path("site");
    const std::string wrongUses[] = {"",
                                     tower,
                                     tower + " ''",
                                     "--close " + tower + " " + site,
                                     path + "x " + site,
                                     tower + " " + site + " torsion earthquake",
                                     "--open " + tower + " '" + site + ";x'"};
    for (const std::string& arguments : wrongUses)
        EXPECT_EQ(RunTruss(arguments, directory.Path("log")), 2) << arguments;
    EXPECT_FALSE(fs::exists(site));
}

TEST(Truss, WhatCannotBeWrittenIsTold)
{
    const TemporaryDirectory directory;
    const std::string log = directory.Path("log"), model = ModelPath("two_bar") + " ";
    EXPECT_EQ(RunTruss(model + directory.Path("missing/site"), log), 1);
    EXPECT_EQ(RunTruss(model + log, log), 1); // a file
    for (const char* name : {"page5.html", "navigation.html", "main.css", "report.txt"}) {
        const std::string site = directory.Path(std::string("full-") + name);
        fs::create_directory(site);
        fs::create_symlink("/dev/full", fs::path(site) / name);
        EXPECT_EQ(RunTruss(model + site, log), 1) << name;
        EXPECT_EQ(Occurrences(ReadFile(log), std::string(name) + ": cannot be written"), 1);
    }
}

TEST(Truss, SiteAndFigures)
{
    ::unsetenv("VORCommandPath");
    ::unsetenv("KTR_ODT");
    ::setenv("KTRReportODT", "1", 1); // names of included files without a time stamp
    const TemporaryDirectory directory;
    const std::string log = directory.Path("log"), site = directory.Path("site");
    ASSERT_EQ(RunTruss("--open " + ModelPath("tower25") + " " + site + " wires torsion", log), 0);
    EXPECT_EQ(Occurrences(ReadFile(log), "no browser launcher"), 1);

    const std::string frame(" " + std::string(78, '*') + "\n");
    const std::string empty(" *" + std::string(76, ' ') + "*\n");
    const std::string title =
        " *" + std::string(25, ' ') + "25-bar transmission tower" + std::string(26, ' ') + "*\n";
    const std::string text = ReadFile(site + "/report.txt");
    EXPECT_EQ(text.find(frame + empty + title + empty + frame + "\n"), 0u);
    EXPECT_LT(text.find("Load case wires"), text.find("Load case torsion"));

    const std::string navigation = ReadFile(site + "/navigation.html");
    const std::regex link("HREF=\"([^#\"]*)[#\"]");
    for (std::sregex_iterator i(navigation.begin(), navigation.end(), link), end; i != end; ++i)
        EXPECT_TRUE(fs::exists(fs::path(site) / i->str(1))) << i->str(1);
    EXPECT_EQ(Occurrences(navigation, "<H1>Load case (wires|torsion)</H1>"), 2);
    EXPECT_TRUE(fs::exists(site + "/reload.html"));

    EXPECT_EQ(ReadFile(site + "/file1.wrl").find("#VRML V2.0 utf8\n"), 0u);
    EXPECT_EQ(Occurrences(ReadFile(site + "/file1.wrl"), "USE BAR"), 25);
    for (const char* name : {"/file2.svg", "/file3.svg"}) {
        const std::string drawing = ReadFile(site + name);
        EXPECT_TRUE(IsWellFormed(drawing));
        EXPECT_EQ(Occurrences(drawing, "nan|inf"), 0);
        EXPECT_EQ(Occurrences(drawing, "class=\"deformed\"[^>]*stroke=\"rgb"), 25);
    }
}
