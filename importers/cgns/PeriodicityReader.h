#pragma once

#include "importers/cgns/CgnsDescription.h"
#include "importers/cgns/CgnsNode.h"

#include <optional>
#include <string>
#include <vector>

namespace gtm::bundled {

/// The unit of angles that is declared among these nodes; where none is, `above`, which holds for the level
/// of the tree above them. Empty where nobody declares one.
std::string angleUnitOf(const CgnsNodes& nodes, const std::string& above);

/// How a connectivity with these children repeats the mesh, with angles in radians; nothing when it does not.
/// `place` begins the sentences: a note when the unit of an angle is not known, and the `CgnsError` when
/// something is not three numbers.
std::optional<CgnsDescription::Periodicity> readPeriodicity(const CgnsNodes& connectivity, const std::string& angleUnit,
                                                            const std::string& place, std::vector<std::string>& notes);

} // namespace gtm::bundled
