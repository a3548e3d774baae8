#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace gtm::support {

/// The one of `known` that is most likely meant by `wanted`: the fewest letters wrong, missing, too
/// many or swapped, capitals hardly counting; of equally near ones the first. Nothing when even the
/// nearest differs in more than a third of its letters. Cost: linear in the size of `known`.
std::optional<std::string> nearestName(std::string_view wanted, const std::vector<std::string>& known);

/// The end of a sentence about an unknown name: `; did you mean "X"?`, or, when nothing is near and
/// there are only a few, `; known are "X", "Y".`, or just the full stop.
std::string hintForName(std::string_view wanted, const std::vector<std::string>& known);

} // namespace gtm::support
