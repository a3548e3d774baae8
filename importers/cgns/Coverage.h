#pragma once

#include "importers/cgns/ZoneSurface.h"

#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace gtm::bundled {

/// Which cell faces of a zone's surface are in which patch.
class Coverage {
public:
    explicit Coverage(std::size_t noOfCellFaces) : m_owner(noOfCellFaces, nobody) {}

    /// `name` is what the patch is called in notes.
    void add(const std::string& name, const std::vector<std::size_t>& cellFaces);

    std::size_t size() const { return m_owner.size(); }
    std::size_t noOfUncovered() const { return m_owner.size() - m_noOfCovered; }

    /// One sentence for each two patches that have cell faces in common, in the order of the patches.
    std::vector<std::string> overlaps(const std::string& zone) const;

private:
    static constexpr std::size_t nobody = static_cast<std::size_t>(-1);

    std::vector<std::string> m_names;
    std::vector<std::size_t> m_owner;
    std::size_t m_noOfCovered = 0;
    std::map<std::pair<std::size_t, std::size_t>, std::size_t> m_overlaps;
};

} // namespace gtm::bundled
