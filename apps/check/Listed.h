#pragma once

#include "physics/Physics.h"

#include <vector>

namespace physics::apps {

/// The lists of a set-up, made once: each request for one walks the whole set-up.
struct Listed {
    explicit Listed(const Physics& listed)
        : physics(listed), volumes(listed.volumes()), boundaries(listed.boundaries()), interfaces(listed.interfaces())
    {}

    const Physics& physics;
    const std::vector<Volume*> volumes;
    const std::vector<Boundary*> boundaries;
    const std::vector<Interface*> interfaces;
};

} // namespace physics::apps
