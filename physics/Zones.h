#pragma once

#include "gtm/TopologyMap.h"

#include <limits>
#include <vector>

namespace gtm {
class Face;
class FaceUse;
class Model;
} // namespace gtm

namespace physics {

/// A zone id without its sign. The smallest integer has no counterpart and stays as it is.
constexpr int absoluteZoneId(int zoneId)
{
    return zoneId >= 0 || zoneId == std::numeric_limits<int>::min() ? zoneId : -zoneId;
}

/// The zones on one side of a face; none for a null face use or before there is a mesh.
std::vector<gtm::ExternalFaceSide> faceSides(const gtm::Model* locationModel, const gtm::FaceUse* faceUse);

} // namespace physics
