#include "locationmodel/TopologyBuilder.h"
#include "python/bindings/Bindings.h"
#include "python/bindings/Errors.h"

#include <pybind11/stl/filesystem.h>

#ifdef PHYSICS_HAS_CAD
#include "importers/cad/CadReader.h"
#endif
#ifdef PHYSICS_HAS_CGNS
#include "importers/cgns/CgnsReader.h"
#endif

#include <algorithm>
#include <array>
#include <cstddef>
#include <filesystem>
#include <iterator>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

// The readers of geometry and mesh files give plain tuples here; `physics/locationmodel.py` gives them names. A module
// that was built without a reader has the function all the same, so that it looks the same everywhere.

namespace physics::python {
namespace {

using pybind11::arg;

using Lines = std::vector<Text>;
using Names = std::vector<std::tuple<Text, Text>>;
using Zone = std::tuple<Text, Text, Text>;
using Condition = std::tuple<Text, Text, Text, Text>;
using Periodic = std::tuple<Text, Text, Text, bool, Triple, Triple, Triple>;
using Triangles = std::tuple<Text, std::vector<Triple>, std::vector<std::array<std::size_t, 3>>>;
using CadAnswer = std::tuple<std::shared_ptr<Geometry>, Lines, std::vector<Triangles>, Names>;
using CgnsAnswer = std::tuple<std::shared_ptr<Geometry>, std::vector<Condition>, std::vector<Periodic>, Lines,
                              std::vector<Zone>, Names>;

#if !defined(PHYSICS_HAS_CAD) || !defined(PHYSICS_HAS_CGNS)
[[noreturn]] void refuse(const std::filesystem::path& file, const std::string& kind)
{
    throw gtm::bundled::TopologyError(file.string() + ": this module was built without the reader of " + kind +
                                      " files; make a topology file of it elsewhere.");
}
#endif

#if defined(PHYSICS_HAS_CAD) || defined(PHYSICS_HAS_CGNS)
Lines linesOf(const std::vector<std::string>& texts)
{
    Lines lines;
    for (const std::string& text : texts)
        lines.push_back({text});
    return lines;
}

Names namesOf(const std::map<std::string, std::string>& renamed)
{
    Names names;
    for (const auto& [id, name] : renamed)
        names.emplace_back(Text{id}, Text{name});
    return names;
}

Triple tripleOf(const std::array<double, 3>& values) { return {values[0], values[1], values[2]}; }
#endif

CadAnswer readCad(const std::filesystem::path& file, std::optional<bool> imprint, std::optional<double> tolerance)
{
#ifdef PHYSICS_HAS_CAD
    gtm::bundled::CadResult result = gtm::bundled::readCad(file, {imprint, tolerance});
    std::vector<Triangles> triangles;
    for (const gtm::bundled::CadTriangles& face : result.triangles) {
        std::vector<Triple> points;
        std::transform(face.points.begin(), face.points.end(), std::back_inserter(points), tripleOf);
        triangles.emplace_back(Text{face.face}, std::move(points), face.triangles);
    }
    return {std::make_shared<Geometry>(std::move(result.model)), linesOf(result.notes), std::move(triangles),
            namesOf(result.renamed)};
#else
    static_cast<void>(imprint);
    static_cast<void>(tolerance);
    refuse(file, "geometry");
#endif
}

CgnsAnswer readCgns(const std::filesystem::path& file, bool bodiesAreFamilies)
{
#ifdef PHYSICS_HAS_CGNS
    gtm::bundled::CgnsResult result = gtm::bundled::readCgns(file, {bodiesAreFamilies});
    std::vector<Zone> zones;
    for (const gtm::bundled::CgnsZone& zone : result.zones)
        zones.emplace_back(Text{zone.body}, Text{zone.name}, Text{zone.family});
    std::vector<Condition> conditions;
    for (const gtm::bundled::CgnsCondition& condition : result.conditions)
        conditions.emplace_back(Text{condition.face}, Text{condition.type}, Text{condition.family},
                                Text{condition.name});
    std::vector<Periodic> periodics;
    for (const gtm::bundled::CgnsPeriodic& periodic : result.periodics)
        periodics.emplace_back(Text{periodic.name}, Text{periodic.firstFace}, Text{periodic.secondFace},
                               periodic.kind == gtm::bundled::CgnsPeriodic::Kind::Rotation,
                               tripleOf(periodic.rotationCentre), tripleOf(periodic.rotationAngle),
                               tripleOf(periodic.translation));
    return {std::make_shared<Geometry>(std::move(result.model)),
            conditions,
            periodics,
            linesOf(result.notes),
            zones,
            namesOf(result.renamed)};
#else
    static_cast<void>(bodiesAreFamilies);
    refuse(file, "CGNS");
#endif
}

} // namespace

void bindReaders(pybind11::module_& module)
{
    module.def("_read_cad", readCad, arg("file"), arg("imprint") = pybind11::none(),
               arg("triangle_tolerance") = pybind11::none());
    module.def("_read_cgns", readCgns, arg("file"), arg("bodies_are_families") = false);
    const pybind11::object base = module.attr("TopologyError");
#ifdef PHYSICS_HAS_CAD
    bindError<gtm::bundled::CadError>(module, "CadError", base, docstring("gtm::CadError"));
#else
    module.attr("CadError") = base;
#endif
#ifdef PHYSICS_HAS_CGNS
    bindError<gtm::bundled::CgnsError>(module, "CgnsError", base, docstring("gtm::CgnsError"));
#else
    module.attr("CgnsError") = base;
#endif
}

} // namespace physics::python
