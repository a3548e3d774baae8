#pragma once

#include "gtm/Boundary.h"

#include "examples/own-kernel/Location.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace own {

class Interior;

/// Owned by its interior.
class Boundary final : public gtm::Boundary {
public:
    /// Without a place it is the default boundary.
    Boundary(Interior& interior, std::string name, std::optional<Place> place);
    ~Boundary() = default;

    State relocate(Place place, bool enforceRestrictions);

    Interior& m_interior;
    std::string m_name;
    std::unique_ptr<Location> m_location; ///< null for the default boundary
};

} // namespace own
