#pragma once

#include "apps/proposal/TypeMapping.h"

#include <string>
#include <vector>

namespace gtm {
class Body;
}

namespace physics::apps {

struct GeometryFile;

/// The bodies that become one volume: all of one family, or a single one without a family.
struct BodyGroup {
    std::string inFile; ///< `family "core", 3 bodies`
    std::string name;   ///< of the family, or of the body, as in the file
    VolumeMapping mapping;
    std::vector<const gtm::Body*> bodies;
};

/// All bodies in groups, in the order of their first bodies.
std::vector<BodyGroup> groupBodies(const GeometryFile& geometry);

} // namespace physics::apps
