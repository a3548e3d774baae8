#pragma once

#include "locationmodel/BoundaryEntity.h"
#include "locationmodel/InteriorEntity.h"
#include "locationmodel/LocationEntity.h"

#include <optional>
#include <vector>

namespace gtm::bundled {

/// The location that is left when regions are taken out of it, or nothing when it does not name them.
/// A location string gets terms that take away; in a list, a region that is only partly taken out is
/// replaced by what is left of it. A part stands for its bodies, and a body of a boundary's location
/// for its own face uses.
std::optional<Wish> without(const InteriorEntity& interior, const std::vector<Region*>& regions);
std::optional<Wish> without(const BoundaryEntity& boundary, const std::vector<Region*>& regions);

} // namespace gtm::bundled
