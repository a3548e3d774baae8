#pragma once

#include "gtm/Export.h"

#include <cstdint>
#include <vector>

namespace gtm {

class Body;
class FaceUse;

/// The solver zone of a body.
struct ExternalBody {
    std::int32_t zoneId = 0; ///< the number that the solver's mesh gives the zone
};

/// The solver zone of a face use. The signed number of a side that looks the other way is minus its zone id.
struct ExternalFaceSide {
    std::int32_t zoneId = 0;   ///< the number that the solver's mesh gives the zone
    std::int32_t sideWord = 0; ///< not zero when the zone's mesh faces look the other way
};

/// The map from topology to the zones of the solver's mesh. Owned by its `Model`.
class GTM_EXPORT TopologyMap {
public:
    TopologyMap(const TopologyMap&) = delete;
    TopologyMap& operator=(const TopologyMap&) = delete;

    /// The zones of a body in the order of the map; empty when it has none.
    std::vector<ExternalBody> externalBodies(const Body* body) const;

    /// The zones of a face use in the order of the map; empty when it has none.
    std::vector<ExternalFaceSide> externalFaceSides(const FaceUse* faceUse) const;

protected:
    TopologyMap() = default;
    ~TopologyMap() = default;
};

} // namespace gtm
