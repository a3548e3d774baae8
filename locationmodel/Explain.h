#pragma once

#include "gtm/Export.h"

#include <string>

namespace gtm {
class Boundary;
class Interface;
class Interior;
} // namespace gtm

namespace gtm::bundled {

/// Why something of the bundled location model is not valid, in whole sentences: which term names
/// nothing and what was perhaps meant, which neighbour it overlaps, what is missing. Empty when it is
/// valid.
/// @{
GTM_EXPORT std::string explain(const Interior& interior);
GTM_EXPORT std::string explain(const Boundary& boundary);
GTM_EXPORT std::string explain(const Interface& interface);
/// @}

} // namespace gtm::bundled
