#ifndef TrussReader_h
#define TrussReader_h

#include <string>

#include "TrussModel.h"

namespace truss
{

/// Reads a model file; README.md describes the format. Throws InputError "file:line: what is
/// wrong".
Model ReadModel(const std::string& iPath);

} // namespace truss

#endif
