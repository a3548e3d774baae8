#pragma once

#include "gtm/Interior.h"
#include "locationmodel/BodyPlacement.h"
#include "locationmodel/BoundaryEntity.h"
#include "locationmodel/LocationEntity.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace gtm::bundled {

class Workspace;

/// An interior of the bundled location model. `Workspace` owns it and keeps `placement`, `unclaimed`
/// and its own index of bodies in step.
class InteriorEntity final : public Interior {
public:
    /// The default interior of a working copy.
    InteriorEntity(Workspace& itsWorkspace, std::uint64_t itsSerial, std::string itsName);

    InteriorEntity(Workspace& itsWorkspace, std::uint64_t itsSerial, std::string itsName, Wish wish);

    bool isDefault() const { return !location.has_value(); }

    /// Whether its location names the body, masked or not.
    bool names(const ModelBody& body) const;

    /// Whether it stands for the body now.
    bool has(const ModelBody& body) const;

    /// Whether a face use of a body of this interior looks out of it.
    bool isOutward(const ModelFaceUse& faceUse) const;

    /// Whether a boundary of this interior with that candidate names the face use, masked or not.
    bool places(const Candidate& candidate) const;

    /// Whether such a boundary has the face use now.
    bool takes(const Candidate& candidate) const;

    /// The boundaries but the default one that have a face use of this interior, in the order of
    /// creation.
    std::vector<BoundaryEntity*> claimants(const ModelFaceUse& faceUse) const;

    /// What it stands for now, in the order of the topology.
    std::vector<ModelBody*> ownBodies() const;

    std::vector<Face*> ownInternalFaces() const;
    std::vector<Face*> ownUnusedInternalFaces() const;
    std::vector<Interior*> ownOverlappingInteriors() const;

    /// Where its boundaries' patterns look; null for everywhere.
    const BodyPlacement* scope() const { return isDefault() ? nullptr : &placement; }

    Workspace& workspace;
    const std::uint64_t serial; ///< counts creations
    std::string name;
    std::optional<LocationEntity> location; ///< none for the default interior
    BodyPlacement placement;                ///< empty for the default interior

    std::map<std::uint64_t, std::unique_ptr<BoundaryEntity>> boundaries; ///< by serial; without the default one
    BoundaryEntity ownDefaultBoundary;
    bool hasActiveDefaultBoundary = false;

    /// The outward face uses that no boundary but the default one has.
    std::set<ModelFaceUse*, ByIndex> unclaimed;
};

} // namespace gtm::bundled
