#pragma once

#include "importers/cad/CadReader.h"

#include <TopoDS_Shape.hxx>

#include <optional>

namespace gtm::bundled {

// All measures are rounded to nine digits of the largest number in them: the kernel's last digits may differ
// where it met two shapes in another order, and two runs must say the same.

/// Nothing when the solid encloses no space.
std::optional<double> volumeOf(const TopoDS_Shape& solid);

/// Area and centroid of a face, without a colour. Nothing when the face has no area.
FaceFacts factsOf(const TopoDS_Shape& face);

/// The face in triangles, counter-clockwise as seen against its own normal; none when it cannot be divided.
CadTriangles trianglesOf(const TopoDS_Shape& face, double tolerance);

} // namespace gtm::bundled
