#pragma once

#include "gtm/Body.h"
#include "gtm/Face.h"
#include "gtm/FaceUse.h"
#include "gtm/Model.h"
#include "gtm/Part.h"
#include "gtm/Topology.h"
#include "gtm/TopologyMap.h"

#include "examples/own-kernel/Kernel.h"

#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

/// A location model on the kernel: what `gtm/` declares, each class derived and each member defined. Written to be
/// read: every answer is found anew from the locations, and nothing is kept that could be wrong.
namespace own {

/// A region of one kind: `Named<gtm::Body>` is a body with an id.
template <class Kind>
class Named : public Kind {
public:
    template <class... Arguments>
    explicit Named(std::string id, Arguments... arguments) : Kind(arguments...), m_id(std::move(id))
    {}
    ~Named() override = default;
    std::string id() const override { return m_id; }

private:
    std::string m_id;
};

class Part final : public Named<gtm::Part> {
public:
    using Named::Named;
    std::vector<gtm::Body*> members;
};

class Body final : public Named<gtm::Body> {
public:
    using Named::Named;
    std::vector<gtm::ExternalBody> zones;
};

class Face final : public Named<gtm::Face> {
public:
    using gtm::Face::setFaceUses;
    using Named::Named;
};

class FaceUse final : public Named<gtm::FaceUse> {
public:
    using Named::Named;
    std::vector<gtm::ExternalFaceSide> zones;
};

/// Owns its regions.
class Topology final : public gtm::Topology {
public:
    explicit Topology(const kernel::Geometry& geometry);

    // In the order of the kernel; this is "the order of the topology" of which gtm/ speaks.
    std::vector<std::unique_ptr<Part>> m_parts;
    std::vector<std::unique_ptr<Body>> m_bodies;
    std::vector<std::unique_ptr<Face>> m_faces;
    std::vector<std::unique_ptr<FaceUse>> m_faceUses;
    std::unordered_map<std::string, gtm::Region*> m_byId;

private:
    FaceUse* addSide(Face* face, std::size_t solid, const std::vector<int>& meshZones);
};

class TopologyMap final : public gtm::TopologyMap {};

/// The location model over one geometry. It keeps nothing of the kernel's; one over a large kernel would keep pointers
/// to its solids and surfaces in the regions instead of copies of their names.
class Model final : public gtm::Model {
public:
    explicit Model(const kernel::Geometry& geometry);

    std::unique_ptr<Topology> m_topology;
    std::unique_ptr<TopologyMap> m_zones; ///< null before there is a mesh
};

} // namespace own
