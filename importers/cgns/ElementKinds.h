#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace gtm::bundled {

/// What we know of a type of element.
struct ElementKind {
    std::size_t noOfNodes = 0;

    /// Of a volume, the corners of each face, as places among its nodes; of a surface element, those of
    /// itself; of a line or a point none.
    std::vector<std::vector<std::size_t>> faces;
    bool isVolume = false;
};

/// Null for a type that is not known, or that has no fixed number of nodes.
const ElementKind* elementKind(std::int64_t type);

} // namespace gtm::bundled
