#pragma once

#include "gtm/Export.h"

#include <string>
#include <utility>
#include <vector>

namespace gtm {

class Region;

/// The regions that a location was made of, as a value.
class Regions {
public:
    Regions() = default;

    /// Takes the regions as they come.
    explicit Regions(std::vector<Region*> regions) : m_regions(std::move(regions)) {}

    /// In the order in which the location names them; not owned.
    const std::vector<Region*>& regions() const { return m_regions; }

private:
    std::vector<Region*> m_regions;
};

/// The primitive regions (bodies of an interior, face uses of a boundary) that a location stands for
/// at the moment, as a value.
class Primitives {
public:
    Primitives() = default;

    /// Takes the regions as they come: each once, in the order of the topology.
    explicit Primitives(std::vector<Region*> regions) : m_regions(std::move(regions)) {}

    /// Each region once, in the order of the topology; not owned.
    const std::vector<Region*>& regions() const { return m_regions; }

private:
    std::vector<Region*> m_regions;
};

/// Where an interior or a boundary lies. Owned by its entity and alive as long as that.
class GTM_EXPORT Location {
public:
    Location(const Location&) = delete;
    Location& operator=(const Location&) = delete;

    /// True when the location was given as a location string, false for a list of regions.
    bool isImplicit() const;

    /// The listed regions; empty for an implicit location.
    Regions components() const;

    /// What the location stands for now: the answer follows the mask and the topology.
    Primitives resolve() const;

    /// The text of the location: the location string as given but for blanks at its ends, or the ids of
    /// the listed regions joined by ", ". `resolved` asks for the ids of what it resolves to instead.
    std::string locationString(bool resolved) const;

protected:
    Location() = default;
    ~Location() = default;
};

} // namespace gtm
