#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace physics::apps {

/// The items with ", " between them; "-" when there are none.
std::string joined(const std::vector<std::string>& items);
std::string joined(const std::vector<int>& numbers);

/// "1 face", "2 faces".
std::string counted(std::size_t number, const std::string& one, const std::string& many = "");

} // namespace physics::apps
