#pragma once

#include "gtm/Location.h"

#include <functional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace scripted {

class Topology;

/// Where something is put: a location string or a list of regions.
using Place = std::variant<std::string, std::vector<gtm::Region*>>;

class Location final : public gtm::Location {
public:
    /// `primitives` answers what the owner of the location stands for at the moment.
    Location(const Topology& topology, Place place, std::function<std::vector<gtm::Region*>()> primitives);
    ~Location() = default;

    const Place& place() const { return m_place; }
    void place(Place place) { m_place = std::move(place); }

    /// The regions that the location names; null entries and terms that name nothing are left out.
    std::vector<gtm::Region*> regions() const;

    /// The terms that name nothing.
    std::vector<std::string> unknownTerms() const;

    /// Takes the regions out of the list, or the terms out of the text; true when there were any.
    bool remove(const std::vector<gtm::Region*>& regions);

    std::vector<gtm::Region*> primitives() const { return m_primitives(); }

private:
    std::vector<std::string> terms() const;

    const Topology& m_topology;
    Place m_place;
    std::function<std::vector<gtm::Region*>()> m_primitives;
};

} // namespace scripted
