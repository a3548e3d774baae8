#pragma once

#include "gtm/Location.h"

#include "examples/own-kernel/Topology.h"

#include <functional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace own {

/// Where something is to lie: a location string, here ids separated by commas, or a list of regions.
using Place = std::variant<std::string, std::vector<gtm::Region*>>;

class Location final : public gtm::Location {
public:
    using Resolve = std::function<std::vector<gtm::Region*>()>;

    /// `resolve` tells what the owner of the location stands for at the moment.
    Location(const Topology& topology, Place place, Resolve resolve)
        : m_place(std::move(place)), m_resolve(std::move(resolve)), m_topology(topology)
    {}
    ~Location() = default;

    /// The regions that are listed or named, in that order.
    std::vector<gtm::Region*> regions() const;

    /// The terms of a location string that are the id of nothing.
    std::vector<std::string> unresolvableNames() const;

    Place m_place;
    Resolve m_resolve;

private:
    const Topology& m_topology;
};

} // namespace own
