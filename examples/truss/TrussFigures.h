#ifndef TrussFigures_h
#define TrussFigures_h

#include <string>

#include "TrussSolver.h"

namespace truss
{

/// A number within a sentence or a label: six digits, no padding.
std::string ShortNumber(double iNumber);

/// How many times the drawing enlarges the displacements: a round number.
double DisplacementScale(const Model& iModel, const Solution& iSolution);

/// An SVG drawing of the loaded structure and of its deformed shape, in isometric projection.
std::string DrawSvg(const Model& iModel, const Solution& iSolution);

/// A VRML 2.0 scene of the structure. The radius of the thickest bar is a fixed part of the
/// structure's size; the others are in proportion.
std::string WriteScene(const Model& iModel);

} // namespace truss

#endif
