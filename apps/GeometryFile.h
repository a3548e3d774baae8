#pragma once

#include "apps/ReadingChoice.h"
#include "importers/cgns/CgnsReader.h"

#include <filesystem>
#include <map>
#include <memory>
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
/// built with that reader). Throws `InputError`, also for a way of reading that its kind of file does not have.
GeometryFile readGeometry(const std::filesystem::path& file, const ReadingChoice& choice = {});

} // namespace physics::apps
