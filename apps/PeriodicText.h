#pragma once

#include <string>

namespace physics {
class Interface;
}

namespace physics::apps {

/// How an interface is periodic, with its values, such as "translation by (1, 0, 0)"; "-" when it is not.
std::string periodicText(const Interface& interface);

} // namespace physics::apps
