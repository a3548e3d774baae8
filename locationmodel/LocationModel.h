#pragma once

#include "gtm/Export.h"
#include "gtm/Model.h"
#include "locationmodel/RegionFacts.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace gtm {
class Body;
class Face;
class FaceUse;
class Part;
} // namespace gtm

/// The location model that comes with the library, and what builds, reads and writes its topologies.
namespace gtm::bundled {

class ModelTopology;

/// A location model of our own, for hosts without a geometry kernel: a topology that does not change,
/// made by `TopologyBuilder`, with its solver zones. It must outlive every working copy over it.
class GTM_EXPORT LocationModel final : public Model {
public:
    ~LocationModel();

    /// All regions of a kind, in the order in which they were added; the first side of a face before the second.
    /// @{
    const std::vector<Part*>& parts() const;
    const std::vector<Body*>& bodies() const;
    const std::vector<Face*>& faces() const;
    const std::vector<FaceUse*>& faceUses() const;
    /// @}

    /// The sides of faces that bound `body`, in the order of the topology.
    std::vector<FaceUse*> faceUses(const Body* body) const;

    /// The part of `body`, or null when it is in none.
    Part* part(const Body* body) const;

    /// What is known of a body or face, which must be of this model; empty where nobody told.
    /// @{
    const BodyFacts& facts(const Body* body) const;
    const FaceFacts& facts(const Face* face) const;
    /// @}

    /// Why the last attempt to create or relocate something on any working copy over this model was
    /// refused: whole sentences for people. Empty when it was not refused. For what exists there is
    /// `explain` (locationmodel/Explain.h).
    std::string lastRefusal() const;

    /// The state that it would have had, by its number, which is the same in the three enumerations of
    /// states; 0 when it was not refused.
    std::int32_t lastRefusedState() const;

private:
    friend class gtm::Model;
    friend class TopologyBuilder;

    LocationModel(std::unique_ptr<ModelTopology> topology, bool hasZones);

    class Lists;
    std::unique_ptr<ModelTopology> m_topology;
    std::unique_ptr<Lists> m_lists;
};

} // namespace gtm::bundled
