#include "importers/cgns/BlockSurface.h"

#include "importers/cgns/CgnsReader.h"

#include <algorithm>
#include <set>

namespace gtm::bundled {

namespace {

using Selection = CgnsDescription::Selection;

std::string textOf(const std::array<std::int64_t, 3>& index)
{
    return "(" + std::to_string(index[0]) + " " + std::to_string(index[1]) + " " + std::to_string(index[2]) + ")";
}

/// The axis across the cell faces of a location; nothing when the location leaves it open.
std::optional<std::size_t> axisOf(Selection::Location location)
{
    switch (location) {
    case Selection::Location::IFace:
        return 0;
    case Selection::Location::JFace:
        return 1;
    case Selection::Location::KFace:
        return 2;
    default:
        return std::nullopt;
    }
}

} // namespace

BlockSurface::BlockSurface(const CgnsDescription::Zone& zone)
    : m_vertices{zone.vertices.at(0), zone.vertices.at(1), zone.vertices.at(2)}
{
    for (std::size_t side = 0; side < 6; ++side) {
        const std::size_t axis = side / 2;
        m_first[side + 1] = m_first[side] + static_cast<std::size_t>(m_vertices[(axis + 1) % 3] - 1) *
                                                static_cast<std::size_t>(m_vertices[(axis + 2) % 3] - 1);
    }
}

ZoneSurface::CellFaces BlockSurface::cellFaces(const Selection& selection, const std::string& place) const
{
    const std::size_t size = selection.values.size();
    if (selection.isRange ? size != 6 : size % 3 != 0) {
        throw CgnsError(place + " has " + std::to_string(size) +
                        " indices, which does not fit a structured zone; export the file again.");
    }
    if (selection.location == Selection::Location::Other) {
        return {{}, 0, false};
    }
    return selection.isRange ? facesInRange(selection, place) : facesInList(selection, place);
}

ZoneSurface::CellFaces BlockSurface::facesInRange(const Selection& selection, const std::string& place) const
{
    Index low{};
    Index high{};
    for (std::size_t axis = 0; axis < 3; ++axis) {
        low[axis] = std::min(selection.values[axis], selection.values[axis + 3]);
        high[axis] = std::max(selection.values[axis], selection.values[axis + 3]);
    }
    const std::optional<std::size_t> axis = axisAcross(selection, low, high);
    checkInside(low, high, lastOf(selection.location, axis), place);
    if (selection.location == Selection::Location::Cell) {
        return facesOfLayer(low, high);
    }
    if (!axis) {
        return {{}, 0, false};
    }
    for (std::size_t i = 0; selection.location == Selection::Location::Vertex && i < 3; ++i) {
        high[i] -= i != *axis ? 1 : 0;
    }
    return facesInBox(*axis, low, high);
}

/// Cells stand for their cell faces at the surface when they are one layer along one side, and only there.
ZoneSurface::CellFaces BlockSurface::facesOfLayer(Index low, Index high) const
{
    std::optional<std::size_t> found;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const std::int64_t last = m_vertices[axis] - 1;
        if (low[axis] == high[axis] && (low[axis] == 1 || low[axis] == last)) {
            if (found || last == 1) {
                return {{}, 0, false};
            }
            found = axis;
        }
    }
    if (!found) {
        return {{}, 0, false};
    }
    low[*found] += low[*found] == 1 ? 0 : 1;
    high[*found] = low[*found];
    return facesInBox(*found, low, high);
}

ZoneSurface::CellFaces BlockSurface::facesInBox(std::size_t axis, const Index& low, const Index& high) const
{
    CellFaces faces;
    for (Index face = low; face[2] <= high[2]; ++face[2]) {
        for (face[1] = low[1]; face[1] <= high[1]; ++face[1]) {
            for (face[0] = low[0]; face[0] <= high[0]; ++face[0]) {
                add(axis, face, faces);
            }
        }
    }
    return faces;
}

