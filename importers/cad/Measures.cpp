#include "importers/cad/Measures.h"

#include <BRepGProp.hxx>
#include <BRepMesh_IncrementalMesh.hxx>
#include <BRep_Tool.hxx>
#include <GProp_GProps.hxx>
#include <Poly_Triangulation.hxx>
#include <TopLoc_Location.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Face.hxx>
#include <gp_Pnt.hxx>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <utility>

namespace gtm::bundled {

namespace {

/// The number to nine digits of `largest`, through text, so that it is the one nearest to its decimal form.
double rounded(double value, double largest)
{
    const int decimals = 8 - static_cast<int>(std::floor(std::log10(largest)));
    std::array<char, 400> text{};
    const auto end = std::to_chars(text.begin(), text.end(), value, std::chars_format::fixed, std::max(decimals, 0));
    double result = 0;
    std::from_chars(text.begin(), end.ptr, result);
    return result == 0 ? 0 : result;
}

bool isMeasure(double value) { return std::isfinite(value) && value > 0; }

} // namespace

std::optional<double> volumeOf(const TopoDS_Shape& solid)
{
    GProp_GProps space;
    BRepGProp::VolumeProperties(solid, space);
    const double volume = std::abs(space.Mass());
    return isMeasure(volume) ? std::optional(rounded(volume, volume)) : std::nullopt;
}

FaceFacts factsOf(const TopoDS_Shape& face)
{
    GProp_GProps surface;
    BRepGProp::SurfaceProperties(face, surface);
    const double area = std::abs(surface.Mass());
    if (!isMeasure(area))
        return {};
    const gp_Pnt centre = surface.CentreOfMass();
    const double largest =
        std::max({std::abs(centre.X()), std::abs(centre.Y()), std::abs(centre.Z()), std::sqrt(area)});
    if (!std::isfinite(largest))
        return {rounded(area, area), std::nullopt, {}};
    return {
        rounded(area, area),
        std::array<double, 3>{rounded(centre.X(), largest), rounded(centre.Y(), largest), rounded(centre.Z(), largest)},
        {}};
}

CadTriangles trianglesOf(const TopoDS_Shape& face, double tolerance)
{
    constexpr double angle = 0.5; // radians between neighbours: round enough for the eye
    BRepMesh_IncrementalMesh(face, tolerance, false, angle, false);
    TopLoc_Location place;
    const TopoDS_Face natural = TopoDS::Face(face.Oriented(TopAbs_FORWARD));
    const Handle(Poly_Triangulation) mesh = BRep_Tool::Triangulation(natural, place);
    CadTriangles result;
    if (mesh.IsNull())
        return result;
    for (int i = 1; i <= mesh->NbNodes(); ++i) {
        const gp_Pnt point = mesh->Node(i).Transformed(place.Transformation());
        result.points.push_back({point.X(), point.Y(), point.Z()});
    }
    for (int i = 1; i <= mesh->NbTriangles(); ++i) {
        std::array<int, 3> corners{};
        mesh->Triangle(i).Get(corners[0], corners[1], corners[2]);
        std::array<std::size_t, 3>& triangle = result.triangles.emplace_back();
        std::transform(corners.begin(), corners.end(), triangle.begin(),
                       [](int corner) { return static_cast<std::size_t>(corner - 1); });
    }
    return result;
}

} // namespace gtm::bundled
