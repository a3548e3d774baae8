#pragma once

#include "importers/cgns/ElementNumbers.h"
#include "importers/cgns/VertexFaces.h"
#include "importers/cgns/ZoneSurface.h"

#include <array>
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

namespace gtm::bundled {

struct ElementKind;

/// The surface of an unstructured zone of tetrahedra, pyramids, prisms and hexahedra: the cell faces that bound
/// one cell only. Corners tell cell faces apart; nodes on edges and inside of curved elements do not matter.
class CellSurface : public ZoneSurface {
public:
    /// Throws `CgnsError` when the zone contradicts itself. Polygons and polyhedra are passed over.
    explicit CellSurface(const CgnsDescription::Zone& zone);

    /// Whether the zone has a cell of these kinds at all.
    bool hasCells() const { return !m_faces.empty(); }

    std::size_t size() const override { return m_corners.size(); }
    CellFaces cellFaces(const CgnsDescription::Selection& selection, const std::string& place) const override;

private:
    /// In ascending order; the first is 0 for a triangle.
    using Corners = std::array<std::int64_t, 4>;

    struct CornersHash {
        std::size_t operator()(const Corners& corners) const;
    };

    struct Element {
        const ElementKind* kind;
        const std::int64_t* nodes;
    };

    void addSection(const CgnsDescription::Section& section);
    Element readElement(const CgnsDescription::Section& section, std::size_t& at) const;
    void numberSurface();
    CellFaces facesOfElements(const CgnsDescription::Selection& selection, const std::string& place) const;
    CellFaces facesOfVertices(const CgnsDescription::Selection& selection, const std::string& place) const;

    std::int64_t m_noOfVertices;
    ElementNumbers m_numbers;
    std::vector<Element> m_elements;

    /// Each cell face with the number of its cells, and then with its place in the surface or `inside`.
    static constexpr std::size_t inside = static_cast<std::size_t>(-1);
    std::unordered_map<Corners, std::size_t, CornersHash> m_faces;
    std::vector<Corners> m_corners;
    std::optional<VertexFaces> m_atVertices;
};

} // namespace gtm::bundled
