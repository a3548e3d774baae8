#include "importers/cgns/PolyhedraSurface.h"

#include "importers/cgns/SelectedNumbers.h"

#include <cgnslib.h>

#include <algorithm>
#include <cstdlib>

namespace gtm::bundled {

namespace {

using Section = CgnsDescription::Section;
using Selection = CgnsDescription::Selection;

bool isPolygons(const Section& section) { return section.type == CGNS_ENUMV(NGON_n); }
bool isCells(const Section& section) { return section.type == CGNS_ENUMV(NFACE_n); }

} // namespace

bool PolyhedraSurface::isPolyhedral(const Section& section) { return isPolygons(section) || isCells(section); }

PolyhedraSurface::PolyhedraSurface(const CgnsDescription::Zone& zone)
    : m_noOfVertices(zone.vertices.at(0)), m_numbers(zone)
{
    const auto forEach = [&](bool (*isOfKind)(const Section&), void (PolyhedraSurface::*add)(const Section&)) {
        for (const Section& section : zone.sections) {
            if (isOfKind(section)) {
                (this->*add)(section);
            }
        }
    };
    forEach(isPolygons, &PolyhedraSurface::addPolygons);
    forEach(isCells, &PolyhedraSurface::addCells);
    if (!m_hasCells) {
        forEach(isPolygons, &PolyhedraSurface::addParents);
    }
    for (const Section& section : zone.sections) {
        if (!isPolyhedral(section)) {
            m_numbers.add(section, static_cast<std::size_t>(section.last - section.first) + 1);
        }
    }
    numberSurface();
    m_atVertices.emplace(m_noOfVertices, m_surface.size(),
                         [this](std::size_t face) { return m_elements[m_surface[face]].corners; });
}

/// What each element consists of. Newer files keep apart where each begins, in older ones its size stands
/// before it.
std::vector<PolyhedraSurface::Numbers> PolyhedraSurface::listsOf(const Section& section) const
{
    const Numbers data = section.connectivity;
    const auto size = static_cast<std::int64_t>(data.size());
    std::vector<Numbers> lists;
    const auto add = [&](std::int64_t begin, std::int64_t end) {
        if (begin < 0 || end < begin || end > size) {
            m_numbers.refuse(section, "do not fit their connectivity");
        }
        lists.push_back(data.subspan(static_cast<std::size_t>(begin), static_cast<std::size_t>(end - begin)));
    };
    for (std::size_t i = 1; i < section.offsets.size(); ++i) {
        add(section.offsets[i - 1], section.offsets[i]);
    }
    for (std::int64_t at = 0; section.offsets.empty() && at < size;) {
        const std::int64_t count = data[static_cast<std::size_t>(at++)];
        add(at, count < 0 || count > size - at ? -1 : at + count);
        at += count;
    }
    return lists;
}

void PolyhedraSurface::addPolygons(const Section& section)
{
    for (const Numbers corners : listsOf(section)) {
        if (corners.size() < 3) {
            m_numbers.refuse(section, "have a polygon of fewer than three corners");
        }
        if (std::any_of(corners.begin(), corners.end(),
                        [&](std::int64_t corner) { return corner < 1 || corner > m_noOfVertices; })) {
            m_numbers.refuse(section, "use a vertex that the zone has not");
        }
        m_elements.push_back({corners});
    }
    m_numbers.add(section, m_elements.size() - m_numbers.size());
}

/// The number of a polygon is negative where it looks into the cell.
void PolyhedraSurface::addCells(const Section& section)
{
    const std::vector<Numbers> cells = listsOf(section);
    for (const Numbers cell : cells) {
        for (const std::int64_t number : cell) {
            const std::optional<std::size_t> place =
                number == INT64_MIN ? std::nullopt : m_numbers.placeOf(std::abs(number));
            if (!place || m_elements[*place].corners.empty()) {
                m_numbers.refuse(section, "use a polygon that the zone has not");
            }
            ++m_elements[*place].noOfCells;
        }
    }
    m_hasCells = m_hasCells || !cells.empty();
    m_elements.resize(m_elements.size() + cells.size());
    m_numbers.add(section, cells.size());
}

void PolyhedraSurface::addParents(const Section& section)
{
    const std::size_t count = static_cast<std::size_t>(section.last - section.first) + 1;
    if (section.parents.empty()) {
        return;
    }
    if (section.parents.size() != 2 * count) {
        m_numbers.refuse(section, "have " + std::to_string(section.parents.size()) + " parents instead of " +
                                      std::to_string(2 * count));
    }
    const std::size_t first = *m_numbers.placeOf(section.first);
    for (std::size_t i = 0; i < section.parents.size(); ++i) {
        m_elements[first + i % count].noOfCells += section.parents[i] != 0 ? 1 : 0;
    }
    m_hasCells = true;
}

void PolyhedraSurface::numberSurface()
{
    for (std::size_t place = 0; place < m_elements.size(); ++place) {
        if (m_elements[place].noOfCells == 1) {
            m_elements[place].place = m_surface.size();
            m_surface.push_back(place);
        }
    }
}

ZoneSurface::CellFaces PolyhedraSurface::cellFaces(const Selection& selection, const std::string& place) const
{
    if (selection.location == Selection::Location::Vertex) {
        const auto noOfVertices = static_cast<std::size_t>(m_noOfVertices);
        return {m_atVertices->facesOn(selectedNumbers(selection, m_noOfVertices, noOfVertices, "vertices", place)), 0,
                true};
    }
    if (selection.location != Selection::Location::Face && selection.location != Selection::Location::Cell) {
        return {{}, 0, false};
    }
    CellFaces faces;
    for (const std::int64_t number :
         selectedNumbers(selection, m_numbers.last(), m_numbers.size(), "elements", place)) {
        const std::optional<std::size_t> at = m_numbers.placeOf(number);
        const Polygon polygon = at && *at < m_elements.size() ? m_elements[*at] : Polygon{};
        if (polygon.noOfCells == 0) {
            faces.isKnown = false;
        } else if (polygon.noOfCells > 1) {
            ++faces.inner;
        } else {
            faces.surface.push_back(polygon.place);
        }
    }
    return faces;
}

} // namespace gtm::bundled
