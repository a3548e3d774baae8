#pragma once

#include "gtm/Export.h"

#include <filesystem>
#include <memory>
#include <string>

namespace gtm::bundled {

class LocationModel;

/// Reads a topology file (docs/topology-file.md). Throws `TopologyError` when it cannot be read or is
/// wrong; the message names file, line and column, the JSON path, what was read and what was expected.
GTM_EXPORT std::unique_ptr<LocationModel> readTopology(const std::filesystem::path& file);

/// The same from a text; `name` stands for the file in messages.
GTM_EXPORT std::unique_ptr<LocationModel> readTopologyText(const std::string& text, const std::string& name);

/// The text of a topology file that `readTopology` makes the same model of: same ids, order and zones.
/// One region a line, so that versions can be compared. Throws `TopologyError` for an id that is not
/// UTF-8, which JSON cannot hold.
GTM_EXPORT std::string writeTopology(const LocationModel& model);

} // namespace gtm::bundled
