#pragma once

#include <string>
#include <vector>

namespace physics::apps {

enum class ExitCode;
class Output;

/// One run of the program `physics-gmsh`, which makes topology files of mesh files.
ExitCode runMeshTool(const std::vector<std::string>& arguments, Output& output);

} // namespace physics::apps
