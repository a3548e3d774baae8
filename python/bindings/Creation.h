#pragma once

#include "physics/TypeNames.h"
#include "python/bindings/Binding.h"
#include "python/bindings/Words.h"

#include <string>

namespace physics::python {

/// Of a member that makes an object under the name that is its first argument: None when the location model refuses,
/// but an error within a `building` block.
template <class Member>
auto created(Member member)
{
    return wrap(member, [](SetUp& place, auto* answer, const Text& name, const auto&...) {
        if (answer == nullptr && place.raisesRefusals()) {
            const gtm::bundled::LocationModel& model = place.geometry().object();
            throw RefusedError(std::string("the ") + wordFor(answer) + " \"" + name.bytes + "\" is refused (" +
                               displayName(State(model.lastRefusedState())) + "): " + model.lastRefusal());
        }
        return give(place, answer);
    });
}

} // namespace physics::python
