#pragma once

#include <TopoDS_Shape.hxx>

#include <functional>
#include <string>
#include <vector>

class TDF_Label;
class TopLoc_Location;
class XCAFDoc_ShapeTool;

namespace cadtests {

struct Point {
    double x = 0;
    double y = 0;
    double z = 0;
};

TopoDS_Shape box(const Point& from, const Point& to);

TopoDS_Shape compound(const std::vector<TopoDS_Shape>& shapes);

/// The shape moved along x.
TopoDS_Shape shifted(const TopoDS_Shape& shape, double x);

/// The first sub-shape of a kind.
TopoDS_Shape first(const TopoDS_Shape& shape, TopAbs_ShapeEnum kind);

/// The content of a BREP file with the shape.
std::string brepOf(const TopoDS_Shape& shape);

/// The content of a STEP file with the products that `fill` makes.
std::string stepOf(const std::function<void(XCAFDoc_ShapeTool&)>& fill);

/// Makes a product, or an assembly to which instances of products can be added.
TDF_Label product(XCAFDoc_ShapeTool& tool, const TopoDS_Shape& shape, const std::string& name);
TDF_Label assembly(XCAFDoc_ShapeTool& tool, const std::string& name);
/// Puts an instance of a product into an assembly, named as the product unless told otherwise.
void addTo(XCAFDoc_ShapeTool& tool, const TDF_Label& assembly, const TDF_Label& product, const TopLoc_Location& place,
           const std::string& name = {});

void nameSubShape(XCAFDoc_ShapeTool& tool, const TDF_Label& product, const TopoDS_Shape& shape,
                  const std::string& name);

} // namespace cadtests
