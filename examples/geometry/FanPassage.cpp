#include "examples/geometry/FanPassage.h"

#include <BRepAlgoAPI_Cut.hxx>
#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakePolygon.hxx>
#include <BRepBuilderAPI_MakeWire.hxx>
#include <BRepOffsetAPI_ThruSections.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakeRevol.hxx>
#include <GeomAPI_Interpolate.hxx>
#include <Geom_BSplineCurve.hxx>
#include <TColgp_HArray1OfPnt.hxx>
#include <TopoDS_Edge.hxx>
#include <TopoDS_Shape.hxx>
#include <TopoDS_Wire.hxx>
#include <gp_Ax1.hxx>
#include <gp_Ax2.hxx>
#include <gp_Dir.hxx>
#include <gp_Pnt.hxx>

#include <cmath>
#include <numbers>

namespace examples {

namespace {

constexpr double degree = std::numbers::pi / 180;
constexpr double sectorAngle = 40 * degree;
constexpr double hubRadius = 90;
constexpr double shroudRadius = 180;
constexpr double inletAt = -60;
constexpr double screenBegin = 80;
constexpr double screenEnd = 95;
constexpr double outletAt = 200;
constexpr double motorBegin = 100;
constexpr double motorEnd = 160;
constexpr double motorInnerRadius = 15;
constexpr double motorOuterRadius = 70;

/// A blade profile in the plane at one distance from the axis: chord in mm, stagger from the x axis.
struct Profile {
    double distance;
    double chord;
    double stagger;
};

/// Both planes lie outside the annulus, so that the blade cuts through hub and shroud.
constexpr Profile root{80, 60, 35 * degree};
constexpr Profile tip{190, 90, 62 * degree};

/// A point of the profile surface; `along` runs from 0 at the leading to 1 at the trailing edge,
/// `side` is +1 on the suction and -1 on the pressure side. The camber line is a parabola of 5 % of
/// the chord; the thickness of 10 % has a round nose and a sharp tail.
gp_Pnt profilePoint(const Profile& profile, double along, double side)
{
    const double camber = 4 * 0.05 * along * (1 - along);
    const double thickness = 0.10 * 1.3 * std::sqrt(along) * (1 - along);
    const double x = (along - 0.5) * profile.chord;
    const double y = (camber + side * thickness) * profile.chord;
    const double cosine = std::cos(profile.stagger);
    const double sine = std::sin(profile.stagger);
    return {x * cosine - y * sine, x * sine + y * cosine, profile.distance};
}

TopoDS_Edge profileSide(const Profile& profile, double side)
{
    constexpr int intervals = 12;
    const Handle(TColgp_HArray1OfPnt) points = new TColgp_HArray1OfPnt(1, intervals + 1);
    for (int i = 0; i <= intervals; ++i) {
        const double along = i == intervals ? 1 : (1 - std::cos(i * std::numbers::pi / intervals)) / 2;
        points->SetValue(i + 1, profilePoint(profile, along, side));
    }
    GeomAPI_Interpolate curve(points, false, 1e-7);
    curve.Perform();
    return BRepBuilderAPI_MakeEdge(curve.Curve());
}

TopoDS_Wire profileWire(const Profile& profile)
{
    return BRepBuilderAPI_MakeWire(profileSide(profile, 1), profileSide(profile, -1));
}

TopoDS_Shape blade()
{
    BRepOffsetAPI_ThruSections loft(true, true);
    loft.AddWire(profileWire(root));
    loft.AddWire(profileWire(tip));
    return loft.Shape();
}

/// A point at an angle from the middle of the sector.
gp_Pnt sectorPoint(double x, double radius, double angle)
{
    return {x, -radius * std::sin(angle), radius * std::cos(angle)};
}

TopoDS_Shape sector(double begin, double end, double innerRadius = hubRadius, double outerRadius = shroudRadius)
{
    const double start = -sectorAngle / 2;
    BRepBuilderAPI_MakePolygon outline(sectorPoint(begin, innerRadius, start), sectorPoint(end, innerRadius, start),
                                       sectorPoint(end, outerRadius, start), sectorPoint(begin, outerRadius, start),
                                       true);
    const gp_Ax1 axis(gp_Pnt(0, 0, 0), gp_Dir(1, 0, 0));
    return BRepPrimAPI_MakeRevol(BRepBuilderAPI_MakeFace(outline.Wire()).Shape(), axis, sectorAngle).Shape();
}

NamedFace face(const std::string& name, const gp_Pnt& point) { return {name, point.X(), point.Y(), point.Z()}; }

/// The point of the blade half-way between root and tip, and half-way along the chord: the loft is
/// ruled, so it lies on the straight line between the two profiles.
NamedFace bladeFace(const std::string& name, double side)
{
    const gp_Pnt low = profilePoint(root, 0.5, side);
    const gp_Pnt high = profilePoint(tip, 0.5, side);
    return {name, (low.X() + high.X()) / 2, (low.Y() + high.Y()) / 2, (low.Z() + high.Z()) / 2};
}

/// What every body of the sector has: the walls, the two sides, and the end where the flow leaves it.
std::vector<NamedFace> ductFaces(double begin, double end, const std::string& downstream)
{
    const double middle = (begin + end) / 2;
    const double mean = (hubRadius + shroudRadius) / 2;
    return {face("hub", sectorPoint(middle, hubRadius, sectorAngle / 4)),
            face("shroud", sectorPoint(middle, shroudRadius, sectorAngle / 4)),
            face("periodic-minus", sectorPoint(middle, mean, -sectorAngle / 2)),
            face("periodic-plus", sectorPoint(middle, mean, sectorAngle / 2)),
            face(downstream, sectorPoint(end, mean, 0))};
}

/// The motor sits inside the hub and touches nothing that the air flows through. It is bored by a cut: the
/// two sides of a plain sector are one shape in two places, which cannot have two names.
NamedSolid motor()
{
    const gp_Ax2 axis(gp_Pnt(motorBegin, 0, 0), gp_Dir(1, 0, 0), gp_Dir(0, 0, -1));
    const TopoDS_Shape bore = BRepPrimAPI_MakeCylinder(axis, motorInnerRadius, motorEnd - motorBegin).Shape();
    const TopoDS_Shape whole = sector(motorBegin, motorEnd, motorInnerRadius / 2, motorOuterRadius);
    const double middle = (motorBegin + motorEnd) / 2;
    const double mean = (motorInnerRadius + motorOuterRadius) / 2;
    return {"motor",
            BRepAlgoAPI_Cut(whole, bore).Shape(),
            {face("bore", sectorPoint(middle, motorInnerRadius, 0)),
             face("casing", sectorPoint(middle, motorOuterRadius, 0)),
             face("cut-minus", sectorPoint(middle, mean, -sectorAngle / 2)),
             face("cut-plus", sectorPoint(middle, mean, sectorAngle / 2)),
             face("front", sectorPoint(motorBegin, mean, 0)), face("back", sectorPoint(motorEnd, mean, 0))},
            "drive"};
}

} // namespace

std::vector<NamedSolid> fanPassage()
{
    NamedSolid passage{"passage", BRepAlgoAPI_Cut(sector(inletAt, screenBegin), blade()).Shape(),
                       ductFaces(inletAt, screenBegin, "to-screen")};
    passage.faces.push_back(face("inlet", sectorPoint(inletAt, (hubRadius + shroudRadius) / 2, 0)));
    passage.faces.push_back(bladeFace("blade-suction", 1));
    passage.faces.push_back(bladeFace("blade-pressure", -1));
    return {passage,
            {"screen", sector(screenBegin, screenEnd), ductFaces(screenBegin, screenEnd, "to-duct")},
            {"duct", sector(screenEnd, outletAt), ductFaces(screenEnd, outletAt, "outlet")},
            motor()};
}

} // namespace examples
