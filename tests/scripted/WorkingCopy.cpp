#include "tests/scripted/WorkingCopy.h"

#include <algorithm>
#include <set>

namespace scripted {

WorkingCopy::WorkingCopy(gtm::VirtualTopology* virtualTopology, Topology& topology)
    : m_virtualTopology(virtualTopology),
      m_topology(topology),
      m_index(topology.m_world.m_workingCopies.size()),
      m_defaultInterior(std::make_unique<Interior>(*this, "default", std::nullopt))
{
    topology.m_world.m_workingCopies.push_back(this);
}

WorkingCopy::~WorkingCopy() { m_topology.m_world.m_workingCopies[m_index] = nullptr; }

std::pair<gtm::Interior*, gtm::Interior::State> WorkingCopy::createInterior(const std::string& name, Place place,
                                                                            bool enforceRestrictions)
{
    if (answers().refuseNextInterior) {
        return {nullptr, *std::exchange(answers().refuseNextInterior, std::nullopt)};
    }
    Interior& interior = m_interiors.emplace_back(*this, nameFor(name), std::move(place));
    interior.m_self = std::prev(m_interiors.end());
    const gtm::Interior::State state = interior.placementState();
    if (enforceRestrictions && state != gtm::Interior::State::Valid) {
        m_interiors.erase(interior.m_self);
        return {nullptr, state};
    }
    return {&interior, state};
}

std::pair<gtm::Interface*, gtm::Interface::State>
WorkingCopy::createInterface(const std::string& name, gtm::Interface::Sides sides, bool enforceRestrictions)
{
    if (answers().refuseNextInterface) {
        return {nullptr, *std::exchange(answers().refuseNextInterface, std::nullopt)};
    }
    if (!areOurs(sides.first) || !areOurs(sides.second)) {
        return {nullptr, gtm::Interface::State::Inconsistent};
    }
    Interface& interface = m_interfaces.emplace_back(*this, nameFor(name), std::move(sides));
    interface.m_self = std::prev(m_interfaces.end());
    const gtm::Interface::State state = interface.state();
    if (enforceRestrictions && state != gtm::Interface::State::Valid) {
        m_interfaces.erase(interface.m_self);
        return {nullptr, state};
    }
    return {&interface, state};
}

bool WorkingCopy::areOurs(const std::set<gtm::Boundary*>& boundaries) const
{
    return std::all_of(boundaries.begin(), boundaries.end(), [this](const gtm::Boundary* boundary) {
        return boundary && &scriptedOf(boundary)->owner().copy() == this;
    });
}

void WorkingCopy::end(Interior* interior)
{
    interior->endBoundaries();
    m_interiors.erase(interior->m_self);
}

void WorkingCopy::end(Interface* interface) { m_interfaces.erase(interface->m_self); }

void WorkingCopy::clear()
{
    m_interfaces.clear();
    m_interiors.clear();
    m_defaultInterior->endBoundaries();
    m_isDefaultInteriorActive = false;
    unmaskAll();
}

std::vector<Interior*> WorkingCopy::interiors() const
{
    std::vector<Interior*> interiors;
    for (Interior& interior : m_interiors) {
        interiors.push_back(&interior);
    }
    if (m_isDefaultInteriorActive) {
        interiors.push_back(m_defaultInterior.get());
    }
    return interiors;
}

std::vector<Interface*> WorkingCopy::interfaces() const
{
    std::vector<Interface*> interfaces;
    for (Interface& interface : m_interfaces) {
        interfaces.push_back(&interface);
    }
    return interfaces;
}

bool WorkingCopy::isMasked(const gtm::Face* face) const
{
    return isMasked(face->firstFaceUse()) && (!face->secondFaceUse() || isMasked(face->secondFaceUse()));
}

void WorkingCopy::mask(const std::vector<gtm::Body*>& bodies, bool isMasked)
{
    for (const gtm::Body* body : bodies) {
        if (isMasked && body) {
            m_masked.insert(body);
        } else {
            m_masked.erase(body);
        }
    }
}

std::string shown(const std::string& text) { return "\"" + text + "\""; }

std::string shown(const char* text) { return shown(std::string(text)); }

std::string shown(bool flag) { return flag ? "true" : "false"; }

std::string shown(int number) { return std::to_string(number); }

std::string shown(const Place& place)
{
    return std::visit([](const auto& textOrRegions) { return shown(textOrRegions); }, place);
}

namespace {

template <class Region>
std::string idList(const std::vector<Region*>& regions)
{
    std::string list;
    for (const Region* region : regions) {
        list += (list.empty() ? "" : ", ") + (region ? region->id() : "null");
    }
    return "[" + list + "]";
}

} // namespace

std::string shown(const std::vector<gtm::Region*>& regions) { return idList(regions); }

std::string shown(const std::vector<gtm::Body*>& bodies) { return idList(bodies); }

std::string shown(const std::set<gtm::Boundary*>& boundaries)
{
    std::set<std::string> names;
    for (const gtm::Boundary* boundary : boundaries) {
        names.insert(boundary ? shown(scriptedOf(boundary)->m_name) : "null"); // no question, which might throw
    }
    std::string list;
    for (const std::string& name : names) {
        list += (list.empty() ? "" : ", ") + name;
    }
    return "[" + list + "]";
}

} // namespace scripted
