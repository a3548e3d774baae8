#include "benchmarks/Geometry.h"

#include "tests/scripted/World.h"

#include <vector>

namespace benchmarks {

class Geometry::Implementation {
public:
    scripted::World world;
};

Geometry::Geometry(std::int64_t noOfBodies) : m_implementation(std::make_unique<Implementation>())
{
    scripted::World& world = m_implementation->world;
    world.recordNoCalls();
    std::vector<gtm::Body*> bodies;
    for (std::int64_t i = 0; i < noOfBodies; ++i) {
        bodies.push_back(world.body(body(i)));
        if (i == 0)
            world.face(joint(i), bodies[0]);
        else
            world.face(joint(i), *(bodies.end() - 2), bodies.back());
        for (int k = 0; k < wallsOfBody; ++k)
            world.face(wall(i, k), bodies.back());
    }
    world.face(joint(noOfBodies), bodies.back());
}

Geometry::~Geometry() = default;

const gtm::Model* Geometry::model() const { return m_implementation->world.model(); }

} // namespace benchmarks
