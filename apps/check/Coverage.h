#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace physics {
class Physics;
}

namespace gtm::bundled {
class LocationModel;
}

namespace physics::apps {

/// Who owns each side of each face of each unmasked body: what a second program can check again.
struct Coverage {
    struct FaceSide {
        std::string id;
        std::string face;
        std::vector<std::string> boundaries; ///< full names of its owners, in the order of the set-up
        bool isInternal = false;             ///< inside a volume, where no boundary is needed
    };
    struct Body {
        std::string id;
        std::vector<std::string> volumes; ///< that it is in, in the order of the set-up
        std::vector<FaceSide> faceSides;  ///< in the order of the topology
    };
    /// The same seen from its owners: all that lies on unmasked bodies.
    struct Owner {
        std::string name;
        std::string volume; ///< of a boundary; empty for a volume
        std::vector<std::string> owns;
    };

    std::vector<Body> bodies;              ///< in the order of the topology
    std::vector<std::string> maskedBodies; ///< left out
    std::vector<Owner> volumes;            ///< with the ids of their bodies
    std::vector<Owner> boundaries;         ///< with the ids of their face sides

    std::size_t noOfFaceSides = 0;
    std::size_t noInOne = 0;
    std::size_t noInSeveral = 0;
    std::size_t noInNoneInside = 0;  ///< internal ones in no boundary
    std::size_t noInNoneOutside = 0; ///< the others in no boundary: they are not covered
};

/// Cost: linear in the size of the geometry and of the set-up. The set-up must lie on `model`.
Coverage coverageOf(const Physics& physics, const gtm::bundled::LocationModel& model);

} // namespace physics::apps
