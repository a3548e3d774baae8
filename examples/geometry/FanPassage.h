#pragma once

#include "examples/geometry/NamedSolids.h"

#include <vector>

namespace examples {

/// One of nine equal sectors of an axial fan with a screen behind it: the flow runs in +x between
/// hub and shroud, past one blade, through the screen and out of the duct. The sector reaches from
/// -20 to +20 degrees about the x axis, so that every "periodic-minus" face turned by 40 degrees
/// is the "periodic-plus" face of the same body. Bodies "passage" (fluid), "screen" (porous) and
/// "duct" (fluid); beside them, in an assembly "drive" of its own, the "motor" inside the hub. Lengths
/// in mm.
std::vector<NamedSolid> fanPassage();

} // namespace examples
