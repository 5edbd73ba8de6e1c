#ifndef TrussPublisher_h
#define TrussPublisher_h

#include <filesystem>
#include <string>

#include "TrussSolver.h"
#include "VORKTRReportingBuffer.h"
#include "VORKTRReportingText.h"

namespace truss
{

/// A directory for the figures until the report takes them; removed at the end.
class TemporaryDirectory
{
public:
    TemporaryDirectory();
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;
    ~TemporaryDirectory();

    const std::filesystem::path& Path() const { return _Path; }

private:
    std::filesystem::path _Path;
};

/// Publishes a model: a web site that grows by a load case at a time, and the same report as plain
/// text. What cannot be written is told by std::runtime_error.
class Publisher
{
public:
    /// The model must outlive the publisher. Nothing is written yet.
    Publisher(const Model& iModel, const std::filesystem::path& iDirectory);

    /// Adds a load case and writes the site, again from the second case on.
    void Publish(const LoadCase& iCase, const Solution& iSolution);
    /// Writes the plain text of what was published as "report.txt" beside the site.
    void WriteText() const;
    /// Writes the page that opens the site at its latest chapter and returns its path.
    std::filesystem::path WriteReloadPage();

private:
    std::string WriteTemporary(const char* iName, const std::string& iText) const;
    void WriteSite();
    void CheckSite();
    void CheckFile(const std::string& iName, const std::string& iEnd) const;

    const Model& _Model;
    std::filesystem::path _Directory;
    TemporaryDirectory _Temporary;
    VORKTRReportingBuffer _Report;
    VORKTRReportingText* _Summary; // owned by the report
    int _CaseNb = 0;
};

} // namespace truss

#endif
