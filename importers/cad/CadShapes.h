#pragma once

#include "importers/cad/CadDescription.h"
#include "importers/cad/LeftOut.h"

#include <TopoDS_Shape.hxx>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace gtm::bundled {

/// A face of a solid, with the orientation that it has there.
struct CadFace {
    TopoDS_Shape shape;
    std::string name;

    /// Its place among the faces of the solid in the file, from 1.
    std::size_t number = 0;
    std::string color = {}; ///< "#rrggbb" or empty
};

struct CadSolid {
    TopoDS_Shape shape;
    std::string name;

    /// Its place among the solids of the file, from 1.
    std::size_t number = 0;
    std::optional<std::size_t> part;
    std::vector<CadFace> faces;
    std::string color = {}; ///< "#rrggbb" or empty
};

/// The solids of a geometry file as the geometry kernel holds them. Two faces of different solids with
/// the same shape are one shared face.
struct CadShapes {
    std::vector<std::string> parts;
    std::vector<CadSolid> solids;

    /// Geometry that bounds no solid.
    LeftOut loose;

    std::vector<std::string> notes;
};

/// Each sub-shape of a kind once, in the order of the shape.
std::vector<TopoDS_Shape> subShapes(const TopoDS_Shape& shape, TopAbs_ShapeEnum kind);

/// Adds a solid with its faces, which are numbered but not named.
CadSolid& addSolid(const TopoDS_Shape& shape, CadShapes& shapes);

/// "Solid 3 ("coolant")", to begin a note before there are ids.
std::string inWords(const CadSolid& solid);

/// Counts the shells, faces, wires, edges and vertices of a shape that belong to no solid.
void countLoose(const TopoDS_Shape& shape, LeftOut& loose);

/// The same in plain values. A solid that is inside out is turned, with a note. Triangles are made where a
/// tolerance is given.
CadDescription describe(const CadShapes& shapes, std::optional<double> triangleTolerance = std::nullopt);

} // namespace gtm::bundled
