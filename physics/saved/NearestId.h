#pragma once

#include <string>

namespace gtm {
class VirtualTopology;
}

namespace physics {

/// The id of a body, face or face use that differs from `id` in few characters, or empty when there is none.
/// Of several, the first in the order of the topology. Walks the whole topology.
std::string nearestId(const std::string& id, const gtm::VirtualTopology& topology);

} // namespace physics