ZoneSurface::CellFaces BlockSurface::facesInList(const Selection& selection, const std::string& place) const
{
    std::vector<Index> entries;
    for (std::size_t i = 0; i < selection.values.size(); i += 3) {
        entries.push_back({selection.values[i], selection.values[i + 1], selection.values[i + 2]});
    }
    // An index that is listed twice means one thing.
    std::sort(entries.begin(), entries.end());
    entries.erase(std::unique(entries.begin(), entries.end()), entries.end());

    const bool ofVertices = selection.location == Selection::Location::Vertex;
    CellFaces faces;
    for (const Index& entry : entries) {
        const bool ofFaces = !ofVertices && selection.location != Selection::Location::Cell;
        const std::optional<std::size_t> axis = ofFaces ? axisAcross(selection, entry, entry) : std::nullopt;
        checkInside(entry, entry, lastOf(selection.location, axis), place);
        if (axis) {
            add(*axis, entry, faces);
        } else if (!ofVertices) {
            faces.isKnown = false;
        }
    }
    return ofVertices ? facesOfVertices(entries) : faces;
}

/// The cell faces of the surface all corners of which are given, in order.
ZoneSurface::CellFaces BlockSurface::facesOfVertices(const std::vector<Index>& vertices) const
{
    const std::set<Index> given(vertices.begin(), vertices.end());
    CellFaces faces;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        for (const Index& vertex : vertices) {
            if (vertex[axis] != 1 && vertex[axis] != m_vertices[axis]) {
                continue;
            }
            Index second = vertex;
            Index third = vertex;
            ++second[(axis + 1) % 3];
            ++third[(axis + 2) % 3];
            Index fourth = second;
            ++fourth[(axis + 2) % 3];
            if (given.count(second) != 0 && given.count(third) != 0 && given.count(fourth) != 0) {
                add(axis, vertex, faces);
            }
        }
    }
    return faces;
}

/// Where the location leaves the axis open, it is the only one along which the selection does not extend;
/// of cell faces, one at the surface.
std::optional<std::size_t> BlockSurface::axisAcross(const Selection& selection, Index low, Index high) const
{
    if (const std::optional<std::size_t> axis = axisOf(selection.location)) {
        return axis;
    }
    const bool ofVertices = selection.location == Selection::Location::Vertex;
    std::optional<std::size_t> found;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const bool atSurface = low[axis] == 1 || low[axis] == m_vertices[axis];
        if (low[axis] != high[axis] || (!ofVertices && !atSurface)) {
            continue;
        }
        if (found) {
            return std::nullopt;
        }
        found = axis;
    }
    return found;
}

/// The greatest index of what there is at a location: one less than vertices where cells lie side by side.
BlockSurface::Index BlockSurface::lastOf(Selection::Location location, std::optional<std::size_t> axis) const
{
    Index last = m_vertices;
    const bool ofCells = location == Selection::Location::Cell;
    for (std::size_t i = 0; i < 3; ++i) {
        const bool ofFaces = location != Selection::Location::Vertex && axis && *axis != i;
        last[i] -= ofCells || ofFaces ? 1 : 0;
    }
    return last;
}

void BlockSurface::checkInside(const Index& low, const Index& high, const Index& last, const std::string& place) const
{
    for (std::size_t axis = 0; axis < 3; ++axis) {
        if (low[axis] < 1 || high[axis] > last[axis]) {
            throw CgnsError(place + " reaches from " + textOf(low) + " to " + textOf(high) + ", outside the zone of " +
                            textOf(m_vertices) + " vertices; export the file again.");
        }
    }
}

void BlockSurface::add(std::size_t axis, const Index& face, CellFaces& faces) const
{
    const bool isLow = face[axis] == 1;
    if (!isLow && face[axis] != m_vertices[axis]) {
        ++faces.inner;
        return;
    }
    const std::size_t along = (axis + 1) % 3;
    const std::size_t across = (axis + 2) % 3;
    faces.surface.push_back(m_first[2 * axis + (isLow ? 0 : 1)] +
                            static_cast<std::size_t>((face[across] - 1) * (m_vertices[along] - 1) + face[along] - 1));
}

} // namespace gtm::bundled
