#include "physics/Physics.h"

#include "python/bindings/AllowedTypes.h"
#include "python/bindings/Bindings.h"
#include "python/bindings/Building.h"
#include "python/bindings/Creation.h"
#include "python/bindings/Named.h"

#include <memory>
#include <optional>
#include <vector>

namespace physics::python {

using pybind11::arg;
using pybind11::none;
using pybind11::overload_cast;

using Regions = const std::vector<gtm::Region*>&;
using Name = const std::string&;

namespace {

void bindCreation(Binding<Physics>& type)
{
    type.def("createModel", always(&Physics::createModel))
        .def("primaryModel", always(&Physics::primaryModel))
        .def("createVolume", created(overload_cast<Name, Name, VolumeType, Model*>(&Physics::createVolume)),
             arg("name"), arg("location"), arg("type"), arg("model") = none())
        .def("createVolume", created(overload_cast<Name, Regions, VolumeType, Model*>(&Physics::createVolume)),
             arg("name"), arg("regions"), arg("type"), arg("model") = none())
        .def("createDefaultVolume", created(&Physics::createDefaultVolume), arg("name"), arg("type"),
             arg("model") = none())
        .def("createInterface", created(&Physics::createInterface), arg("name"), arg("first"), arg("second"),
             arg("type"), arg("model") = none())
        .def("createTranslationallyPeriodicInterface", created(&Physics::createTranslationallyPeriodicInterface),
             arg("name"), arg("first"), arg("second"), arg("offset"), arg("type"), arg("model") = none())
        .def("createRotationallyPeriodicInterface", created(&Physics::createRotationallyPeriodicInterface), arg("name"),
             arg("first"), arg("second"), arg("angle"), arg("origin"), arg("direction"), arg("type"),
             arg("model") = none());
}

void bindLists(Binding<Physics>& type)
{
    type.iterates(&Physics::volumes)
        .def("defaultVolume", &Physics::defaultVolume)
        .def("hasDefaultVolume", &Physics::hasDefaultVolume)
        .def("findVolumeById", &Physics::findVolumeById, arg("id"))
        .def("findBoundaryById", &Physics::findBoundaryById, arg("id"))
        .def("findInterfaceById", &Physics::findInterfaceById, arg("id"))
        .def("findModelById", &Physics::findModelById, arg("id"))
        .def("findSettingsById", &Physics::findSettingsById, arg("id"))
        .def("findThreadBundleByThreadId", &Physics::findThreadBundleByThreadId, arg("id"))
        .def("findSettingsByThreadId", &Physics::findSettingsByThreadId, arg("id"))
        .def("findThreadBundleByZoneId", &Physics::findThreadBundleByZoneId, arg("id"))
        .def("findSettingsByZoneId", &Physics::findSettingsByZoneId, arg("id"))
        .def("volumes", &Physics::volumes)
        .def("interfaces", &Physics::interfaces)
        .def("unlistedRegions", &Physics::unlistedRegions)
        .def("models", &Physics::models)
        .def("boundaries", &Physics::boundaries)
        .def("settings", &Physics::settings)
        .def("threadBundles", &Physics::threadBundles)
        .def("threadIds", &Physics::threadIds)
        .def("zoneIds", wrap(overload_cast<>(&Physics::zoneIds, pybind11::const_)));
}

void bindChanges(Binding<Physics>& type)
{
    type.def("clear", &Physics::clear)
        .def("removeRegions", &Physics::removeRegions, arg("regions"))
        .def("deactivateVolumes", &Physics::deactivateVolumes, arg("volumes"))
        .def("activateGroup", &Physics::activateGroup, arg("group"))
        .def("activateVolumes", &Physics::activateVolumes, arg("volumes"))
        .def("activationGroups", &Physics::activationGroups)
        .def("activationGroupVolumes", &Physics::activationGroupVolumes, arg("group"));
}

void bindMask(Binding<Physics>& type)
{
    type.def("maskBodies", &Physics::maskBodies, arg("bodies"))
        .def("unmaskBodies", &Physics::unmaskBodies, arg("bodies"))
        .def("setMaskedBodies", &Physics::setMaskedBodies, arg("bodies"))
        .def("maskParts", &Physics::maskParts, arg("parts"))
        .def("unmaskParts", &Physics::unmaskParts, arg("parts"))
        .def("setMaskedParts", &Physics::setMaskedParts, arg("parts"))
        .def("isMasked", wrap(overload_cast<gtm::Body*>(&Physics::isMasked, pybind11::const_)), arg("body"))
        .def("isMasked", wrap(overload_cast<gtm::Face*>(&Physics::isMasked, pybind11::const_)), arg("face"))
        .def("isMasked", wrap(overload_cast<gtm::FaceUse*>(&Physics::isMasked, pybind11::const_)), arg("face_use"))
        .def("isMasked", wrap(overload_cast<gtm::Part*>(&Physics::isMasked, pybind11::const_)), arg("part"))
        .def("maskedBodies", &Physics::maskedBodies)
        .def("unmaskedBodies", &Physics::unmaskedBodies)
        .def("maskedFaces", &Physics::maskedFaces)
        .def("unmaskedFaces", &Physics::unmaskedFaces)
        .def("maskedFaceUses", &Physics::maskedFaceUses)
        .def("unmaskedFaceUses", &Physics::unmaskedFaceUses)
        .def("maskedParts", &Physics::maskedParts)
        .def("unmaskedParts", &Physics::unmaskedParts)
        .def("unusedBodies", &Physics::unusedBodies);
}

struct ComplaintName {
    static constexpr auto text = pybind11::detail::const_name("Complaint");
};
using Complaint = Named<ComplaintName, std::optional<Held<physics::Region>>, std::vector<Text>>;

std::vector<Complaint> complaints(const Self<Physics>& self, bool ignoreWarnings)
{
    SetUp& setUp = present<Physics>(self);
    std::vector<Complaint> result;
    for (const Physics::Complaint& complaint : setUp.object().complaints(ignoreWarnings))
        result.push_back({{give(setUp, complaint.region), give(setUp, complaint.lines)}});
    return result;
}

void bindReaders(Binding<Physics>& type)
{
    type.def("isTopologyValid", &Physics::isTopologyValid, arg("lenient") = false)
        .def("isPhysicsValid", &Physics::isPhysicsValid, arg("lenient") = false)
        .def("isValid", &Physics::isValid, arg("lenient") = false)
        .def("validate", &Physics::validate, arg("detailed") = true, arg("ignore_warnings") = false)
        .def("complaints", complaints, arg("ignore_warnings") = false)
        .as("report", "dump",
            [](const Self<Physics>& self) {
                const Physics& physics = present<Physics>(self).object();
                return written([&](std::ostream& stream) { physics.dump(stream); });
            })
        .def("serialise", &Physics::serialise)
        .def("restore", &Physics::restore, arg("text"))
        .def("checkSerialised", &Physics::checkSerialised, arg("text"));
}

template <class... E>
void bindTypeNames(Binding<Physics>& type)
{
    (type.def("typeToName", wrap(overload_cast<E>(&Physics::typeToName<E>, pybind11::const_)), arg("value")), ...);
}

template <class... E>
void bindSchemeNames(Binding<Physics>& type)
{
    (type.def("typeToSchemeName", wrap(overload_cast<E>(&Physics::typeToSchemeName<E>, pybind11::const_)),
              arg("value")),
     ...);
}

void bindVocabulary(Binding<Physics>& type)
{
    bindTypeNames<BoundaryTag, BoundaryType, Connectivity, DomainType, InterfaceType, MeshConnectivity, Periodicity,
                  SettingsType, ShellType, ThreadType, TopologyType, VolumeType>(type);
    bindSchemeNames<BoundaryTag, BoundaryType, Connectivity, DomainType, InterfaceType, MeshConnectivity, ShellType,
                    ThreadType, VolumeType>(type);
    type.def("threadTypeToSolverThreadType", &Physics::threadTypeToSolverThreadType, arg("type"));
    bindAllowedTypes(type);
}

} // namespace

void bind(Binding<Physics>& type)
{
    type.type().def(pybind11::init([](const std::shared_ptr<Geometry>& locationModel, bool enforceRestrictions) {
                        if (locationModel == nullptr)
                            throw pybind11::type_error("a location model is needed here, not None");
                        return std::make_shared<SetUp>(locationModel, enforceRestrictions);
                    }),
                    pybind11::doc(docstring("Physics::Physics").c_str()), arg("location_model"),
                    arg("enforce_restrictions") = true);
    type.def("locationModel",
             [](const Self<Physics>& self) {
                 return std::static_pointer_cast<Geometry>(present<Physics>(self).geometry().shared_from_this());
             })
        .def("enforceRestrictions", &Physics::enforceRestrictions)
        .def("setEnforceRestrictions", &Physics::setEnforceRestrictions, arg("value"))
        .more(
            "building", [](const Self<Physics>& self) { return std::make_shared<Building>(present<Physics>(self)); },
            "A context in which everything that the location model refuses to make raises `RefusedError`, with its\n"
            "reasons, instead of answering None:\n\n"
            "    with setup.building():\n"
            "        setup.create_volume(\"water\", \"pipe\", VolumeType.FLUID)\n\n"
            "What was made before the refusal stays.");
    bindCreation(type);
    bindLists(type);
    bindChanges(type);
    bindMask(type);
    bindReaders(type);
    bindVocabulary(type);
}

} // namespace physics::python
