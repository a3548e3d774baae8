#pragma once

#include "gtm/Export.h"

namespace gtm {

class Topology;
class TopologyMap;

/// A location model: a topology and the solver zones on it. The host owns it and keeps it alive
/// longer than every `VirtualTopology` over it.
class GTM_EXPORT Model {
public:
    Model(const Model&) = delete;
    Model& operator=(const Model&) = delete;

    /// The topology; never null.
    Topology* topology() const;

    /// The solver zones, or null before there is a mesh.
    TopologyMap* solverZoneMap() const;

protected:
    Model() = default;
    ~Model() = default;
};

} // namespace gtm
