#pragma once

#include <iosfwd>
#include <string>

namespace physics {
class Physics;
}

namespace physics::apps {

/// Writes the block of one object of a set-up. `object` names it: "volume:NAME", "boundary:VOLUME::NAME",
/// "interface:NAME", "model:ID" or "settings:ID". Throws `InputError` when there is no such object, with the
/// nearest that there is.
void dumpObject(const std::string& object, const Physics& physics, std::ostream& stream);

} // namespace physics::apps
