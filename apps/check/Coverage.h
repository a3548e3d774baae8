#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace physics {
class Boundary;
class Volume;
} // namespace physics

namespace gtm {
class Body;
class FaceUse;
} // namespace gtm

namespace gtm::bundled {
class LocationModel;
}

namespace physics::apps {

struct Listed;

/// Who owns each side of each face of each unmasked body: what a second program can check again. It must not
/// outlive the set-up.
struct Coverage {
    struct FaceSide {
        const gtm::FaceUse* faceUse;
        std::size_t firstOwner; ///< index of the first of its owners in `owners`
        std::size_t noOfOwners;
        bool isInternal; ///< inside a volume, where no boundary is needed
    };

    struct Body {
        const gtm::Body* body;
        std::size_t noOfFaceSides;
    };

    std::vector<Body> bodies;            ///< in the order of the topology
    std::vector<FaceSide> faceSides;     ///< body by body, in the order of the topology
    std::vector<const Boundary*> owners; ///< of each face side together, in the order of the set-up

    std::vector<const gtm::Body*> maskedBodies; ///< left out
    std::vector<const Volume*> volumes;         ///< all, in the order of the set-up, also those that it does not list
    std::vector<const Boundary*> boundaries;    ///< the same

    std::size_t noInOne = 0;
    std::size_t noInSeveral = 0;
    std::size_t noInNoneInside = 0;  ///< internal ones in no boundary
    std::size_t noInNoneOutside = 0; ///< the others in no boundary: they are not covered

    /// The full names of the boundaries that have a face side.
    std::vector<std::string> ownersOf(const FaceSide& faceSide) const;
};

/// Which boundary has which face use.
struct Ownership {
    const gtm::FaceUse* faceUse;
    std::size_t boundary; ///< its position among the boundaries of the set-up
};

/// Cost: that of sorting the face sides. The set-up must lie on `model`, and `ownerships` have all face uses of its
/// boundaries, in any order.
Coverage coverageOf(const Listed& setUp, const gtm::bundled::LocationModel& model, std::vector<Ownership> ownerships);

} // namespace physics::apps
