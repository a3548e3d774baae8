#pragma once

#include "gtm/Export.h"

#include <string>

namespace gtm {

/// A piece of the topology that can be used to place something: the common base of `Part`, `Body`,
/// `Face` and `FaceUse`. Owned by its `Topology` and alive as long as that; compared by address.
///
/// `id` is virtual, unlike all other operations of the location model, because a pointer to a region
/// does not tell which of the four kinds it names.
class GTM_EXPORT Region {
public:
    Region(const Region&) = delete;
    Region& operator=(const Region&) = delete;

    /// The identifier: not empty, and unique among all regions of the topology.
    virtual std::string id() const = 0;

protected:
    Region() = default;
    virtual ~Region() = default;
};

} // namespace gtm
