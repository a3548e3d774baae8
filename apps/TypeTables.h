#pragma once

#include <string>

namespace physics::apps {

/// Which types there are and which may be used where, as a JSON text for tools. Types go by the names that
/// case files use; each comes with its number in saved texts.
std::string typeTablesAsJson();

} // namespace physics::apps
