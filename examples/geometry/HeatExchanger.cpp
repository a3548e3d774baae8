#include "examples/geometry/HeatExchanger.h"

#include <BRepAlgoAPI_Common.hxx>
#include <BRepAlgoAPI_Cut.hxx>
#include <BRepAlgoAPI_Fuse.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Ax2.hxx>
#include <gp_Dir.hxx>
#include <gp_Pnt.hxx>

namespace examples {

namespace {

constexpr double tubeLength = 400;
constexpr double tubeInnerRadius = 8;
constexpr double tubeOuterRadius = 10;
constexpr double shellBegin = 30;
constexpr double shellEnd = 370;
constexpr double shellRadius = 20;
constexpr double nozzleRadius = 8;
constexpr double nozzleTop = 45;
constexpr double coldInletAt = 340;
constexpr double coldOutletAt = 60;

/// The seams of the cylinders lie at y < 0, in the half that is cut away.
TopoDS_Shape alongX(double begin, double end, double radius)
{
    const gp_Ax2 axis(gp_Pnt(begin, 0, 0), gp_Dir(1, 0, 0), gp_Dir(0, -1, 0));
    return BRepPrimAPI_MakeCylinder(axis, radius, end - begin).Shape();
}

TopoDS_Shape nozzle(double x)
{
    const gp_Ax2 axis(gp_Pnt(x, 0, 0), gp_Dir(0, 0, 1), gp_Dir(0, -1, 0));
    return BRepPrimAPI_MakeCylinder(axis, nozzleRadius, nozzleTop).Shape();
}

TopoDS_Shape halfOf(const TopoDS_Shape& shape)
{
    const TopoDS_Shape half = BRepPrimAPI_MakeBox(gp_Pnt(-100, 0, -100), gp_Pnt(500, 100, 100)).Shape();
    return BRepAlgoAPI_Common(shape, half).Shape();
}

} // namespace

std::vector<NamedSolid> heatExchanger()
{
    const TopoDS_Shape bore = alongX(0, tubeLength, tubeInnerRadius);
    const TopoDS_Shape bar = alongX(0, tubeLength, tubeOuterRadius);
    TopoDS_Shape shell = alongX(shellBegin, shellEnd, shellRadius);
    shell = BRepAlgoAPI_Fuse(shell, nozzle(coldInletAt)).Shape();
    shell = BRepAlgoAPI_Fuse(shell, nozzle(coldOutletAt)).Shape();

    const double middle = tubeLength / 2;
    const double inBore = tubeInnerRadius / 2;
    const double inTube = (tubeInnerRadius + tubeOuterRadius) / 2;
    const double inShell = (tubeOuterRadius + shellRadius) / 2;
    const double inNozzle = (shellRadius + nozzleTop) / 2;
    return {
        {"hot",
         halfOf(bore),
         {{"inlet", 0, inBore, 0},
          {"outlet", tubeLength, inBore, 0},
          {"symmetry", middle, 0, 0},
          {"tube-wall", middle, tubeInnerRadius, 0}}},
        {"cold",
         halfOf(BRepAlgoAPI_Cut(shell, bar).Shape()),
         {{"inlet", coldInletAt, nozzleRadius / 2, nozzleTop},
          {"outlet", coldOutletAt, nozzleRadius / 2, nozzleTop},
          {"inlet-nozzle", coldInletAt, nozzleRadius, inNozzle},
          {"outlet-nozzle", coldOutletAt, nozzleRadius, inNozzle},
          {"shell", middle, shellRadius, 0},
          {"shell-front", shellBegin, inShell, 0},
          {"shell-back", shellEnd, inShell, 0},
          {"symmetry-top", middle, 0, inShell},
          {"symmetry-bottom", middle, 0, -inShell},
          {"tube-wall", middle, tubeOuterRadius, 0}}},
        {"tube",
         halfOf(BRepAlgoAPI_Cut(bar, bore).Shape()),
         {{"front-end", 0, inTube, 0},
          {"back-end", tubeLength, inTube, 0},
          {"front-outside", shellBegin / 2, tubeOuterRadius, 0},
          {"back-outside", (shellEnd + tubeLength) / 2, tubeOuterRadius, 0},
          {"symmetry-top", middle, 0, inTube},
          {"symmetry-bottom", middle, 0, -inTube}}},
    };
}

} // namespace examples
