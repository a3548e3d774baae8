#pragma once

#include "gtm/Region.h"

namespace gtm {

/// A connected piece of space enclosed by faces: what a volume is made of. Opaque; a topology
/// answers the questions about it.
class GTM_EXPORT Body : public Region {
protected:
    Body() = default;
    ~Body() override = default;
};

} // namespace gtm
