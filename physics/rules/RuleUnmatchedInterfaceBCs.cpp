#include "physics/rules/RuleUnmatchedInterfaceBCs.h"

#include "physics/Boundary.h"
#include "physics/TypeNames.h"
#include "physics/Volume.h"

#include <utility>

namespace physics {

void RuleUnmatchedInterfaceBCs::lookAt(const Boundary* boundary, bool ignoreWarnings)
{
    if (ignoreWarnings || !boundary->hasTag(BoundaryTag::Interface) || boundary->noOfInterfaces() > 0)
        return;
    if (m_lines.empty())
        m_lines.emplace_back("The following boundaries have been tagged for use in an\n"
                             "interface but do not appear in one:\n");
    m_lines.push_back(" Boundary " + boundary->name() + " of type " + displayName(boundary->type()) + " bounding " +
                      boundary->volume()->name() + ".\n");
}

std::vector<std::string> RuleUnmatchedInterfaceBCs::conclude()
{
    if (!m_lines.empty())
        m_lines.emplace_back("This problem SHOULD be fixed before the solution can proceed.");
    return std::exchange(m_lines, {});
}

} // namespace physics
