#ifndef TrussChapters_h
#define TrussChapters_h

#include <memory>
#include <string>

#include "TrussSolver.h"
#include "VORKTRReportingBag.h"

namespace truss
{

/// The parts of the report, ready to be added to it. Headings, labels and units of a report are
/// HTML and reach the plain text as they stand; that names and units hold no special character
/// keeps both right.
using Chapter = std::unique_ptr<VORKTRReportingBag>;

/// The structure itself. The scene's file becomes figure 1.
Chapter MakeModelChapter(const Model& iModel, const std::string& iScenePath);

/// The results of a load case, with a drawing.
Chapter MakeCaseChapter(const Model& iModel, const LoadCase& iCase, const Solution& iSolution,
                        const std::string& iDrawingPath);

/// Two sentences on a load case for the summary.
std::string Summarise(const Model& iModel, const LoadCase& iCase, const Solution& iSolution);

} // namespace truss

#endif
