#pragma once

#include "locationmodel/LocationModel.h"

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace physics::apps {

/// What a mesh file says of its volumes and surfaces, in plain values. Tags are the numbers that the file gives.
struct MeshDescription {
    /// A volume or surface. Groups are by name; an unnamed group says nothing.
    struct Entity {
        int tag = 0;
        std::string name;
        std::vector<std::string> groups;
    };

    /// How a volume sees a surface.
    struct Use {
        int volume = 0;
        bool outward = true; ///< the normal of the surface points out of the volume
    };

    struct Surface : Entity {
        std::vector<Use> uses; ///< in the order of the volumes
    };

    /// Element faces that bound volumes and lie on no surface.
    struct Uncovered {
        std::vector<int> volumes; ///< one, or two between which they lie
        std::size_t noOfFaces = 0;
    };

    /// The master maps onto the surface.
    struct Periodic {
        int surface = 0;
        int master = 0;
        std::vector<double> matrix; ///< of four rows; empty when the file does not tell it
    };

    std::vector<Entity> volumes;
    std::vector<Surface> surfaces;
    std::vector<Uncovered> uncovered;
    std::vector<Periodic> periodics;
};

/// A topology made of a mesh, and what was left out or changed; one sentence each.
struct MeshTopology {
    std::unique_ptr<gtm::bundled::LocationModel> model; ///< never null
    std::vector<std::string> notes;
};

/// Builds it. A volume that is alone in a named group is called as the group, else as itself, else "volume-TAG";
/// a group of several volumes becomes a part. A surface becomes a face "BODY/GROUP" after its first body and its
/// group, else "BODY/NAME" after itself, else "BODY/face-TAG". Throws `TopologyError`.
MeshTopology buildModel(const MeshDescription& mesh);

} // namespace physics::apps
