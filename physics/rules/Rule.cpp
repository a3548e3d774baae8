#include "physics/rules/Rule.h"

#include "physics/Physics.h"

namespace physics {

std::vector<std::string> Rule::checkPhysics(const Physics* physics, bool ignoreWarnings)
{
    for (const Boundary* boundary : physics->boundaries())
        lookAt(boundary, ignoreWarnings);
    return conclude();
}

} // namespace physics
