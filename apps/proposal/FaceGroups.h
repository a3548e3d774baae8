#pragma once

#include "apps/proposal/BodyGroups.h"
#include "apps/proposal/TypeMapping.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace physics::apps {

struct GeometryFile;

/// The faces of one volume that the file says the same of: they become a boundary. A volume is told by its
/// place among the groups of bodies.
struct FaceGroup {
    std::size_t volume = 0;
    std::string inFile; ///< `family "wing", BCWallViscous`
    std::string name;
    BoundaryMapping mapping;
    bool isInside = false; ///< the volume is on both sides
    std::vector<std::string> faces;
};

/// The faces between two volumes that the file calls the same: they become an interface.
struct SharedGroup {
    std::array<std::size_t, 2> volumes = {};
    std::string name; ///< empty for faces without a name
    std::vector<std::string> faces;
};

/// A face that the file declares periodic.
struct PeriodicFace {
    std::size_t volume = 0;
    std::string id;
    std::string name;
};

/// All faces of a geometry, each once, in the order of their first faces.
struct FaceGroups {
    std::vector<FaceGroup> own;
    std::vector<SharedGroup> shared;
    std::vector<PeriodicFace> periodic;

    /// By volume: faces at its outside that the file says nothing of, and faces inside it that stay in it.
    std::vector<std::size_t> noOfUnnamed;
    std::vector<std::size_t> noOfInside;
};

FaceGroups groupFaces(const GeometryFile& geometry, const std::vector<BodyGroup>& volumes);

} // namespace physics::apps
