#pragma once

#include "apps/ReadingChoice.h"
#include "physics/Types.h"

#include <array>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace physics::apps {

/// What a case file asks for, as plain values in the order of the file. A `path` is the JSON pointer of the
/// object that the values come from, so that whoever finds a fault later can name its place. An empty name of
/// a model stands for the first model.
struct CaseFile {
    /// A location string, or the ids of regions.
    using Location = std::variant<std::string, std::vector<std::string>>;

    struct Domain {
        std::string path;
        int id = 0;
        DomainType type = DomainType::Unset;
        std::string name;
    };

    struct Model {
        std::string path;
        std::string name;
        std::optional<std::vector<Domain>> domains; ///< absent: the one domain that each new model has
    };

    struct Thread {
        std::string path;
        int index = 0;
        ThreadType type = ThreadType::Unset;
        int threadId = 0;
        std::vector<int> domains;
        std::vector<int> zones; ///< empty: those that the location model gives
    };

    struct Shell {
        std::string path;
        ShellType type = ShellType::Unset;
        std::string model;
        std::vector<Thread> threads;
    };

    struct Boundary {
        std::string path;
        std::string name;
        std::optional<Location> location; ///< absent for the default boundary
        BoundaryType type = BoundaryType::Unset;
        std::optional<Shell> shell;
        std::vector<BoundaryTag> tags;
        std::vector<Thread> threads;
    };

    struct Volume {
        std::string path;
        std::string name;
        std::optional<Location> location; ///< absent for the default volume
        VolumeType type = VolumeType::Unset;
        std::string model;
        std::vector<Boundary> boundaries;
        std::vector<Thread> threads;
        std::vector<Thread> internalThreads;
    };

    /// One side of an interface; the boundary is named "VOLUME::BOUNDARY".
    struct Side {
        std::string path;
        std::string boundary;
        std::vector<Thread> threads;
        std::vector<Thread> shellThreads;
    };

    struct Rotation {
        double angle = 0;
        std::array<double, 3> origin = {0, 0, 0};
        std::array<double, 3> direction = {0, 0, 0};
    };

    struct Interface {
        std::string path;
        std::string name;
        std::array<Side, 2> sides;
        InterfaceType type = InterfaceType::Unset;
        std::string model;
        std::optional<std::array<double, 3>> translation;
        std::optional<Rotation> rotation;
        MeshConnectivity meshConnectivity = MeshConnectivity::Automatic;
        bool isMapped = false;
        bool isStatic = false;
        bool isMeshValid = false;
        std::vector<Thread> threads;
    };

    /// Volumes that are deactivated together, by name.
    struct Group {
        std::string path;
        std::vector<std::string> volumes;
    };

    struct Geometry {
        std::string path;
        std::string file; ///< as written: relative to the case file
        ReadingChoice reading;
    };

    /// What the geometry file calls something whose name in the case had to be another one.
    struct NameInFile {
        std::string of; ///< "volume", "boundary", "interface" or "region"
        std::string name;
        std::string inFile;
    };

    Geometry geometry;
    std::vector<NameInFile> names;
    bool enforceRestrictions = true;
    std::vector<std::string> maskedParts;
    std::vector<std::string> maskedBodies;
    std::vector<Model> models;
    std::vector<Volume> volumes;
    std::vector<Interface> interfaces;
    std::vector<Group> deactivated;
};

} // namespace physics::apps
