#include "locationmodel/InteriorEntity.h"

#include "locationmodel/Workspace.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace gtm::bundled {
namespace {

bool isCreatedBefore(const Interior* a, const Interior* b)
{
    return static_cast<const InteriorEntity*>(a)->serial < static_cast<const InteriorEntity*>(b)->serial;
}

} // namespace

InteriorEntity::InteriorEntity(Workspace& itsWorkspace, std::uint64_t itsSerial, std::string itsName)
    : workspace(itsWorkspace),
      serial(itsSerial),
      name(std::move(itsName)),
      ownDefaultBoundary(*this, 0, "default boundary")
{}

InteriorEntity::InteriorEntity(Workspace& itsWorkspace, std::uint64_t itsSerial, std::string itsName, Wish wish)
    : InteriorEntity(itsWorkspace, itsSerial, std::move(itsName))
{
    location.emplace(std::move(wish), [this] { return published<Region>(ownBodies()); });
}

bool InteriorEntity::names(const ModelBody& body) const
{
    const std::vector<InteriorEntity*>& all = workspace.interiorsOf(body);
    if (isDefault()) {
        return workspace.isDefaultInteriorActive() && all.empty();
    }
    return std::binary_search(all.begin(), all.end(), this, isCreatedBefore);
}

bool InteriorEntity::has(const ModelBody& body) const { return !workspace.isMasked(body) && names(body); }

bool InteriorEntity::isOutward(const ModelFaceUse& faceUse) const
{
    const ModelFaceUse* partner = faceUse.otherSide();
    return partner == nullptr || !has(partner->ownBody());
}

bool InteriorEntity::places(const Candidate& candidate) const
{
    const ModelFaceUse& faceUse = *candidate.faceUse;
    return names(faceUse.ownBody()) && (isOutward(faceUse) ? candidate.whenOutward : candidate.whenInternal);
}

bool InteriorEntity::takes(const Candidate& candidate) const
{
    return !workspace.isMasked(candidate.faceUse->ownBody()) && places(candidate);
}

std::vector<BoundaryEntity*> InteriorEntity::claimants(const ModelFaceUse& faceUse) const
{
    std::vector<BoundaryEntity*> found;
    const bool outward = isOutward(faceUse);
    for (const Claim& claim : workspace.claimsOn(faceUse)) {
        if (&claim.boundary->interior == this && (outward ? claim.whenOutward : claim.whenInternal)) {
            found.push_back(claim.boundary);
        }
    }
    return found;
}

std::vector<ModelBody*> InteriorEntity::ownBodies() const
{
    std::vector<ModelBody*> bodies;
    if (!isDefault()) {
        std::copy_if(placement.bodies.begin(), placement.bodies.end(), std::back_inserter(bodies),
                     [this](const ModelBody* body) { return !workspace.isMasked(*body); });
    } else if (workspace.isDefaultInteriorActive()) {
        bodies.assign(workspace.freeBodies().begin(), workspace.freeBodies().end());
    }
    return bodies;
}

std::vector<Face*> InteriorEntity::ownInternalFaces() const
{
    std::vector<ModelFace*> faces;
    for (const ModelBody* body : ownBodies()) {
        for (const ModelFaceUse* faceUse : body->firstSides) {
            if (!isOutward(*faceUse)) {
                faces.push_back(&faceUse->ownFace());
            }
        }
    }
    sortUnique(faces);
    return published<Face>(faces);
}

std::vector<Face*> InteriorEntity::ownUnusedInternalFaces() const
{
    std::vector<Face*> faces = ownInternalFaces();
    const auto isUsed = [this](const Face* face) {
        return !claimants(static_cast<const ModelFaceUse&>(*face->firstFaceUse())).empty() ||
               !claimants(static_cast<const ModelFaceUse&>(*face->secondFaceUse())).empty();
    };
    faces.erase(std::remove_if(faces.begin(), faces.end(), isUsed), faces.end());
    return faces;
}

std::vector<Interior*> InteriorEntity::ownOverlappingInteriors() const
{
    std::vector<Interior*> others;
    for (const ModelBody* body : ownBodies()) {
        const std::vector<InteriorEntity*>& all = workspace.interiorsOf(*body);
        std::copy_if(all.begin(), all.end(), std::back_inserter(others),
                     [this](const InteriorEntity* other) { return other != this; });
    }
    std::sort(others.begin(), others.end(), isCreatedBefore);
    others.erase(std::unique(others.begin(), others.end()), others.end());
    return others;
}

} // namespace gtm::bundled
