#pragma once

#include <TopoDS_Shape.hxx>

#include <filesystem>
#include <string>
#include <vector>

namespace examples {

/// A face, named by a point that lies on it and on no other face of its solid (x, y, z in mm).
struct NamedFace {
    std::string name;
    double x = 0;
    double y = 0;
    double z = 0;
};

/// A solid of an example and the names of its faces. A face that two solids share is named by the
/// first of them and left out in the second.
struct NamedSolid {
    std::string name;
    TopoDS_Shape shape;
    std::vector<NamedFace> faces;
    std::string assembly = {}; ///< another assembly beside that of the file; empty for that of the file
};

/// Fits the solids together, so that touching faces become common ones, and writes them as an
/// assembly, or several side by side, to a STEP file whose bytes are the same on every run. Throws `std::runtime_error`
/// when a face has no name, or a name no face: the tables of an example would be wrong then.
void writeStep(const std::filesystem::path& file, const std::string& assembly, const std::vector<NamedSolid>& solids);

} // namespace examples
