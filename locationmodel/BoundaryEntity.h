#pragma once

#include "gtm/Boundary.h"
#include "locationmodel/LocationEntity.h"
#include "locationmodel/SurfacePlacement.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace gtm::bundled {

class InteriorEntity;
class InterfaceEntity;

/// Face uses and faces as the declarations of `gtm` hand them out.
template <class Public, class Own>
std::vector<Public*> published(const std::vector<Own*>& own)
{
    return std::vector<Public*>(own.begin(), own.end());
}

/// A boundary of the bundled location model. Its interior owns it; `Workspace` keeps `placement` and
/// its own index of face uses in step.
class BoundaryEntity final : public Boundary {
public:
    /// The default boundary of an interior.
    BoundaryEntity(InteriorEntity& itsInterior, std::uint64_t itsSerial, std::string itsName);

    BoundaryEntity(InteriorEntity& itsInterior, std::uint64_t itsSerial, std::string itsName, Wish wish);

    bool isDefault() const { return !location.has_value(); }

    /// What it stands for now, in the order of the topology.
    std::vector<ModelFaceUse*> ownFaceUses() const;
    bool hasFaceUse(const ModelFaceUse& faceUse) const;

    /// Whether it stands for just these face uses, which are all different.
    bool isMadeOf(const std::vector<const ModelFaceUse*>& faceUses) const;

    std::vector<Boundary*> ownOverlappingBoundaries() const;
    bool liesOnInternalFaces() const;

    /// Another boundary, also a default one, made of exactly the partners of this one's face uses.
    Boundary* ownPair() const;

    InteriorEntity& interior;
    const std::uint64_t serial; ///< counts creations
    std::string name;
    std::optional<LocationEntity> location; ///< none for a default boundary
    SurfacePlacement placement;
    std::map<std::uint64_t, InterfaceEntity*> interfaces; ///< that it is on a side of, by serial
};

} // namespace gtm::bundled
