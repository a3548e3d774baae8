#pragma once

#include <array>
#include <string>

namespace gtm::support {

/// A number with up to nine significant digits, in any locale: "0.5", "1e-07".
std::string inWords(double value);

/// "(x, y, z)".
std::string inWords(const std::array<double, 3>& vector);

} // namespace gtm::support
