#pragma once

#include <filesystem>
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
