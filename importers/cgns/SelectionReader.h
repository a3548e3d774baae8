#pragma once

#include "importers/cgns/CgnsDescription.h"
#include "importers/cgns/CgnsNode.h"

#include <cstddef>
#include <string>

namespace gtm::bundled {

/// What a condition chooses, or a connectivity on its own side. `place` begins the sentence of a `CgnsError`,
/// thrown when the numbers do not fit a zone of that many axes.
CgnsDescription::Selection readSelection(const CgnsNodes& patch, std::size_t axes, const std::string& place);

/// What a connectivity chooses on the side of its donor. Nothing is known here about that zone.
CgnsDescription::Selection readDonorSelection(const CgnsNodes& connectivity);

} // namespace gtm::bundled
