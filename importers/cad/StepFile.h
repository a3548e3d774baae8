#pragma once

#include "importers/cad/CadShapes.h"

#include <string>

namespace gtm::bundled {

/// Whether the content of a file begins as a STEP file does.
bool isStep(const std::string& content);

/// The solids of a STEP file with their names. Throws `CadError`, without a file name.
CadShapes readStep(const std::string& content);

} // namespace gtm::bundled
