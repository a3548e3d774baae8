#include "locationmodel/LocationModel.h"

#include "gtm/LocationModel.h"
#include "locationmodel/TopologyBuilder.h"
#include "locationmodel/TopologyFile.h"
#include "python/bindings/Bindings.h"
#include "python/bindings/Errors.h"
#include "python/bindings/Named.h"
#include "python/bindings/PlacedAt.h"

#include <pybind11/stl/filesystem.h>

#include <array>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

namespace physics::python {

using gtm::bundled::TopologyBuilder;
using pybind11::arg;

namespace {

using FaceSides = std::vector<std::tuple<int, int>>; // zone id, side word
using Side = std::tuple<Text, Text, FaceSides>;      // body, id, zones

struct BodyFactsName {
    static constexpr auto text = pybind11::detail::const_name("BodyFacts");
};
struct FaceFactsName {
    static constexpr auto text = pybind11::detail::const_name("FaceFacts");
};
using BodyFacts = Named<BodyFactsName, std::optional<double>, Text>;                        // volume, colour
using FaceFacts = Named<FaceFactsName, std::optional<double>, std::optional<Triple>, Text>; // area, centroid, colour

void bindRegions(pybind11::module_& module)
{
    // All are known before the members of the first are bound.
    Binding<gtm::Region> region(module, "Region", "gtm::");
    Binding<gtm::Part> part(module, "Part", "gtm::");
    Binding<gtm::Body> body(module, "Body", "gtm::");
    Binding<gtm::Face> face(module, "Face", "gtm::");
    Binding<gtm::FaceUse> faceUse(module, "FaceUse", "gtm::");

    region.def("id", &gtm::Region::id)
        .more(
            "__repr__",
            [](const Self<gtm::Region>& self) {
                const std::string type = pybind11::str(pybind11::type::of(pybind11::cast(self)).attr("__name__"));
                return Text{"<physics.locationmodel." + type + " '" + present<gtm::Region>(self).object().id() + "'>"};
            },
            "");
    part.iterates(&gtm::Part::bodies).def("bodies", &gtm::Part::bodies);
    face.def("firstFaceUse", always(&gtm::Face::firstFaceUse)).def("secondFaceUse", &gtm::Face::secondFaceUse);
    faceUse.def("face", always(&gtm::FaceUse::face))
        .def("body", always(&gtm::FaceUse::body))
        .def("partner", &gtm::FaceUse::partner);
}

/// None before there is a mesh.
std::optional<std::vector<int>> zoneIds(const Self<gtm::bundled::LocationModel>& self, const Held<gtm::Body>& body)
{
    Geometry& geometry = present<gtm::bundled::LocationModel>(self);
    const gtm::TopologyMap* const map = geometry.object().solverZoneMap();
    if (map == nullptr)
        return std::nullopt;
    std::vector<int> ids;
    for (const gtm::ExternalBody& zone : map->externalBodies(objectIn(geometry, body)))
        ids.push_back(zone.zoneId);
    return ids;
}

std::optional<FaceSides> faceSides(const Self<gtm::bundled::LocationModel>& self, const Held<gtm::FaceUse>& faceUse)
{
    Geometry& geometry = present<gtm::bundled::LocationModel>(self);
    const gtm::TopologyMap* const map = geometry.object().solverZoneMap();
    if (map == nullptr)
        return std::nullopt;
    FaceSides sides;
    for (const gtm::ExternalFaceSide& side : map->externalFaceSides(objectIn(geometry, faceUse)))
        sides.emplace_back(side.zoneId, side.sideWord);
    return sides;
}

BodyFacts bodyFacts(const Self<gtm::bundled::LocationModel>& self, const Held<gtm::Body>& body)
{
    Geometry& geometry = present<gtm::bundled::LocationModel>(self);
    const gtm::bundled::BodyFacts& facts = geometry.object().facts(objectIn(geometry, body));
    return {{facts.volume, Text{facts.color}}};
}

FaceFacts faceFacts(const Self<gtm::bundled::LocationModel>& self, const Held<gtm::Face>& face)
{
    Geometry& geometry = present<gtm::bundled::LocationModel>(self);
    const gtm::bundled::FaceFacts& facts = geometry.object().facts(objectIn(geometry, face));
    std::optional<Triple> centroid;
    if (facts.centroid)
        centroid = give(geometry, *facts.centroid);
    return {{facts.area, centroid, Text{facts.color}}};
}

void bindModel(pybind11::module_& module)
{
    using gtm::bundled::LocationModel;
    using pybind11::overload_cast;

    Binding<LocationModel> model(module, "LocationModel", "gtm::");
    model.iterates(&LocationModel::bodies)
        .def("parts", &LocationModel::parts)
        .def("bodies", &LocationModel::bodies)
        .def("faces", &LocationModel::faces)
        .def("faceUses", wrap(overload_cast<>(&LocationModel::faceUses, pybind11::const_)))
        .def("faceUses", wrap(overload_cast<const gtm::Body*>(&LocationModel::faceUses, pybind11::const_)), arg("body"))
        .def("part", &LocationModel::part, arg("body"))
        .def("facts", bodyFacts, arg("body"))
        .def("facts", faceFacts, arg("face"))
        .def("lastRefusal", &LocationModel::lastRefusal)
        .def("lastRefusedState",
             [](const Self<LocationModel>& self) {
                 return State(present<LocationModel>(self).object().lastRefusedState());
             })
        .more(
            "find_region_by_id",
            [](const Self<LocationModel>& self, const Text& id) {
                Geometry& geometry = present<LocationModel>(self);
                return give(geometry, geometry.object().topology()->findRegionById(id.bytes));
            },
            docstring("gtm::Topology::findRegionById").c_str(), arg("id"))
        .more(
            "find_body_by_id",
            [](const Self<LocationModel>& self, const Text& id) {
                Geometry& geometry = present<LocationModel>(self);
                return give(geometry, geometry.object().topology()->findBodyById(id.bytes));
            },
            docstring("gtm::Topology::findBodyById").c_str(), arg("id"))
        .more(
            "__repr__",
            [](const Self<LocationModel>& self) {
                const LocationModel& object = present<LocationModel>(self).object();
                return Text{"<physics.locationmodel.LocationModel parts=" + std::to_string(object.parts().size()) +
                            " bodies=" + std::to_string(object.bodies().size()) +
                            " faces=" + std::to_string(object.faces().size()) + ">"};
            },
            "")
        .more("zone_ids", zoneIds, "The solver zones of a body, in the order of the map; None before there is a mesh.",
              arg("body"))
        .more(
            "face_sides", faceSides,
            "The solver zones of a face use in the order of the map, each with its side word, which is not zero when\n"
            "the mesh faces of the zone look the other way; None before there is a mesh.",
            arg("face_use"));
}

void bindLocation(pybind11::module_& module)
{
    const auto doc = [](const char* member) { return docstring(std::string("gtm::Location::") + member); };
    using Self = std::shared_ptr<PlacedAt>;

    pybind11::class_<PlacedAt, Self>(module, "Location",
                                     "Where a volume or a boundary lies. Each answer is that of the moment; an error\n"
                                     "once that object has ended.")
        .def(
            "is_implicit", [](const Self& self) { return self->location().isImplicit(); },
            pybind11::doc(doc("isImplicit").c_str()))
        .def(
            "components",
            [](const Self& self) { return give(self->geometry(), self->location().components().regions()); },
            pybind11::doc(doc("components").c_str()))
        .def(
            "resolve", [](const Self& self) { return give(self->geometry(), self->location().resolve().regions()); },
            pybind11::doc(doc("resolve").c_str()))
        .def(
            "location_string",
            [](const Self& self, bool resolved) { return Text{self->location().locationString(resolved)}; },
            pybind11::doc(doc("locationString").c_str()), arg("resolved") = false);
}

TopologyBuilder::Side sideOf(const Side& side)
{
    TopologyBuilder::Side result{std::get<0>(side).bytes, std::get<1>(side).bytes, {}};
    for (const auto& [zoneId, sideWord] : std::get<2>(side))
        result.zones.push_back({zoneId, sideWord});
    return result;
}

void bindBuilder(pybind11::module_& module)
{
    const auto doc = [](const char* member) { return docstring(std::string("gtm::TopologyBuilder") + member); };
    using Self = std::shared_ptr<TopologyBuilder>;

    pybind11::class_<TopologyBuilder, Self>(module, "TopologyBuilder", doc("").c_str())
        .def(pybind11::init<>())
        .def(
            "add_part", [](const Self& self, const Text& id) { self->addPart(id.bytes); },
            pybind11::doc("Adds a part, for the bodies that will name it."), arg("id"))
        .def(
            "add_body",
            [](const Self& self, const Text& id, const Text& part, const std::vector<std::int32_t>& zoneIds) {
                self->addBody(id.bytes, part.bytes, zoneIds);
            },
            pybind11::doc(doc("::addBody").c_str()), arg("id"), arg("part") = Text(),
            arg("zone_ids") = std::vector<std::int32_t>())
        .def(
            "_add_face",
            [](const Self& self, const Text& id, const Side& first, const std::optional<Side>& second) {
                self->addFace(id.bytes, sideOf(first), second ? std::optional(sideOf(*second)) : std::nullopt);
            },
            pybind11::doc(doc("::addFace").c_str()), arg("id"), arg("first"), arg("second") = pybind11::none())
        .def(
            "describe_body",
            [](const Self& self, const Text& id, const BodyFacts& facts) {
                const auto& [volume, color] = facts.values;
                self->describeBody(id.bytes, {volume, color.bytes});
            },
            pybind11::doc(doc("::describeBody").c_str()), arg("id"), arg("facts"))
        .def(
            "describe_face",
            [](const Self& self, const Text& id, const FaceFacts& facts) {
                const auto& [area, centroid, color] = facts.values;
                std::optional<std::array<double, 3>> point;
                if (centroid)
                    point = Argument<std::array<double, 3>>::use(self, *centroid);
                self->describeFace(id.bytes, {area, point, color.bytes});
            },
            pybind11::doc(doc("::describeFace").c_str()), arg("id"), arg("facts"))
        .def(
            "build", [](const Self& self) { return std::make_shared<Geometry>(self->build()); },
            pybind11::doc(doc("::build").c_str()));
}

} // namespace

void bindLocationModel(pybind11::module_& module)
{
    bindRegions(module);
    bindModel(module);
    bindLocation(module);
    bindBuilder(module);
    bindError<gtm::bundled::TopologyError>(module, "TopologyError", PyExc_ValueError, docstring("gtm::TopologyError"));

    module.def(
        "read_topology",
        [](const std::filesystem::path& file) { return std::make_shared<Geometry>(gtm::bundled::readTopology(file)); },
        pybind11::doc(docstring("gtm::readTopology").c_str()), arg("file"));
    module.def(
        "read_topology_text",
        [](const Text& text, const Text& name) {
            return std::make_shared<Geometry>(gtm::bundled::readTopologyText(text.bytes, name.bytes));
        },
        pybind11::doc(docstring("gtm::readTopologyText").c_str()), arg("text"), arg("name"));
    module.def(
        "write_topology",
        [](const Self<gtm::bundled::LocationModel>& model) {
            return Text{gtm::bundled::writeTopology(present<gtm::bundled::LocationModel>(model).object())};
        },
        pybind11::doc(docstring("gtm::writeTopology").c_str()), arg("model"));
}

} // namespace physics::python
