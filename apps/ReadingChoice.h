#pragma once

#include <optional>

namespace physics::apps {

/// How a geometry file is read.
struct ReadingChoice {
    /// Whether touching bodies are to share faces; unset leaves it to the reader.
    std::optional<bool> imprint;

    /// Whether all zones of one family of a mesh make one body, instead of one each.
    bool bodiesAreFamilies = false;

    bool isAsUsual() const { return !imprint && !bodiesAreFamilies; }
};

} // namespace physics::apps
