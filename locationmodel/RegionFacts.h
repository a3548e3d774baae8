#pragma once

#include <array>
#include <optional>
#include <string>

namespace gtm::bundled {

/// What a geometry file may tell of a body besides its place in the topology. For people and pictures: no
/// state and no answer of the location model depends on it. Lengths are in the unit of the geometry.
struct BodyFacts {
    std::optional<double> volume; ///< not below zero; none when unknown

    /// "#rrggbb" in small letters, or empty.
    std::string color = {};

    /// True when the same is known, with equal numbers.
    bool operator==(const BodyFacts& other) const { return volume == other.volume && color == other.color; }
};

/// The same of a face.
struct FaceFacts {
    std::optional<double> area;                    ///< not below zero; none when unknown
    std::optional<std::array<double, 3>> centroid; ///< none when unknown

    /// "#rrggbb" in small letters, or empty.
    std::string color = {};

    /// True when the same is known, with equal numbers.
    bool operator==(const FaceFacts& other) const
    {
        return area == other.area && centroid == other.centroid && color == other.color;
    }
};

} // namespace gtm::bundled
