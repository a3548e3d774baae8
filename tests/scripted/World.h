#pragma once

#include "gtm/LocationModel.h"
#include "tests/scripted/Answers.h"
#include "tests/scripted/Topology.h"

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace scripted {

class WorkingCopy;

/// A face with its two sides; `second` is null for a face with one side only.
struct FaceWithUses {
    gtm::Face* face;
    gtm::FaceUse* first;
    gtm::FaceUse* second;
};

/// A small geometry, and a location model over it which says what a test wants to hear. It owns the
/// model and the topology and must live longer than every `gtm::VirtualTopology` over it.
///
/// Left alone it is kind: every location is accepted and every state is valid. The terms of a location
/// (separated by commas) which are ids of regions resolve to these regions; other terms to nothing.
class World {
public:
    World();
    ~World();
    World(const World&) = delete;
    World& operator=(const World&) = delete;

    const gtm::Model* model() const { return &m_model; }

    gtm::Part* part(const std::string& id);
    gtm::Body* body(const std::string& id, gtm::Part* part = nullptr);

    /// The face uses get the ids "FACE@BODY"; the second within one body "FACE@BODY#2".
    FaceWithUses face(const std::string& id, gtm::Body* first, gtm::Body* second = nullptr);

    /// A face whose face uses have ids of their own: pairs of body and id.
    using NamedSide = std::pair<gtm::Body*, std::string>;
    FaceWithUses face(const std::string& id, const NamedSide& first, const NamedSide& second = {});

    /// The solver zones; a world that was given none still has a (then empty) zone map.
    void zones(gtm::Body* body, const std::vector<int>& zoneIds);
    void sideZones(gtm::FaceUse* faceUse, const std::vector<gtm::ExternalFaceSide>& sides);
    void withoutZoneMap();

    /// What `gtm::Topology::parts` and `gtm::Part::bodies` answer from now on; null is allowed.
    void answerParts(const std::vector<gtm::Part*>& parts);
    void answerBodies(gtm::Part* part, const std::vector<gtm::Body*>& bodies);

    /// The virtual topologies are numbered in the order in which they were made, from 0. Their answers
    /// can be set before they exist.
    VirtualTopologyAnswers& answers(std::size_t virtualTopology = 0);

    /// Null when it has not been made yet or has ended.
    gtm::VirtualTopology* virtualTopology(std::size_t index = 0) const;
    std::size_t noOfVirtualTopologiesMade() const { return m_workingCopies.size(); }

    /// The first living entity with this name, the default ones included when they are active, or null.
    gtm::Interior* interior(const std::string& name, std::size_t topology = 0) const;
    gtm::Boundary* boundary(const std::string& name, std::size_t topology = 0) const;
    gtm::Interface* interface(const std::string& name, std::size_t topology = 0) const;

    /// Changes every name that an entity is given at its creation or by a renaming.
    void nameHook(std::function<std::string(const std::string&)> hook) { m_nameHook = std::move(hook); }

    /// The states that nobody has set are found out from the locations instead of being valid; with
    /// restrictions enforced, anything but valid is refused.
    void judgeStates() { m_isJudging = true; }

    /// Makes the `nth` call from now of an operation ("createInterior", "createBoundary",
    /// "createInterface", "destroy", "relocate", "remove", "rename", "name", "mask", "unmask",
    /// "setMaskedBodies", "activateDefaultInterior", "activateDefaultBoundary", "clear", "faceUses" of a boundary)
    /// throw `std::runtime_error` before it does anything.
    void throwOn(const std::string& operation, int nth = 1) { m_throwing[operation] = nth; }
    void throwOnNothing() { m_throwing.clear(); }

    /// The changes asked for, in order, such as
    ///     createInterior("fluid", "b1", false, true)
    ///     interior "fluid": createBoundary("wall", [f1, f2], true)
    ///     interface "shared": relocate(["hot"], ["cold"], true)
    /// Those of any but the first virtual topology begin with its number: "#1 clear()".
    const std::vector<std::string>& calls() const { return m_calls; }

    /// The same, and the record begins anew.
    std::vector<std::string> takeCalls() { return std::exchange(m_calls, {}); }

    /// Stops the record, for measurements.
    void recordNoCalls() { m_isRecording = false; }

private:
    friend class WorkingCopy;

    void throwIfAsked(const char* operation);
    std::string nameFor(const std::string& name) const { return m_nameHook ? m_nameHook(name) : name; }

    Model m_model;
    std::vector<WorkingCopy*> m_workingCopies;
    std::map<std::size_t, VirtualTopologyAnswers> m_answers;
    std::function<std::string(const std::string&)> m_nameHook;
    std::map<std::string, int> m_throwing;
    std::vector<std::string> m_calls;
    bool m_isJudging = false;
    bool m_isRecording = true;
};

} // namespace scripted
