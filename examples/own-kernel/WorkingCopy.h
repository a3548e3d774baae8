#pragma once

#include "gtm/VirtualTopology.h"

#include "examples/own-kernel/Interface.h"
#include "examples/own-kernel/Interior.h"
#include "examples/own-kernel/Location.h"
#include "examples/own-kernel/Topology.h"

#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace own {

/// What stands behind a `gtm::VirtualTopology`: it owns the entities, in the order of their creation, and the mask.
class WorkingCopy {
public:
    WorkingCopy(gtm::VirtualTopology& owner, Topology& topology);

    std::pair<gtm::Interior*, gtm::Interior::State> createInterior(const std::string& name, Place place,
                                                                   bool enforceRestrictions);
    std::pair<gtm::Interface*, gtm::Interface::State>
    createInterface(const std::string& name, gtm::Interface::Sides sides, bool enforceRestrictions);

    void end(const Interior* interior);
    void end(const gtm::Interface* interface);
    void endInterfacesOf(gtm::Boundary* boundary);
    void clear();

    /// With the default interior at the end when it is active.
    std::vector<Interior*> interiors() const;

    /// All boundaries of all interiors.
    std::vector<gtm::Boundary*> boundaries() const;

    /// Whether all of these are boundaries of this working copy; none is dereferenced.
    bool areOurs(const std::set<gtm::Boundary*>& boundaries) const;

    bool isMasked(const gtm::Body* body) const { return m_masked.count(body) != 0; }
    bool isMasked(const gtm::FaceUse* faceUse) const { return isMasked(faceUse->body()); }
    bool isMasked(const gtm::Face* face) const
    {
        return isMasked(face->firstFaceUse()) && (face->secondFaceUse() == nullptr || isMasked(face->secondFaceUse()));
    }

    gtm::VirtualTopology& m_owner;
    Topology& m_topology;
    std::set<const gtm::Body*> m_masked;
    std::vector<std::unique_ptr<Interior>> m_interiors;
    std::vector<std::unique_ptr<Interface>> m_interfaces;
    std::unique_ptr<Interior> m_defaultInterior;
    bool m_isDefaultInteriorActive = false;
};

} // namespace own
