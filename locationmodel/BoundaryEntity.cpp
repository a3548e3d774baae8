#include "locationmodel/BoundaryEntity.h"

#include "locationmodel/InteriorEntity.h"
#include "locationmodel/Workspace.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace gtm::bundled {

BoundaryEntity::BoundaryEntity(InteriorEntity& itsInterior, std::uint64_t itsSerial, std::string itsName)
    : interior(itsInterior), serial(itsSerial), name(std::move(itsName))
{}

BoundaryEntity::BoundaryEntity(InteriorEntity& itsInterior, std::uint64_t itsSerial, std::string itsName, Wish wish)
    : BoundaryEntity(itsInterior, itsSerial, std::move(itsName))
{
    location.emplace(std::move(wish), [this] { return published<Region>(ownFaceUses()); });
}

std::vector<ModelFaceUse*> BoundaryEntity::ownFaceUses() const
{
    std::vector<ModelFaceUse*> faceUses;
    if (!isDefault()) {
        for (const Candidate& candidate : placement.candidates) {
            if (interior.takes(candidate)) {
                faceUses.push_back(candidate.faceUse);
            }
        }
    } else if (interior.hasActiveDefaultBoundary) {
        faceUses.assign(interior.unclaimed.begin(), interior.unclaimed.end());
    }
    return faceUses;
}

bool BoundaryEntity::hasFaceUse(const ModelFaceUse& faceUse) const
{
    if (isDefault()) {
        return interior.hasActiveDefaultBoundary && interior.unclaimed.count(const_cast<ModelFaceUse*>(&faceUse)) != 0;
    }
    const auto found = std::lower_bound(
        placement.candidates.begin(), placement.candidates.end(), faceUse.index,
        [](const Candidate& candidate, std::size_t index) { return candidate.faceUse->index < index; });
    return found != placement.candidates.end() && found->faceUse == &faceUse && interior.takes(*found);
}

std::vector<Boundary*> BoundaryEntity::ownOverlappingBoundaries() const
{
    std::vector<BoundaryEntity*> others;
    if (isDefault()) {
        return {};
    }
    for (const ModelFaceUse* faceUse : ownFaceUses()) {
        const std::vector<BoundaryEntity*> all = interior.claimants(*faceUse);
        std::copy_if(all.begin(), all.end(), std::back_inserter(others),
                     [this](const BoundaryEntity* other) { return other != this; });
    }
    std::sort(others.begin(), others.end(),
              [](const BoundaryEntity* a, const BoundaryEntity* b) { return a->serial < b->serial; });
    others.erase(std::unique(others.begin(), others.end()), others.end());
    return published<Boundary>(others);
}

bool BoundaryEntity::liesOnInternalFaces() const
{
    const std::vector<ModelFaceUse*> faceUses = ownFaceUses();
    return !faceUses.empty() && std::none_of(faceUses.begin(), faceUses.end(), [this](const ModelFaceUse* faceUse) {
        return interior.isOutward(*faceUse);
    });
}

bool BoundaryEntity::isMadeOf(const std::vector<const ModelFaceUse*>& faceUses) const
{
    if (isDefault()) {
        if (interior.unclaimed.size() != faceUses.size()) {
            return false;
        }
    } else {
        std::size_t noOf = 0;
        for (const Candidate& candidate : placement.candidates) {
            noOf += interior.takes(candidate) ? 1U : 0U;
            if (noOf > faceUses.size()) {
                return false; // a large boundary must not be walked for each small one that it faces
            }
        }
        if (noOf != faceUses.size()) {
            return false;
        }
    }
    return std::all_of(faceUses.begin(), faceUses.end(),
                       [this](const ModelFaceUse* faceUse) { return hasFaceUse(*faceUse); });
}

Boundary* BoundaryEntity::ownPair() const
{
    std::vector<const ModelFaceUse*> partners;
    for (const ModelFaceUse* faceUse : ownFaceUses()) {
        partners.push_back(faceUse->otherSide());
        if (partners.back() == nullptr) {
            return nullptr;
        }
    }
    if (partners.empty()) {
        return nullptr;
    }
    Workspace& workspace = interior.workspace;
    for (const Claim& claim : workspace.claimsOn(*partners.front())) {
        if (claim.boundary != this && claim.boundary->isMadeOf(partners)) {
            return claim.boundary;
        }
    }
    const ModelBody& body = partners.front()->ownBody();
    std::vector<InteriorEntity*> interiors = workspace.interiorsOf(body);
    interiors.push_back(&workspace.defaultInterior());
    for (InteriorEntity* other : interiors) {
        if (&other->ownDefaultBoundary != this && other->ownDefaultBoundary.isMadeOf(partners)) {
            return &other->ownDefaultBoundary;
        }
    }
    return nullptr;
}

} // namespace gtm::bundled
