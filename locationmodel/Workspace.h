#pragma once

#include "gtm/VirtualTopology.h"
#include "locationmodel/BoundaryEntity.h"
#include "locationmodel/InterfaceEntity.h"
#include "locationmodel/InteriorEntity.h"
#include "locationmodel/ModelTopology.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

namespace gtm::bundled {

/// That a boundary's location names a face use, and when the boundary has it (see `Candidate`).
struct Claim {
    BoundaryEntity* boundary;
    bool whenOutward;
    bool whenInternal;
};

/// The working copy behind a `VirtualTopology`: owns the interiors and interfaces, and keeps the indexes
/// from body to interiors and from face use to boundaries. Every change goes through here and touches
/// just the bodies and face uses concerned, so that each question costs what its answer is long.
class Workspace {
public:
    using BodySet = std::set<ModelBody*, ByIndex>;

    Workspace(VirtualTopology& owner, ModelTopology& topology);
    Workspace(const Workspace&) = delete;
    Workspace& operator=(const Workspace&) = delete;

    VirtualTopology& owner() const { return m_owner; }
    ModelTopology& topology() const { return m_topology; }

    std::pair<Interior*, Interior::State> createInterior(const std::string& name, const Wish& wish, bool enforce);
    Interior::State relocate(InteriorEntity& interior, const Wish& wish, bool enforce);
    bool remove(InteriorEntity& interior, const std::vector<Region*>& regions);
    void destroy(InteriorEntity& interior);

    std::pair<Boundary*, Boundary::State> createBoundary(InteriorEntity& interior, const std::string& name,
                                                         const Wish& wish, bool enforce);
    Boundary::State relocate(BoundaryEntity& boundary, const Wish& wish, bool enforce);
    bool remove(BoundaryEntity& boundary, const std::vector<Region*>& regions);
    void destroy(BoundaryEntity& boundary);

    std::pair<Interface*, Interface::State> createInterface(const std::string& name, const Interface::Sides& sides,
                                                            bool enforce);
    Interface::State relocate(InterfaceEntity& interface, const Interface::Sides& sides, bool enforce);
    void destroy(InterfaceEntity& interface);

    InteriorEntity& defaultInterior() { return m_defaultInterior; }
    bool isDefaultInteriorActive() const { return m_isDefaultInteriorActive; }
    void activateDefaultInterior(bool active);

    /// In the order of creation, the default interior last when it is active.
    std::vector<InteriorEntity*> interiors();

    /// In the order of creation.
    std::vector<InterfaceEntity*> interfaces() const;
    std::size_t noOfInterfaces() const { return m_interfaces.size(); }

    void setMasked(ModelBody& body, bool masked);
    bool isMasked(const ModelBody& body) const { return m_isMasked[body.index]; }
    const BodySet& maskedBodies() const { return m_masked; }

    /// The unmasked bodies that no interior but the default one names.
    const BodySet& freeBodies() const { return m_free; }

    /// The interiors but the default one that name a body, in the order of creation.
    const std::vector<InteriorEntity*>& interiorsOf(const ModelBody& body) const { return m_interiorsOf[body.index]; }

    /// The boundaries but the default ones whose locations name a face use, in the order of creation.
    const std::vector<Claim>& claimsOn(const ModelFaceUse& faceUse) const { return m_claimsOn[faceUse.index]; }

    void clear();

private:
    void move(InteriorEntity& interior, const Wish& wish, BodyPlacement placement);
    void enterBodies(InteriorEntity& interior);
    void leaveBodies(InteriorEntity& interior);
    void enterClaims(BoundaryEntity& boundary);
    void leaveClaims(BoundaryEntity& boundary);
    void move(BoundaryEntity& boundary, const Wish& wish, SurfacePlacement placement);
    void setSides(InterfaceEntity& interface, const Interface::Sides& sides);
    void endInterfacesOf(BoundaryEntity& boundary);
    void endBoundariesOf(InteriorEntity& interior);
    Interface::State judgeSides(const Interface::Sides& sides, bool enforce);
    bool areAllAlive(const Interface::Sides& sides) const;

    void refresh(InteriorEntity& interior, ModelFaceUse& faceUse);
    void refreshAround(InteriorEntity& interior, const ModelBody& body);

    VirtualTopology& m_owner;
    ModelTopology& m_topology;
    std::uint64_t m_lastSerial = 0;

    std::vector<std::vector<InteriorEntity*>> m_interiorsOf; ///< by index of the body
    std::vector<std::vector<Claim>> m_claimsOn;              ///< by index of the face use
    std::vector<bool> m_isMasked;                            ///< by index of the body
    BodySet m_masked;
    BodySet m_free;
    std::unordered_set<const Boundary*> m_boundaries; ///< all that are alive, default ones too

    std::map<std::uint64_t, std::unique_ptr<InteriorEntity>> m_interiors;   ///< by serial; without the default one
    std::map<std::uint64_t, std::unique_ptr<InterfaceEntity>> m_interfaces; ///< by serial
    InteriorEntity m_defaultInterior;
    bool m_isDefaultInteriorActive = false;
};

} // namespace gtm::bundled
