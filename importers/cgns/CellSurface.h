#pragma once

#include "importers/cgns/ZoneSurface.h"

#include <array>
#include <cstdint>
#include <map>
#include <unordered_map>

namespace gtm::bundled {

/// The surface of an unstructured zone: the cell faces that bound one cell only. Corners tell cell faces
/// apart; nodes on edges and inside of curved elements do not matter.
class CellSurface : public ZoneSurface {
public:
    explicit CellSurface(const CgnsDescription::Zone& zone);

    static bool isPolyhedral(const CgnsDescription::Section& section);

    std::size_t size() const override { return m_corners.size(); }
    CellFaces cellFaces(const CgnsDescription::Selection& selection, const std::string& place) const override;

private:
    /// In ascending order; the first is 0 for a triangle.
    using Corners = std::array<std::int64_t, 4>;

    struct CornersHash {
        std::size_t operator()(const Corners& corners) const;
    };

    struct Element {
        std::int64_t type;
        const std::int64_t* nodes;
    };

    /// A run of elements, by the number of the first.
    struct Run {
        std::int64_t last;
        std::vector<Element> elements;
    };

    void addSection(const CgnsDescription::Section& section);
    void numberSurface();
    const Element* findElement(std::int64_t number) const;
    CellFaces facesOfElements(const CgnsDescription::Selection& selection, const std::string& place) const;
    CellFaces facesOfVertices(const CgnsDescription::Selection& selection, const std::string& place) const;

    const CgnsDescription::Zone& m_zone;
    std::int64_t m_noOfVertices;
    std::map<std::int64_t, Run> m_runs;
    std::size_t m_noOfElements = 0;

    /// Each cell face with the number of its cells, and then with its place in the surface or `inside`.
    static constexpr std::size_t inside = static_cast<std::size_t>(-1);
    std::unordered_map<Corners, std::size_t, CornersHash> m_faces;
    std::vector<Corners> m_corners;

    /// Cell faces of the surface at each vertex: those of vertex v are between the v-th and the next start.
    std::vector<std::size_t> m_startAtVertex;
    std::vector<std::size_t> m_facesAtVertices;
};

} // namespace gtm::bundled
