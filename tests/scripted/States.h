#pragma once

#include "tests/scripted/Location.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace scripted {

/// The wording of a state of this location model; empty for a number that is no state.
std::string stateText(int state);

/// Moves an interior or a boundary and answers how it lies there. With restrictions enforced, what is not
/// valid goes back to where it was. A default one has no location and cannot be moved.
template <class Entity>
auto relocated(Entity& entity, Place place, bool enforceRestrictions)
{
    const auto& result = entity.answers().relocateResult;
    Location* location = entity.location();
    if (!location) {
        return result.value_or(Entity::State::Inconsistent);
    }
    const Place before = location->place();
    location->place(std::move(place));
    const auto state = result ? *result : entity.placementState();
    if (enforceRestrictions && state != Entity::State::Valid) {
        location->place(before);
    }
    return state;
}

/// Takes regions out of the location of an interior or a boundary.
template <class Entity>
bool removed(Entity& entity, const std::vector<gtm::Region*>& regions)
{
    if (entity.answers().removeResult) {
        return *entity.answers().removeResult;
    }
    return entity.location() && entity.location()->remove(regions);
}

} // namespace scripted
