#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

/// Stands for the geometry kernel of a host: it knows nothing of us, and has words of its own.
namespace kernel {

struct Solid {
    std::string name;
    std::string assembly = {}; ///< empty for a solid outside every assembly
    std::vector<int> meshZones = {};
};

/// A surface between two solids, or on one only. Solids are named by their places in the geometry.
struct Surface {
    std::string name;
    std::size_t left = 0;
    std::optional<std::size_t> right = {};
    std::vector<int> leftMeshZones = {}; ///< below zero where the mesh looks the other way
    std::vector<int> rightMeshZones = {};
};

struct Geometry {
    std::vector<std::string> assemblies;
    std::vector<Solid> solids;
    std::vector<Surface> surfaces;
};

} // namespace kernel
