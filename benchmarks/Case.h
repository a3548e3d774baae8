#pragma once

#include "benchmarks/Geometry.h"
#include "physics/Physics.h"

#include <cstdint>

namespace benchmarks {

/// Fills an empty set-up with a sound case on a geometry of `noOfBodies` bodies: on each body a volume, ten
/// boundaries, an interface with the volume before it, a shell, and everything with its settings, one thread
/// bundle each and a zone of its own on each bundle.
void fill(physics::Physics& setUp, std::int64_t noOfBodies);

/// Volumes, boundaries, interfaces, patches, settings and bundles together.
std::int64_t noOfObjects(const physics::Physics& setUp);

/// Such a case with about `noOfBoundaries` boundaries, and what it lies on.
struct Case {
    explicit Case(std::int64_t noOfBoundaries) : geometry(noOfBoundaries / Geometry::faceUsesOfBody)
    {
        fill(setUp, noOfBoundaries / Geometry::faceUsesOfBody);
    }

    Geometry geometry;
    physics::Physics setUp{geometry.model(), false};
};

} // namespace benchmarks
