#pragma once

#include "gtm/Body.h"
#include "gtm/Face.h"
#include "gtm/FaceUse.h"
#include "gtm/Model.h"
#include "gtm/Part.h"
#include "gtm/Topology.h"
#include "gtm/TopologyMap.h"

#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace scripted {

class World;

/// What every region carries: its id and its place in the order of its kind.
struct Label {
    std::string id;
    std::size_t order = 0;
};

class Part final : public gtm::Part {
public:
    explicit Part(Label label) : m_label(std::move(label)) {}
    ~Part() override = default;
    std::string id() const override { return m_label.id; }

    std::vector<gtm::Body*> m_bodies;

private:
    Label m_label;
};

class Body final : public gtm::Body {
public:
    Body(Label label, Part* part) : m_part(part), m_label(std::move(label)) {}
    ~Body() override = default;
    std::string id() const override { return m_label.id; }
    std::size_t order() const { return m_label.order; }

    Part* m_part;
    std::vector<gtm::FaceUse*> m_faceUses;
    std::vector<gtm::ExternalBody> m_zones;

private:
    Label m_label;
};

class Face final : public gtm::Face {
public:
    explicit Face(Label label) : m_label(std::move(label)) {}
    ~Face() override = default;
    std::string id() const override { return m_label.id; }
    std::size_t order() const { return m_label.order; }
    using gtm::Face::setFaceUses;

private:
    Label m_label;
};

class FaceUse final : public gtm::FaceUse {
public:
    FaceUse(Label label, gtm::Face* face, gtm::Body* body) : gtm::FaceUse(face, body), m_label(std::move(label)) {}
    ~FaceUse() override = default;
    std::string id() const override { return m_label.id; }
    std::size_t order() const { return m_label.order; }

    std::vector<gtm::ExternalFaceSide> m_zones;

private:
    Label m_label;
};

inline Body* scriptedOf(gtm::Body* body) { return static_cast<Body*>(body); }
inline const Body* scriptedOf(const gtm::Body* body) { return static_cast<const Body*>(body); }
inline Face* scriptedOf(gtm::Face* face) { return static_cast<Face*>(face); }
inline FaceUse* scriptedOf(gtm::FaceUse* faceUse) { return static_cast<FaceUse*>(faceUse); }
inline const FaceUse* scriptedOf(const gtm::FaceUse* faceUse) { return static_cast<const FaceUse*>(faceUse); }

class Topology final : public gtm::Topology {
public:
    explicit Topology(World& world) : m_world(world) {}

    Part* addPart(const std::string& id);
    Body* addBody(const std::string& id, Part* part);
    Face* addFace(const std::string& id);
    FaceUse* addFaceUse(const std::string& id, Face* face, Body* body);

    World& m_world;
    std::vector<gtm::Part*> m_parts;
    std::vector<gtm::Body*> m_bodies;
    std::vector<gtm::Face*> m_faces;
    std::vector<gtm::FaceUse*> m_faceUses;
    std::map<std::string, gtm::Region*> m_regions;

private:
    template <class Kind, class... Arguments>
    Kind* add(std::vector<std::unique_ptr<Kind>>& owner, const std::string& id, Arguments... arguments);

    std::vector<std::unique_ptr<Part>> m_ownedParts;
    std::vector<std::unique_ptr<Body>> m_ownedBodies;
    std::vector<std::unique_ptr<Face>> m_ownedFaces;
    std::vector<std::unique_ptr<FaceUse>> m_ownedFaceUses;
};

class TopologyMap final : public gtm::TopologyMap {};

class Model final : public gtm::Model {
public:
    explicit Model(World& world) : m_topology(world) {}

    // Read through const access by the library, which never changes them.
    mutable Topology m_topology;
    mutable std::optional<TopologyMap> m_zoneMap;
};

} // namespace scripted
