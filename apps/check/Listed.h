#pragma once

#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/Physics.h"
#include "physics/Volume.h"

#include <vector>

namespace physics::apps {

/// The lists of a set-up, made once: each request for one walks the whole set-up. At the end of each stand the
/// objects that the set-up does not list, because another has their name; a check passes over nothing.
struct Listed {
    explicit Listed(const Physics& listed)
        : physics(listed),
          unlisted(listed.unlistedRegions()),
          volumes(withUnlisted(listed.volumes())),
          boundaries(withUnlisted(listed.boundaries())),
          interfaces(withUnlisted(listed.interfaces()))
    {}

    const Physics& physics;
    const std::vector<Region*> unlisted;
    const std::vector<Volume*> volumes;
    const std::vector<Boundary*> boundaries;
    const std::vector<Interface*> interfaces;

private:
    template <class T>
    std::vector<T*> withUnlisted(std::vector<T*> regions) const
    {
        for (Region* region : unlisted) {
            if (auto* more = dynamic_cast<T*>(region)) {
                regions.push_back(more);
            }
        }
        return regions;
    }
};

} // namespace physics::apps
