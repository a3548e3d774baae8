#pragma once

#include "importers/cgns/CgnsDescription.h"
#include "importers/cgns/CgnsNode.h"

namespace gtm::bundled {

/// Takes from the tree under `root` what a location model needs, and notes what is left out. Throws
/// `CgnsError`, without the name of the file.
CgnsDescription describe(const CgnsNode& root);

} // namespace gtm::bundled
