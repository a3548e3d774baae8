#pragma once

#include "importers/cad/CadShapes.h"

#include <string>

namespace gtm::bundled {

/// Whether the content of a file begins as a BREP file does.
bool isBrep(const std::string& content);

/// The solids of a BREP file, which has no names and no parts. Throws `CadError`, without a file name.
CadShapes readBrep(const std::string& content);

} // namespace gtm::bundled
