#pragma once

#include "examples/geometry/NamedSolids.h"

#include <vector>

namespace examples {

/// A double-pipe heat exchanger in counter flow, cut in half by its symmetry plane y = 0: the hot
/// fluid runs in +x through a tube, the cold one in -x through the shell around it, in and out by
/// two nozzles. Bodies "hot", "cold" (fluids) and "tube" (solid). Lengths in mm.
std::vector<NamedSolid> heatExchanger();

} // namespace examples
