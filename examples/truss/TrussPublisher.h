#ifndef TrussPublisher_h
#define TrussPublisher_h

#include <string>

#include "TrussSolver.h"
#include "VORKTRReportingBag.h"
#include "VORKTRReportingBuffer.h"

namespace truss
{

/// Publishes a model: a web site that grows by a load case at a time, and the same report as plain
/// text. What cannot be written is told by std::runtime_error.
class Publisher
{
public:
    /// The model must outlive the publisher. The directory, whose name is UTF-8, is made when it is
    /// not there but its parent is.
    Publisher(const Model& iModel, const std::string& iDirectory);
    Publisher(const Publisher&) = delete;
    Publisher& operator=(const Publisher&) = delete;
    ~Publisher();

    /// Adds a load case and writes the site, again from the second case on.
    void Publish(const LoadCase& iCase, const Solution& iSolution);
    /// Writes the plain text of what was published as "report.txt" beside the site.
    void WriteText() const;
    /// Writes the page that opens the site at its latest chapter and returns its path.
    std::string WriteReloadPage();

private:
    std::string In(const char* iName) const;
    std::string WriteFigure(const char* iName, const std::string& iText) const;
    void WriteSite();

    const Model& _Model;
    std::string _Directory;
    VORKTRReportingBuffer _Report;
    VORKTRReportingBag* _Summary; // owned by the report
    int _CaseNb = 0;
};

} // namespace truss

#endif
