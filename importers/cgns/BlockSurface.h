#pragma once

#include "importers/cgns/ZoneSurface.h"

#include <array>
#include <cstdint>
#include <optional>

namespace gtm::bundled {

/// The six sides of a structured zone.
class BlockSurface : public ZoneSurface {
public:
    explicit BlockSurface(const CgnsDescription::Zone& zone);

    std::size_t size() const override { return m_first.back(); }
    CellFaces cellFaces(const CgnsDescription::Selection& selection, const std::string& place) const override;

private:
    using Index = std::array<std::int64_t, 3>;

    CellFaces facesInRange(const CgnsDescription::Selection& selection, const std::string& place) const;
    CellFaces facesOfLayer(Index low, Index high) const;
    CellFaces facesInBox(std::size_t axis, const Index& low, const Index& high) const;
    CellFaces facesInList(const CgnsDescription::Selection& selection, const std::string& place) const;
    CellFaces facesOfVertices(const std::vector<Index>& vertices) const;
    std::optional<std::size_t> axisAcross(const CgnsDescription::Selection& selection, Index low, Index high) const;
    Index lastOf(CgnsDescription::Selection::Location location, std::optional<std::size_t> axis) const;
    void checkInside(const Index& low, const Index& high, const Index& last, const std::string& place) const;
    void add(std::size_t axis, const Index& face, CellFaces& faces) const;

    Index m_vertices;

    /// The number of the first cell face of each side (axis 0 low, axis 0 high, axis 1 low, ...), and of none.
    std::array<std::size_t, 7> m_first = {};
};

} // namespace gtm::bundled
