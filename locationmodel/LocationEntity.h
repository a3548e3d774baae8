#pragma once

#include "gtm/Location.h"
#include "locationmodel/LocationText.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace gtm::bundled {

/// Where something was asked to lie: a location string or a list of regions.
struct Wish {
    explicit Wish(const std::string& location) : isImplicit(true), text(trimmed(location)) {}

    explicit Wish(const std::vector<Region*>& listed) : isImplicit(false)
    {
        for (Region* region : listed) {
            if (region != nullptr) {
                regions.push_back(region);
            }
        }
    }

    std::vector<LocationTerm> terms(const ModelTopology& topology) const
    {
        return isImplicit ? readLocation(text) : listLocation(regions, topology);
    }

    bool isImplicit;
    std::string text;             ///< empty for a list
    std::vector<Region*> regions; ///< empty for a location string
};

/// The location of one entity, which changes with it.
class LocationEntity final : public Location {
public:
    /// `resolve` lists what the entity stands for now.
    LocationEntity(Wish itsWish, std::function<std::vector<Region*>()> resolve)
        : wish(std::move(itsWish)), m_resolve(std::move(resolve))
    {}

    std::vector<Region*> resolved() const { return m_resolve(); }

    Wish wish;

private:
    std::function<std::vector<Region*>()> m_resolve;
};

} // namespace gtm::bundled
