#include "importers/cgns/CgnsNode.h"

#include <algorithm>

namespace gtm::bundled {

const CgnsNode* findLabel(const CgnsNodes& nodes, const std::string& label)
{
    const auto found =
        std::find_if(nodes.begin(), nodes.end(), [&](const auto& node) { return node->label() == label; });
    return found == nodes.end() ? nullptr : found->get();
}

const CgnsNode* findName(const CgnsNodes& nodes, const std::string& name)
{
    const auto found = std::find_if(nodes.begin(), nodes.end(), [&](const auto& node) { return node->name() == name; });
    return found == nodes.end() ? nullptr : found->get();
}

} // namespace gtm::bundled
