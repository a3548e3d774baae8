#include "examples/own-kernel/WorkingCopy.h"

#include <algorithm>

namespace own {

WorkingCopy::WorkingCopy(gtm::VirtualTopology& owner, Topology& topology)
    : m_owner(owner), m_topology(topology), m_defaultInterior(std::make_unique<Interior>(*this, "rest", std::nullopt))
{}

std::pair<gtm::Interior*, gtm::Interior::State> WorkingCopy::createInterior(const std::string& name, Place place,
                                                                            bool enforceRestrictions)
{
    m_interiors.push_back(std::make_unique<Interior>(*this, name, std::move(place)));
    const gtm::Interior::State state = m_interiors.back()->placementState();
    if (!enforceRestrictions || state == gtm::Interior::State::Valid)
        return {m_interiors.back().get(), state};
    m_interiors.pop_back();
    return {nullptr, state};
}

std::pair<gtm::Interface*, gtm::Interface::State>
WorkingCopy::createInterface(const std::string& name, gtm::Interface::Sides sides, bool enforceRestrictions)
{
    if (!areOurs(sides.first) || !areOurs(sides.second))
        return {nullptr, gtm::Interface::State::InconsistentBoundaries};
    m_interfaces.push_back(std::make_unique<Interface>(*this, name, std::move(sides)));
    const gtm::Interface::State state = m_interfaces.back()->state();
    if (!enforceRestrictions || state == gtm::Interface::State::Valid)
        return {m_interfaces.back().get(), state};
    m_interfaces.pop_back();
    return {nullptr, state};
}

void WorkingCopy::end(const Interior* interior)
{
    const auto owned =
        std::find_if(m_interiors.begin(), m_interiors.end(), [=](const auto& each) { return each.get() == interior; });
    (*owned)->endBoundaries();
    m_interiors.erase(owned);
}

void WorkingCopy::end(const gtm::Interface* interface)
{
    m_interfaces.erase(std::find_if(m_interfaces.begin(), m_interfaces.end(),
                                    [=](const auto& each) { return each.get() == interface; }));
}

void WorkingCopy::endInterfacesOf(gtm::Boundary* boundary)
{
    const auto hasIt = [=](const auto& each) {
        return each->m_sides.first.count(boundary) != 0 || each->m_sides.second.count(boundary) != 0;
    };
    m_interfaces.erase(std::remove_if(m_interfaces.begin(), m_interfaces.end(), hasIt), m_interfaces.end());
}

void WorkingCopy::clear()
{
    m_interfaces.clear();
    m_interiors.clear();
    m_defaultInterior->endBoundaries();
    m_isDefaultInteriorActive = false;
    m_masked.clear();
}

std::vector<Interior*> WorkingCopy::interiors() const
{
    std::vector<Interior*> interiors;
    for (const auto& interior : m_interiors)
        interiors.push_back(interior.get());
    if (m_isDefaultInteriorActive)
        interiors.push_back(m_defaultInterior.get());
    return interiors;
}

std::vector<gtm::Boundary*> WorkingCopy::boundaries() const
{
    std::vector<gtm::Boundary*> all;
    for (const Interior* interior : interiors())
        for (gtm::Boundary* boundary : interior->boundaries())
            all.push_back(boundary);
    return all;
}

bool WorkingCopy::areOurs(const std::set<gtm::Boundary*>& boundaries) const
{
    std::set<const gtm::Boundary*> all;
    const auto add = [&](const Interior& interior) {
        all.insert(interior.m_defaultBoundary.get());
        for (const auto& boundary : interior.m_boundaries)
            all.insert(boundary.get());
    };
    add(*m_defaultInterior);
    for (const auto& interior : m_interiors)
        add(*interior);
    return std::all_of(boundaries.begin(), boundaries.end(), [&](auto* boundary) { return all.count(boundary) != 0; });
}

} // namespace own
