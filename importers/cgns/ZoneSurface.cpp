#include "importers/cgns/ZoneSurface.h"

#include "importers/cgns/BlockSurface.h"
#include "importers/cgns/CellSurface.h"
#include "importers/cgns/PolyhedraSurface.h"

#include <algorithm>

namespace gtm::bundled {

std::unique_ptr<ZoneSurface> makeSurface(const CgnsDescription::Zone& zone, std::string& obstacle)
{
    if (zone.isStructured) {
        return std::make_unique<BlockSurface>(zone);
    }
    auto cells = std::make_unique<CellSurface>(zone);
    if (std::none_of(zone.sections.begin(), zone.sections.end(), PolyhedraSurface::isPolyhedral)) {
        obstacle = cells->hasCells() ? "" : "has no cells";
        return cells->hasCells() ? std::move(cells) : nullptr;
    }
    auto polyhedra = std::make_unique<PolyhedraSurface>(zone);
    obstacle = cells->hasCells()       ? "has polyhedra and other cells beside them"
               : polyhedra->hasCells() ? ""
                                       : "has polygons, but does not say which cells they bound";
    return obstacle.empty() ? std::move(polyhedra) : nullptr;
}

} // namespace gtm::bundled
