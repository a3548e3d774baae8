#pragma once

#include "importers/cgns/CgnsReader.h"

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace gtm::bundled {
class LocationModel;
}

namespace physics::apps {

/// A location model read from a file, and what its reader left out or changed.
struct GeometryFile {
    std::unique_ptr<gtm::bundled::LocationModel> model; ///< never null
    std::vector<std::string> notes;

    /// What the file says of its bodies and faces; of the same form whatever the file.
    std::vector<gtm::bundled::CgnsZone> zones;
    std::vector<gtm::bundled::CgnsCondition> conditions;
    std::vector<gtm::bundled::CgnsPeriodic> periodics;

    /// The ids of regions that are not as in the file, with their names there.
    std::map<std::string, std::string> renamed;

    /// What the file calls the region with an id.
    std::string nameOf(const std::string& id) const;

    GeometryFile();
    GeometryFile(GeometryFile&&) noexcept;
    GeometryFile& operator=(GeometryFile&&) noexcept;
    ~GeometryFile();
};

/// Reads a topology file (.json) or a geometry file (.step, .stp, .brep, .brp, .cgns; if this program was
/// built with that reader). `imprint` says whether touching bodies of a geometry file are to share faces; unset
/// leaves it to the reader. Throws `InputError`.
GeometryFile readGeometry(const std::filesystem::path& file, std::optional<bool> imprint);

} // namespace physics::apps
