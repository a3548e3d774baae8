#pragma once

#include "gtm/Location.h"
#include "python/bindings/Binding.h"

#include <memory>
#include <optional>
#include <utility>

namespace physics::python {

/// What Python knows as a `Location`: where a volume or a boundary lies, read from that whenever it is asked.
class PlacedAt {
public:
    explicit PlacedAt(Held<physics::Region> region) : m_region(std::move(region)) {}

    Geometry& geometry() const { return m_region->owner().geometry(); }

    const gtm::Location& location() const
    {
        const physics::Region& region = m_region->object();
        const auto* const volume = dynamic_cast<const Volume*>(&region);
        return volume != nullptr ? *volume->location() : *dynamic_cast<const Boundary&>(region).location();
    }

private:
    Held<physics::Region> m_region;
};

/// Nothing where a default object has no location.
template <class T>
std::optional<std::shared_ptr<PlacedAt>> placedAt(const Self<T>& self)
{
    if (present<T>(self).object().location() == nullptr)
        return std::nullopt;
    return std::make_shared<PlacedAt>(self);
}

} // namespace physics::python
