#include "importers/cgns/ZoneSurface.h"

#include "importers/cgns/BlockSurface.h"
#include "importers/cgns/CellSurface.h"

#include <algorithm>

namespace gtm::bundled {

std::unique_ptr<ZoneSurface> makeSurface(const CgnsDescription::Zone& zone)
{
    if (zone.isStructured) {
        return std::make_unique<BlockSurface>(zone);
    }
    const bool hasPolyhedra = std::any_of(zone.sections.begin(), zone.sections.end(), CellSurface::isPolyhedral);
    return hasPolyhedra ? nullptr : std::make_unique<CellSurface>(zone);
}

} // namespace gtm::bundled
