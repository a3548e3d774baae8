#pragma once

#include "importers/cgns/CgnsDescription.h"

#include <cstdint>
#include <vector>

namespace cgnstests {

/// An unstructured zone called "box", without elements yet.
inline gtm::bundled::CgnsDescription::Zone unstructuredZone(std::int64_t noOfVertices)
{
    gtm::bundled::CgnsDescription::Zone zone;
    zone.name = "box";
    zone.isStructured = false;
    zone.vertices = {noOfVertices};
    return zone;
}

inline gtm::bundled::CgnsDescription::Section section(std::int64_t type, std::int64_t first, std::int64_t last,
                                                      const std::vector<std::int64_t>& connectivity,
                                                      const std::vector<std::int64_t>& offsets = {},
                                                      const std::vector<std::int64_t>& parents = {})
{
    return {"part", type, first, last, connectivity, offsets, parents};
}

} // namespace cgnstests
