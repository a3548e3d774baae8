#pragma once

#include "importers/cgns/CgnsDescription.h"
#include "importers/cgns/CgnsReader.h"

namespace gtm::bundled {

/// Works out faces and coverage, gives the ids and builds the model, as `readCgns` says. Throws
/// `CgnsError`, without the name of a file.
CgnsResult buildModel(const CgnsDescription& description, const CgnsOptions& options);

} // namespace gtm::bundled
