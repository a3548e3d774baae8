#include "importers/cgns/CellSurface.h"

#include "importers/cgns/CgnsReader.h"
#include "importers/cgns/ElementKinds.h"

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

/// The indices of a selection in order, each once. They must lie within 1 and `last`; a range has no more of
/// them than there are things to choose from.
std::vector<std::int64_t> indicesOf(const Selection& selection, std::int64_t last, std::size_t noOfThings,
                                    const char* what, const std::string& place)
{
    std::vector<std::int64_t> indices = selection.values;
    std::sort(indices.begin(), indices.end());
    if (!indices.empty() && (indices.front() < 1 || indices.back() > last)) {
        throw CgnsError(place + " reaches from " + std::to_string(indices.front()) + " to " +
                        std::to_string(indices.back()) + ", outside the zone of " + std::to_string(last) + " " + what +
                        "; export the file again.");
    }
    if (selection.isRange) {
        if (indices.size() != 2) {
            throw CgnsError(place + " has " + std::to_string(indices.size()) +
                            " indices, which does not fit an unstructured zone; export the file again.");
        }
        const std::int64_t first = indices.front();
        if (static_cast<std::size_t>(indices.back() - first) >= noOfThings) {
            throw CgnsError(place + " has more indices than the zone has " + what + "; export the file again.");
        }
        indices.resize(static_cast<std::size_t>(indices.back() - first + 1));
        for (std::size_t i = 0; i < indices.size(); ++i) {
            indices[i] = first + static_cast<std::int64_t>(i);
        }
    }
    indices.erase(std::unique(indices.begin(), indices.end()), indices.end());
    return indices;
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

bool CellSurface::isPolyhedral(const Section& section)
{
    return section.type == CGNS_ENUMV(NGON_n) || section.type == CGNS_ENUMV(NFACE_n);
}

CellSurface::CellSurface(const CgnsDescription::Zone& zone) : m_zone(zone), m_noOfVertices(zone.vertices.at(0))
{
    for (const Section& section : zone.sections) {
        addSection(section);
    }
    numberSurface();
}

void CellSurface::addSection(const Section& section)
{
    const auto refuse = [&](const std::string& what) {
        throw CgnsError("the elements \"" + section.name + "\" of the zone \"" + m_zone.name + "\" " + what +
                        "; export the file again.");
    };
    Run run{section.last, {}};
    std::size_t at = 0;
    const std::vector<std::int64_t>& data = section.connectivity;
    while (at < data.size()) {
        const bool mixed = section.type == CGNS_ENUMV(MIXED);
        const std::int64_t type = mixed ? data[at++] : section.type;
        const ElementKind* kind = elementKind(type);
        if (!kind) {
            refuse("are of the unknown type " + std::to_string(type));
        }
        if (data.size() - at < kind->noOfNodes) {
            refuse("end within an element");
        }
        const std::int64_t* nodes = data.data() + at;
        if (std::any_of(nodes, nodes + kind->noOfNodes,
                        [&](std::int64_t node) { return node < 1 || node > m_noOfVertices; })) {
            refuse("use a vertex that the zone has not");
        }
        run.elements.push_back({type, nodes});
        at += kind->noOfNodes;
        if (kind->isVolume) {
            for (const std::vector<std::size_t>& places : kind->faces) {
                ++m_faces[cornersOf(places, nodes)];
            }
        }
    }
    if (static_cast<std::int64_t>(run.elements.size()) != section.last - section.first + 1) {
        refuse("are " + std::to_string(run.elements.size()) + " in number, but their range has " +
               std::to_string(section.last - section.first + 1));
    }
    m_noOfElements += run.elements.size();
    const auto [next, added] = m_runs.emplace(section.first, std::move(run));
    const bool overlapsNext = std::next(next) != m_runs.end() && std::next(next)->first <= section.last;
    if (!added || overlapsNext || (next != m_runs.begin() && std::prev(next)->second.last >= section.first)) {
        refuse("have numbers that other elements have too");
    }
}

/// Numbers the cell faces in the order of the cells, which is the same on every run.
void CellSurface::numberSurface()
{
    m_startAtVertex.assign(static_cast<std::size_t>(m_noOfVertices) + 2, 0);
    for (const auto& [first, run] : m_runs) {
        for (const Element& element : run.elements) {
            const ElementKind& kind = *elementKind(element.type);
            for (std::size_t i = 0; kind.isVolume && i < kind.faces.size(); ++i) {
                const Corners corners = cornersOf(kind.faces[i], element.nodes);
                std::size_t& face = m_faces[corners];
                if (face != 1) {
                    continue;
                }
                m_corners.push_back(corners);
            }
        }
    }
    for (auto& [corners, face] : m_faces) {
        face = inside;
    }
    for (std::size_t i = 0; i < m_corners.size(); ++i) {
        m_faces[m_corners[i]] = i;
        for (const std::int64_t corner : m_corners[i]) {
            ++m_startAtVertex[static_cast<std::size_t>(corner) + 1];
        }
    }
    for (std::size_t i = 1; i < m_startAtVertex.size(); ++i) {
        m_startAtVertex[i] += m_startAtVertex[i - 1];
    }
    m_facesAtVertices.resize(m_startAtVertex.back());
    std::vector<std::size_t> next = m_startAtVertex;
    for (std::size_t i = 0; i < m_corners.size(); ++i) {
        for (const std::int64_t corner : m_corners[i]) {
            m_facesAtVertices[next[static_cast<std::size_t>(corner)]++] = i;
        }
    }
}

const CellSurface::Element* CellSurface::findElement(std::int64_t number) const
{
    auto run = m_runs.upper_bound(number);
    if (run == m_runs.begin()) {
        return nullptr;
    }
    --run;
    return number > run->second.last ? nullptr : &run->second.elements[static_cast<std::size_t>(number - run->first)];
}

ZoneSurface::CellFaces CellSurface::cellFaces(const Selection& selection, const std::string& place) const
{
    switch (selection.location) {
    case Selection::Location::Vertex:
        return facesOfVertices(selection, place);
    case Selection::Location::Face:
        return facesOfElements(selection, place);
    default:
        return {{}, 0, false};
    }
}

ZoneSurface::CellFaces CellSurface::facesOfElements(const Selection& selection, const std::string& place) const
{
    const std::int64_t last = m_runs.empty() ? 0 : m_runs.rbegin()->second.last;
    CellFaces faces;
    for (const std::int64_t number : indicesOf(selection, last, m_noOfElements, "elements", place)) {
        const Element* element = findElement(number);
        const ElementKind* kind = element ? elementKind(element->type) : nullptr;
        if (!kind || kind->isVolume || kind->faces.empty()) {
            faces.isKnown = false;
            continue;
        }
        const auto found = m_faces.find(cornersOf(kind->faces.front(), element->nodes));
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

/// The cell faces of the surface all corners of which are given.
ZoneSurface::CellFaces CellSurface::facesOfVertices(const Selection& selection, const std::string& place) const
{
    std::unordered_map<std::size_t, int> noOfCornersGiven;
    CellFaces faces;
    for (const std::int64_t vertex :
         indicesOf(selection, m_noOfVertices, static_cast<std::size_t>(m_noOfVertices), "vertices", place)) {
        const auto at = static_cast<std::size_t>(vertex);
        for (std::size_t i = m_startAtVertex[at]; i < m_startAtVertex[at + 1]; ++i) {
            const std::size_t face = m_facesAtVertices[i];
            const int noOfCorners = m_corners[face].front() == 0 ? 3 : 4;
            if (++noOfCornersGiven[face] == noOfCorners) {
                faces.surface.push_back(face);
            }
        }
    }
    return faces;
}

} // namespace gtm::bundled
