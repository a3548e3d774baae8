#pragma once

#include "importers/cgns/ElementNumbers.h"
#include "importers/cgns/VertexFaces.h"
#include "importers/cgns/ZoneSurface.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace gtm::bundled {

/// The surface of an unstructured zone of polyhedra: the polygons that bound one cell only. Which polygons bound
/// a cell is told by the cells or, where the file leaves these out, by the polygons.
class PolyhedraSurface : public ZoneSurface {
public:
    /// Throws `CgnsError` when the zone contradicts itself. Other elements only have their numbers.
    explicit PolyhedraSurface(const CgnsDescription::Zone& zone);

    /// Whether the elements are polygons or polyhedra.
    static bool isPolyhedral(const CgnsDescription::Section& section);

    /// Whether it is known which polygons bound a cell.
    bool hasCells() const { return m_hasCells; }

    std::size_t size() const override { return m_surface.size(); }
    CellFaces cellFaces(const CgnsDescription::Selection& selection, const std::string& place) const override;

private:
    using Numbers = std::span<const std::int64_t>;

    struct Polygon {
        Numbers corners; ///< empty for an element that is no polygon
        std::size_t noOfCells = 0;
        std::size_t place = 0; ///< in the surface, when it bounds one cell
    };

    std::vector<Numbers> listsOf(const CgnsDescription::Section& section) const;
    void addPolygons(const CgnsDescription::Section& section);
    void addCells(const CgnsDescription::Section& section);
    void addParents(const CgnsDescription::Section& section);
    void numberSurface();

    std::int64_t m_noOfVertices;
    ElementNumbers m_numbers;
    bool m_hasCells = false;
    std::vector<Polygon> m_elements;    ///< polygons and cells by their places, which come before all others
    std::vector<std::size_t> m_surface; ///< places of its polygons
    std::optional<VertexFaces> m_atVertices;
};

} // namespace gtm::bundled
