#include "locationmodel/Removal.h"

#include "locationmodel/Workspace.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <string>

namespace gtm::bundled {
namespace {

std::vector<ModelBody*> bodiesOf(Region& region)
{
    if (auto* part = dynamic_cast<ModelPart*>(&region)) {
        return part->members;
    }
    auto* body = dynamic_cast<ModelBody*>(&region);
    return body == nullptr ? std::vector<ModelBody*>() : std::vector<ModelBody*>{body};
}

std::vector<ModelFaceUse*> faceUsesOf(Region& region)
{
    if (auto* faceUse = dynamic_cast<ModelFaceUse*>(&region)) {
        return {faceUse};
    }
    std::vector<ModelFaceUse*> faceUses;
    if (auto* face = dynamic_cast<ModelFace*>(&region)) {
        faceUses.push_back(static_cast<ModelFaceUse*>(face->firstFaceUse()));
        if (face->secondFaceUse() != nullptr) {
            faceUses.push_back(static_cast<ModelFaceUse*>(face->secondFaceUse()));
        }
    }
    for (const ModelBody* body : bodiesOf(region)) {
        faceUses.insert(faceUses.end(), body->faceUses.begin(), body->faceUses.end());
    }
    return faceUses;
}

/// The regions that belong to the topology; others cannot be in a location.
std::vector<Region*> ownRegions(const std::vector<Region*>& regions, const ModelTopology& topology)
{
    std::vector<Region*> own;
    std::copy_if(regions.begin(), regions.end(), std::back_inserter(own), [&topology](const Region* region) {
        return region != nullptr && infoOf(*region).topology == &topology;
    });
    return own;
}

void takeAway(Wish& wish, const std::string& id) { wish.text += (wish.text.empty() ? "!" : ", !") + quotedId(id); }

/// Takes `removed` out of a list: `piecesOf` gives what a listed region stands for.
template <class Piece, class PiecesOf>
std::optional<Wish> withoutListed(const Wish& wish, const std::set<Region*>& removedRegions,
                                  const std::set<Piece*, ByIndex>& removed, PiecesOf piecesOf)
{
    std::vector<Region*> left;
    for (Region* region : wish.regions) {
        const std::vector<Piece*> pieces = piecesOf(*region);
        std::vector<Piece*> rest;
        std::copy_if(pieces.begin(), pieces.end(), std::back_inserter(rest),
                     [&removed](Piece* piece) { return removed.count(piece) == 0; });
        if (removedRegions.count(region) == 0 && rest.size() == pieces.size()) {
            left.push_back(region);
        } else if (removedRegions.count(region) == 0) {
            left.insert(left.end(), rest.begin(), rest.end());
        }
    }
    return left == wish.regions ? std::nullopt : std::optional(Wish(left));
}

} // namespace

std::optional<Wish> without(const InteriorEntity& interior, const std::vector<Region*>& regions)
{
    if (interior.isDefault()) {
        return std::nullopt;
    }
    const std::vector<Region*> own = ownRegions(regions, interior.workspace.topology());
    const Wish& wish = interior.location->wish;
    std::set<ModelBody*, ByIndex> removed;
    Wish left = wish;
    for (Region* region : own) {
        bool isNamed = false;
        for (ModelBody* body : bodiesOf(*region)) {
            const bool isNew = removed.insert(body).second;
            isNamed = isNamed || (isNew && interior.names(*body));
        }
        if (isNamed) {
            takeAway(left, infoOf(*region).name);
        }
    }
    if (wish.isImplicit) {
        return left.text == wish.text ? std::nullopt : std::optional(left);
    }
    return withoutListed(wish, {own.begin(), own.end()}, removed, bodiesOf);
}

std::optional<Wish> without(const BoundaryEntity& boundary, const std::vector<Region*>& regions)
{
    if (boundary.isDefault()) {
        return std::nullopt;
    }
    const InteriorEntity& interior = boundary.interior;
    const std::vector<Region*> own = ownRegions(regions, interior.workspace.topology());
    const Wish& wish = boundary.location->wish;
    std::set<ModelFaceUse*, ByIndex> removed;
    for (Region* region : own) {
        for (ModelFaceUse* faceUse : faceUsesOf(*region)) {
            removed.insert(faceUse);
        }
    }
    if (wish.isImplicit) {
        Wish left = wish;
        for (const Candidate& candidate : boundary.placement.candidates) {
            if (removed.count(candidate.faceUse) != 0 && interior.places(candidate)) {
                takeAway(left, candidate.faceUse->name);
            }
        }
        return left.text == wish.text ? std::nullopt : std::optional(left);
    }
    return withoutListed(wish, {own.begin(), own.end()}, removed, [&interior](Region& region) {
        std::vector<ModelFaceUse*> pieces;
        for (const Candidate& candidate : candidatesOf(region)) {
            if (interior.places(candidate)) {
                pieces.push_back(candidate.faceUse);
            }
        }
        sortUnique(pieces);
        return pieces;
    });
}

} // namespace gtm::bundled
