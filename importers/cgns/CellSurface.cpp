#include "importers/cgns/CellSurface.h"

#include "importers/cgns/ElementKinds.h"
#include "importers/cgns/PolyhedraSurface.h"
#include "importers/cgns/SelectedNumbers.h"

#include <cgnslib.h>

#include <algorithm>

namespace gtm::bundled {

namespace {

using Section = CgnsDescription::Section;
using Selection = CgnsDescription::Selection;

std::array<std::int64_t, 4> cornersOf(const std::vector<std::size_t>& places, const std::int64_t* nodes)
{
    std::array<std::int64_t, 4> corners{};
    for (std::size_t i = 0; i < places.size(); ++i) {
        corners[i] = nodes[places[i]];
    }
    std::sort(corners.begin(), corners.end());
    return corners;
}

} // namespace

std::size_t CellSurface::CornersHash::operator()(const Corners& corners) const
{
    std::uint64_t hash = 0;
    for (const std::int64_t corner : corners) {
        hash = (hash ^ static_cast<std::uint64_t>(corner)) * 0x9E3779B97F4A7C15U;
        hash ^= hash >> 29U;
    }
    return static_cast<std::size_t>(hash);
}

CellSurface::CellSurface(const CgnsDescription::Zone& zone) : m_noOfVertices(zone.vertices.at(0)), m_numbers(zone)
{
    for (const Section& section : zone.sections) {
        if (!PolyhedraSurface::isPolyhedral(section)) {
            addSection(section);
        }
    }
    numberSurface();
    m_atVertices.emplace(m_noOfVertices, m_corners.size(), [this](std::size_t face) {
        const std::span<const std::int64_t> corners = m_corners[face];
        return corners.front() == 0 ? corners.subspan(1) : corners;
    });
}

void CellSurface::addSection(const Section& section)
{
    const std::size_t before = m_elements.size();
    for (std::size_t at = 0; at < section.connectivity.size();) {
        m_elements.push_back(readElement(section, at));
        const auto [kind, nodes] = m_elements.back();
        for (std::size_t i = 0; kind->isVolume && i < kind->faces.size(); ++i) {
            ++m_faces[cornersOf(kind->faces[i], nodes)];
        }
    }
    m_numbers.add(section, m_elements.size() - before);
}

/// The element at a place of the connectivity; moves the place behind it.
CellSurface::Element CellSurface::readElement(const Section& section, std::size_t& at) const
{
    const std::vector<std::int64_t>& data = section.connectivity;
    const std::int64_t type = section.type == CGNS_ENUMV(MIXED) ? data[at++] : section.type;
    const ElementKind* kind = elementKind(type);
    if (!kind) {
        m_numbers.refuse(section, "are of the unknown type " + std::to_string(type));
    }
    if (data.size() - at < kind->noOfNodes) {
        m_numbers.refuse(section, "end within an element");
    }
    const std::int64_t* nodes = data.data() + at;
    if (std::any_of(nodes, nodes + kind->noOfNodes,
                    [&](std::int64_t node) { return node < 1 || node > m_noOfVertices; })) {
        m_numbers.refuse(section, "use a vertex that the zone has not");
    }
    at += kind->noOfNodes;
    return {kind, nodes};
}

/// Numbers the cell faces in the order of the cells, which is the same on every run.
void CellSurface::numberSurface()
{
    for (const Element& element : m_elements) {
        for (std::size_t i = 0; element.kind->isVolume && i < element.kind->faces.size(); ++i) {
            const Corners corners = cornersOf(element.kind->faces[i], element.nodes);
            if (m_faces[corners] == 1) {
                m_corners.push_back(corners);
            }
        }
    }
    for (auto& [corners, face] : m_faces) {
        face = inside;
    }
    for (std::size_t i = 0; i < m_corners.size(); ++i) {
        m_faces[m_corners[i]] = i;
    }
}

ZoneSurface::CellFaces CellSurface::cellFaces(const Selection& selection, const std::string& place) const
{
    switch (selection.location) {
    case Selection::Location::Vertex:
        return facesOfVertices(selection, place);
    case Selection::Location::Face:
    case Selection::Location::Cell:
        return facesOfElements(selection, place);
    default:
        return {{}, 0, false};
    }
}

ZoneSurface::CellFaces CellSurface::facesOfElements(const Selection& selection, const std::string& place) const
{
    CellFaces faces;
    for (const std::int64_t number :
         selectedNumbers(selection, m_numbers.last(), m_numbers.size(), "elements", place)) {
        const std::optional<std::size_t> at = m_numbers.placeOf(number);
        const ElementKind* kind = at ? m_elements[*at].kind : nullptr;
        const bool isSurface = kind && !kind->isVolume && !kind->faces.empty();
        const auto found =
            isSurface ? m_faces.find(cornersOf(kind->faces.front(), m_elements[*at].nodes)) : m_faces.end();
        if (found == m_faces.end()) {
            faces.isKnown = false;
        } else if (found->second == inside) {
            ++faces.inner;
        } else {
            faces.surface.push_back(found->second);
        }
    }
    return faces;
}

ZoneSurface::CellFaces CellSurface::facesOfVertices(const Selection& selection, const std::string& place) const
{
    const auto noOfVertices = static_cast<std::size_t>(m_noOfVertices);
    return {m_atVertices->facesOn(selectedNumbers(selection, m_noOfVertices, noOfVertices, "vertices", place)), 0,
            true};
}

} // namespace gtm::bundled
