#pragma once

#include "gtm/VirtualTopology.h"
#include "tests/scripted/Interface.h"
#include "tests/scripted/Interior.h"
#include "tests/scripted/Location.h"
#include "tests/scripted/World.h"

#include <cstddef>
#include <list>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace scripted {

/// What stands behind a `gtm::VirtualTopology`: the entities in the order of their creation, the mask,
/// and the record of what was asked for.
class WorkingCopy {
public:
    WorkingCopy(gtm::VirtualTopology* virtualTopology, Topology& topology);
    ~WorkingCopy();

    gtm::VirtualTopology* virtualTopology() const { return m_virtualTopology; }
    Topology& topology() const { return m_topology; }
    VirtualTopologyAnswers& answers() { return m_topology.m_world.answers(m_index); }
    bool isJudging() const { return m_topology.m_world.m_isJudging; }
    std::string nameFor(const std::string& name) const { return m_topology.m_world.nameFor(name); }

    /// As messages of the record name the virtual topology: not at all.
    static std::string subject() { return {}; }

    /// Records a change that was asked for, and throws when the test wants it to. `asked` is the entity that was
    /// asked, or the working copy itself.
    template <class Asked, class... Arguments>
    void called(const Asked& asked, const char* operation, const Arguments&... arguments);
    void throwIfAsked(const char* operation) const { m_topology.m_world.throwIfAsked(operation); }

    std::pair<gtm::Interior*, gtm::Interior::State> createInterior(const std::string& name, Place place,
                                                                   bool enforceRestrictions);
    std::pair<gtm::Interface*, gtm::Interface::State>
    createInterface(const std::string& name, gtm::Interface::Sides sides, bool enforceRestrictions);
    void end(Interior* interior);
    void end(Interface* interface);
    void clear();

    Interior* defaultInterior() const { return m_defaultInterior.get(); }

    /// Those with a location of their own, then the default one when it is active.
    std::vector<Interior*> interiors() const;
    std::vector<Interface*> interfaces() const;
    std::size_t noOfInterfaces() const { return m_interfaces.size(); }

    bool isMasked(const gtm::Body* body) const { return m_masked.contains(body); }
    bool isMasked(const gtm::FaceUse* faceUse) const { return isMasked(faceUse->body()); }
    bool isMasked(const gtm::Face* face) const;
    void mask(const std::vector<gtm::Body*>& bodies, bool isMasked);
    void unmaskAll() { m_masked.clear(); }

    bool m_isDefaultInteriorActive = false;

private:
    bool areOurs(const std::set<gtm::Boundary*>& boundaries) const;

    gtm::VirtualTopology* m_virtualTopology;
    Topology& m_topology;
    std::size_t m_index;
    std::set<const gtm::Body*> m_masked;
    mutable std::list<Interior> m_interiors; // as with pointers: a constant copy hands out entities to change
    std::unique_ptr<Interior> m_defaultInterior;
    mutable std::list<Interface> m_interfaces;
};

// The arguments of a call as the record shows them.
std::string shown(const std::string& text);
std::string shown(const char* text);
std::string shown(bool flag);
std::string shown(int number);
std::string shown(const Place& place);
std::string shown(const std::vector<gtm::Region*>& regions);
std::string shown(const std::vector<gtm::Body*>& bodies);
std::string shown(const std::set<gtm::Boundary*>& boundaries);

template <class Asked, class... Arguments>
void WorkingCopy::called(const Asked& asked, const char* operation, const Arguments&... arguments)
{
    World& world = m_topology.m_world;
    if (world.m_isRecording) {
        const std::string subject = asked.subject();
        std::string list;
        ((list += (list.empty() ? "" : ", ") + shown(arguments)), ...);
        const std::string number = m_index == 0 ? "" : "#" + std::to_string(m_index) + " ";
        world.m_calls.push_back(number + (subject.empty() ? "" : subject + ": ") + operation + "(" + list + ")");
    }
    world.throwIfAsked(operation);
}

} // namespace scripted
