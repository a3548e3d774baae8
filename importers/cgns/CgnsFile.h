#pragma once

#include "importers/cgns/CgnsDescription.h"
#include "importers/cgns/CgnsTree.h"

namespace gtm::bundled {

/// Takes from the tree what a location model needs, and notes what is left out. Throws `CgnsError`,
/// without the name of the file.
CgnsDescription describe(const CgnsTree& tree);

} // namespace gtm::bundled
