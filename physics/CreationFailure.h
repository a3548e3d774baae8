#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace gtm {
class Region;
}

namespace physics {

// The messages on standard output about what the location model refused. Each line is flushed.

/// `kind` is "volume" or "boundary"; `name` and the place are those that were asked for.
void reportCreationFailure(std::string_view kind, const std::string& name, const std::string& location,
                           const std::string& state);
void reportCreationFailure(std::string_view kind, const std::string& name, const std::vector<gtm::Region*>& regions,
                           const std::string& state);

void reportInterfaceFailure(const std::string& name, const std::string& firstBoundary,
                            const std::string& secondBoundary, const std::string& state);

/// A volume whose internal faces carry different meshes on their two sides.
void reportNonSharedMeshes(const std::string& volume);

} // namespace physics
