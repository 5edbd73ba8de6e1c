// Solves a space truss and publishes the results. README.md describes the program and its files.

#include <algorithm>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "TrussPublisher.h"
#include "TrussReader.h"
#include "TrussSolver.h"
#include "VORKTRReportTools.h"

namespace
{

constexpr int Failure = 1;
constexpr int BadInput = 2;

const char* const Usage = "usage: truss [--open] MODEL DIRECTORY [CASE...]\n"
                          "Solves the space truss of the file MODEL and publishes its load cases,\n"
                          "all of them or those named, as a web site and report.txt in DIRECTORY.\n"
                          "  --open  show the site in a browser\n";

struct Arguments {
    bool isOpening = false;
    std::string model;
    std::string directory;
    std::vector<std::string> cases;
};

bool Parse(std::vector<std::string> iWords, Arguments& oArguments)
{
    if (!iWords.empty() && iWords.front() == "--open") {
        oArguments.isOpening = true;
        iWords.erase(iWords.begin());
    }
    if (iWords.size() < 2 || iWords[0].substr(0, 1) == "-" || iWords[1].empty())
        return false;
    oArguments.model = iWords[0];
    oArguments.directory = iWords[1];
    oArguments.cases.assign(iWords.begin() + 2, iWords.end());
    return true;
}

/// The directory for a browser, whatever directory that one has. The page to show goes through the
/// command interpreter as it stands, so nothing in its path may mean anything there.
std::string PathForBrowser(const std::string& iDirectory)
{
    const char* const plain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789"
                              "/._-+,:@";
    std::string path = std::filesystem::absolute(iDirectory).generic_string();
    if (path.find_first_not_of(plain) != std::string::npos)
        throw truss::InputError(path + ": --open takes only ASCII letters, digits and "
                                       "/ . _ - + , : @ in this path, since the browser is started "
                                       "through the command interpreter");
    return path;
}

std::vector<truss::LoadCase> ChooseCases(const truss::Model& iModel,
                                         const std::vector<std::string>& iNames)
{
    if (iNames.empty())
        return iModel.cases;
    std::vector<truss::LoadCase> cases;
    for (const std::string& name : iNames) {
        const auto found =
            std::find_if(iModel.cases.begin(), iModel.cases.end(),
                         [&](const truss::LoadCase& iCase) { return iCase.name == name; });
        if (found == iModel.cases.end())
            throw truss::InputError(iModel.path + ": there is no load case " + name);
        cases.push_back(*found);
    }
    return cases;
}

void Open(const std::string& iPage)
{
    const int status = VORKTRReportTools::StartBrowser(iPage.c_str(), 0);
    if (status == -1)
        std::cout << "no browser launcher (RunNs.sh on VORCommandPath) was found: open " << iPage
                  << " yourself\n";
    else if (status != 0)
        throw std::runtime_error("the browser launcher failed");
}

/// Everything that the input can get wrong shows before the first file is written.
void Run(const Arguments& iArguments)
{
    const std::string directory =
        iArguments.isOpening ? PathForBrowser(iArguments.directory) : iArguments.directory;
    const truss::Model model = truss::ReadModel(iArguments.model);
    const std::vector<truss::LoadCase> cases = ChooseCases(model, iArguments.cases);
    const truss::Solver solver(model);
    std::vector<truss::Solution> solutions;
    solutions.reserve(cases.size());
    for (const truss::LoadCase& loadCase : cases)
        solutions.push_back(solver.Solve(loadCase));

    truss::Publisher publisher(model, directory);
    for (std::size_t i = 0; i < cases.size(); ++i)
        publisher.Publish(cases[i], solutions[i]);
    publisher.WriteText();
    if (iArguments.isOpening)
        Open(publisher.WriteReloadPage());
}

} // namespace

int main(int argc, char** argv)
{
    try {
        Arguments arguments;
        if (!Parse({argv + 1, argv + argc}, arguments)) {
            std::cerr << Usage;
            return BadInput;
        }
        Run(arguments);
        return 0;
    } catch (const truss::InputError& error) {
        std::cerr << error.what() << '\n';
        return BadInput;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return Failure;
    }
}
