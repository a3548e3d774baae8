#include "apps/check/Coverage.h"

#include "apps/check/Listed.h"
#include "gtm/Body.h"
#include "gtm/Face.h"
#include "gtm/FaceUse.h"
#include "locationmodel/LocationModel.h"
#include "physics/Boundary.h"
#include "physics/Volume.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace physics::apps {
namespace {

bool isBefore(const Ownership& left, const Ownership& right)
{
    // By address only to find them again: no output is in that order.
    return left.faceUse != right.faceUse ? std::less<>()(left.faceUse, right.faceUse) : left.boundary < right.boundary;
}

/// The internal faces of all volumes, to be searched.
std::vector<const gtm::Face*> internalFacesOf(const std::vector<const Volume*>& volumes)
{
    std::vector<const gtm::Face*> faces;
    for (const Volume* volume : volumes) {
        const std::vector<gtm::Face*> own = volume->internalFaces();
        faces.insert(faces.end(), own.begin(), own.end());
    }
    std::sort(faces.begin(), faces.end(), std::less<>());
    return faces;
}

void count(const Coverage::FaceSide& faceSide, Coverage& coverage)
{
    if (faceSide.noOfOwners == 1) {
        ++coverage.noInOne;
    } else if (faceSide.noOfOwners > 1) {
        ++coverage.noInSeveral;
    } else {
        ++(faceSide.isInternal ? coverage.noInNoneInside : coverage.noInNoneOutside);
    }
}

} // namespace

std::vector<std::string> Coverage::ownersOf(const FaceSide& faceSide) const
{
    std::vector<std::string> names;
    for (std::size_t i = 0; i < faceSide.noOfOwners; ++i) {
        names.push_back(owners[faceSide.firstOwner + i]->fullName());
    }
    return names;
}

Coverage coverageOf(const Listed& setUp, const gtm::bundled::LocationModel& model, std::vector<Ownership> ownerships)
{
    Coverage coverage;
    coverage.volumes.assign(setUp.volumes.begin(), setUp.volumes.end());
    coverage.boundaries.assign(setUp.boundaries.begin(), setUp.boundaries.end());
    std::sort(ownerships.begin(), ownerships.end(), isBefore); // the owners of one face use stand together
    for (const Ownership& ownership : ownerships) {
        coverage.owners.push_back(setUp.boundaries[ownership.boundary]);
    }
    const std::vector<const gtm::Face*> internal = internalFacesOf(coverage.volumes);
    auto last = ownerships.cbegin();
    for (gtm::Body* body : model.bodies()) {
        if (setUp.physics.isMasked(body)) {
            coverage.maskedBodies.push_back(body);
            continue;
        }
        const std::vector<gtm::FaceUse*> faceUses = model.faceUses(body);
        coverage.bodies.push_back({body, faceUses.size()});
        for (const gtm::FaceUse* faceUse : faceUses) {
            // Often they lie in one order with the ownerships, so that the next ones are the next there.
            if (last == ownerships.cend() || last->faceUse != faceUse) {
                last = std::lower_bound(ownerships.cbegin(), ownerships.cend(), Ownership{faceUse, 0}, isBefore);
            }
            const auto first = last;
            while (last != ownerships.cend() && last->faceUse == faceUse) {
                ++last;
            }
            const bool isInternal =
                !internal.empty() && // most often: then the face need not be looked at
                std::binary_search(internal.begin(), internal.end(), faceUse->face(), std::less<const gtm::Face*>());
            coverage.faceSides.push_back({faceUse, static_cast<std::size_t>(first - ownerships.cbegin()),
                                          static_cast<std::size_t>(last - first), isInternal});
            count(coverage.faceSides.back(), coverage);
        }
    }
    return coverage;
}

} // namespace physics::apps
