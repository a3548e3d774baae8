#include "physics/rules/RuleAdjacentPhysics.h"

#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/TypeNames.h"
#include "physics/Volume.h"

namespace physics {

std::vector<std::string> RuleAdjacentPhysics::checkBoundary(const Boundary* boundary, bool /*ignoreWarnings*/)
{
    const Volume* volume = boundary->volume();
    if (volume->isAllowedBoundaryType(boundary->type()))
        return {};
    return {"A " + displayName(boundary->type()) + " boundary (" + boundary->name() + ") is adjacent to a " +
                displayName(volume->type()) + " volume (" + volume->name() + ").\n",
            "This problem MUST be fixed before the solution can proceed."};
}

std::vector<std::string> RuleAdjacentPhysics::checkInterface(const Interface* interface, bool /*ignoreWarnings*/)
{
    std::vector<std::string> lines;
    for (const Side side : {Side::First, Side::Second}) {
        const Boundary* boundary = interface->boundary(side);
        if (boundary == nullptr || interface->isAllowedBoundaryType(boundary->volumeType(), boundary->type()))
            continue;
        lines.push_back("The " + displayName(boundary->type()) + " boundary (" + boundary->name() + ") on side " +
                        (side == Side::First ? "0" : "1") + " of the " + displayName(interface->type()) +
                        " interface (" + interface->name() + ") is incompatible with it.\n");
    }
    // Worded and ended unlike the line of a boundary on purpose: tools tell the two apart by it.
    if (!lines.empty())
        lines.push_back((lines.size() == 1 ? "This" : "These") +
                        std::string(" problem MUST be fixed before solution can proceed.\n"));
    return lines;
}

} // namespace physics
