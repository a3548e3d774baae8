#include "importers/cgns/Coverage.h"

#include "support/InQuotes.h"

namespace gtm::bundled {

using support::inQuotes;

void Coverage::add(const std::string& name, const std::vector<std::size_t>& cellFaces)
{
    const std::size_t patch = m_names.size();
    m_names.push_back(name);
    for (const std::size_t cellFace : cellFaces) {
        std::size_t& owner = m_owner[cellFace];
        if (owner == nobody) {
            owner = patch;
            ++m_noOfCovered;
        } else if (owner != patch) {
            ++m_overlaps[{owner, patch}];
        }
    }
}

std::vector<std::string> Coverage::overlaps(const std::string& zone) const
{
    std::vector<std::string> sentences;
    for (const auto& [patches, count] : m_overlaps) {
        sentences.push_back("Zone " + inQuotes(zone) + ": " + std::to_string(count) +
                            " cell faces of its surface are in " + inQuotes(m_names[patches.first]) + " and in " +
                            inQuotes(m_names[patches.second]) + " too; check which of the two they belong to.");
    }
    return sentences;
}

} // namespace gtm::bundled
