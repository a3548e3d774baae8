#pragma once

#include "apps/gmsh/MeshDescription.h"

#include <filesystem>

namespace physics::apps {

/// Reads a mesh file of Gmsh, version 4.1 or 2.2, text or binary. Which surfaces bound a volume, and on which
/// side, is what the elements of both have in common; for surfaces without such elements it is what the
/// entities of the file say, which version 2.2 does not have. Throws `InputError`, whose message names the file.
///
/// The mesh library has global state and ends the process over some damaged files: call it in a child process.
MeshDescription readMesh(const std::filesystem::path& file);

} // namespace physics::apps
