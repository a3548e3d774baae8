#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace gtm::bundled {

/// What a CGNS file says, in plain values. Indices are as in the file, from 1; names may be unfit as ids.
struct CgnsDescription {
    /// A choice of vertices, faces or cells of a zone.
    struct Selection {
        enum class Location { Vertex, Face, IFace, JFace, KFace, Cell, Other };

        Location location = Location::Vertex;

        /// The first and the last of a block; otherwise `values` is a list.
        bool isRange = false;

        /// One index for each axis of the zone, entry after entry; empty when the file gives none.
        std::vector<std::int64_t> values;
    };

    struct Periodicity {
        std::array<double, 3> centre = {};
        std::array<double, 3> angle = {}; ///< in radians
        std::array<double, 3> translation = {};
    };

    struct Patch {
        enum class Kind { Condition, OneToOne, General };

        std::string name;
        Kind kind = Kind::Condition;
        std::string type; ///< of a condition
        std::string family;
        std::optional<std::int32_t> ordinal;
        Selection selection;

        std::string donorZone; ///< of a connectivity
        Selection donor;
        std::optional<Periodicity> periodicity;
    };

    /// Elements of an unstructured zone.
    struct Section {
        std::string name;
        std::int64_t type = 0;
        std::int64_t first = 0; ///< number of its first element
        std::int64_t last = 0;
        std::vector<std::int64_t> connectivity;

        /// Where in `connectivity` each element begins, and the last ends; empty where the file leaves it out.
        std::vector<std::int64_t> offsets;

        /// Of faces, the numbers of the cells on the one side of each, then those on the other; 0 is none.
        /// Empty where the file leaves it out.
        std::vector<std::int64_t> parents;
    };

    struct Zone {
        std::string name;
        std::string family;
        std::optional<std::int32_t> ordinal;
        bool isStructured = true;

        /// Vertices along each of three axes; of an unstructured zone, their number alone.
        std::vector<std::int64_t> vertices;
        std::vector<Section> sections;
        std::vector<Patch> patches;
    };

    std::vector<Zone> zones;
    std::vector<std::string> notes;
};

} // namespace gtm::bundled
