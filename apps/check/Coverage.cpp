#include "apps/check/Coverage.h"

#include "apps/check/Naming.h"
#include "gtm/Body.h"
#include "gtm/Face.h"
#include "gtm/FaceUse.h"
#include "locationmodel/LocationModel.h"
#include "physics/Boundary.h"
#include "physics/Physics.h"
#include "physics/Volume.h"

#include <unordered_map>
#include <unordered_set>

namespace physics::apps {
namespace {

/// Region -> the names of those that have it.
template <class R>
using Owners = std::unordered_map<const R*, std::vector<std::string>>;

template <class R>
std::vector<std::string> namesIn(const Owners<R>& owners, const R* region)
{
    const auto found = owners.find(region);
    return found == owners.end() ? std::vector<std::string>() : found->second;
}

void count(const Coverage::FaceSide& faceSide, Coverage& coverage)
{
    ++coverage.noOfFaceSides;
    if (faceSide.boundaries.size() == 1) {
        ++coverage.noInOne;
    } else if (faceSide.boundaries.size() > 1) {
        ++coverage.noInSeveral;
    } else {
        ++(faceSide.isInternal ? coverage.noInNoneInside : coverage.noInNoneOutside);
    }
}

} // namespace

Coverage coverageOf(const Physics& physics, const gtm::bundled::LocationModel& model)
{
    Coverage coverage;
    Owners<gtm::Body> volumesOf;
    std::unordered_set<const gtm::Face*> internal;
    for (const Volume* volume : physics.volumes()) {
        for (const gtm::Body* body : volume->bodies()) {
            volumesOf[body].push_back(volume->fullName());
        }
        for (const gtm::Face* face : volume->internalFaces()) {
            internal.insert(face);
        }
        coverage.volumes.push_back({volume->fullName(), {}, idsOf(volume->bodies())});
    }
    Owners<gtm::FaceUse> boundariesOf;
    for (const Boundary* boundary : physics.boundaries()) {
        for (const gtm::FaceUse* faceUse : boundary->faceUses()) {
            boundariesOf[faceUse].push_back(boundary->fullName());
        }
        coverage.boundaries.push_back(
            {boundary->fullName(), boundary->volume()->fullName(), idsOf(boundary->faceUses())});
    }
    for (gtm::Body* body : model.bodies()) {
        if (physics.isMasked(body)) {
            coverage.maskedBodies.push_back(body->id());
            continue;
        }
        Coverage::Body& entry = coverage.bodies.emplace_back();
        entry.id = body->id();
        entry.volumes = namesIn<gtm::Body>(volumesOf, body);
        for (const gtm::FaceUse* faceUse : model.faceUses(body)) {
            entry.faceSides.push_back({faceUse->id(), faceUse->face()->id(),
                                       namesIn<gtm::FaceUse>(boundariesOf, faceUse),
                                       internal.count(faceUse->face()) > 0});
            count(entry.faceSides.back(), coverage);
        }
    }
    return coverage;
}

} // namespace physics::apps
