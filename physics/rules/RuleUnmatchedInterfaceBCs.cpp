#include "physics/rules/RuleUnmatchedInterfaceBCs.h"

#include "physics/Boundary.h"
#include "physics/Physics.h"
#include "physics/TypeNames.h"
#include "physics/Volume.h"

namespace physics {

std::vector<std::string> RuleUnmatchedInterfaceBCs::checkPhysics(const Physics* physics, bool ignoreWarnings)
{
    std::vector<std::string> lines;
    if (ignoreWarnings)
        return lines;
    for (const Boundary* boundary : physics->boundaries()) {
        if (!boundary->hasTag(BoundaryTag::Interface) || boundary->noOfInterfaces() > 0)
            continue;
        if (lines.empty())
            lines.emplace_back("The following boundaries have been tagged for use in an\n"
                               "interface but do not appear in one:\n");
        lines.push_back(" Boundary " + boundary->name() + " of type " + displayName(boundary->type()) + " bounding " +
                        boundary->volume()->name() + ".\n");
    }
    if (!lines.empty())
        lines.emplace_back("This problem SHOULD be fixed before the solution can proceed.");
    return lines;
}

} // namespace physics
