#pragma once

#include "gtm/Region.h"

#include <vector>

namespace gtm {

class Body;

/// A named group of bodies, as an assembly of a geometry file gives it.
class GTM_EXPORT Part : public Region {
public:
    /// The bodies of the part in the order of the topology; empty when it has none.
    std::vector<Body*> bodies() const;

protected:
    Part() = default;
    ~Part() override = default;
};

} // namespace gtm
