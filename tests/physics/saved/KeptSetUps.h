#pragma once

#include "tests/physics/saved/Geometry.h"

#include <ostream>
#include <string>
#include <vector>

namespace physics {

class Physics;

/// A set-up on the small geometry whose text is kept in `tests/data/saved/`.
struct KeptSetUp {
    std::string name;
    void (*make)(Physics& physics, const Geometry& geometry);

    friend std::ostream& operator<<(std::ostream& stream, const KeptSetUp& setUp) { return stream << setUp.name; }
};

/// Together they take every kind of record and of location.
std::vector<KeptSetUp> keptSetUps();

} // namespace physics
