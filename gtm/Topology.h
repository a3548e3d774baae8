#pragma once

#include "gtm/Export.h"

#include <string>
#include <vector>

namespace gtm {

class Body;
class Part;
class Region;

/// The parts, bodies, faces and face uses of one geometry. Owned by its `Model`; it owns its regions.
class GTM_EXPORT Topology {
public:
    Topology(const Topology&) = delete;
    Topology& operator=(const Topology&) = delete;

    /// All parts, in the order of the geometry.
    std::vector<Part*> parts() const;

    /// The part, body, face or face use with this id, or null.
    Region* findRegionById(const std::string& id) const;

    /// The body with this id, or null also when another kind of region has it.
    Body* findBodyById(const std::string& id) const;

protected:
    Topology() = default;
    ~Topology() = default;
};

} // namespace gtm
