#pragma once

#include "apps/check/Finding.h"

#include <vector>

namespace physics {
class Boundary;
class Interface;
class Physics;
class Volume;
} // namespace physics

namespace physics::apps {

/// Says what is wrong with a set-up, object by object, so that all that is asked about an object is asked while it is
/// at hand.
class Examiner {
public:
    virtual ~Examiner() = default;

    /// What is about no volume, boundary or interface.
    virtual std::vector<Finding> about(const Physics& setUp) = 0;
    virtual std::vector<Finding> about(const Volume& volume) = 0;
    virtual std::vector<Finding> about(const Boundary& boundary) = 0;
    virtual std::vector<Finding> about(const Interface& interface) = 0;
};

} // namespace physics::apps
