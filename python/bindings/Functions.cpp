#include "physics/NameManager.h"
#include "physics/TypeManager.h"
#include "physics/TypeNames.h"
#include "python/bindings/Bindings.h"

namespace physics::python {

using pybind11::arg;
using pybind11::doc;

namespace {

template <class... E>
void bindDisplayNames(pybind11::module_& module)
{
    const std::string text = docstring("displayName");
    (module.def(
         "_display_name", [](E value) { return Text{displayName(value)}; }, doc(text.c_str()), arg("value")),
     ...);
}

template <class... E>
void bindSchemeNames(pybind11::module_& module)
{
    const std::string text = docstring("schemeName");
    (module.def(
         "_scheme_name", [](E value) { return Text{schemeName(value)}; }, doc(text.c_str()), arg("value")),
     ...);
}

/// A class without objects, so nothing can be made of it.
class Names {};

void bindNameManager(pybind11::module_& module)
{
    pybind11::class_<Names> type(module, "NameManager", docstring("NameManager").c_str());
    const auto add = [&type](const char* member, std::string (*normalise)(const std::string&)) {
        type.def_static(
            pythonName(member).c_str(), [normalise](const Text& name) { return Text{normalise(name.bytes)}; },
            doc(docstring(std::string("NameManager::") + member).c_str()), arg("name"));
    };
    add("normalisePartName", &NameManager::normalisePartName);
    add("normaliseRegionName", &NameManager::normaliseRegionName);
    add("normalisePhysicsName", &NameManager::normalisePhysicsName);
    add("normaliseThreadName", &NameManager::normaliseThreadName);
}

} // namespace

void bindFunctions(pybind11::module_& module)
{
    bindDisplayNames<BoundaryTag, BoundaryType, Connectivity, DomainType, InterfaceType, MeshConnectivity, Periodicity,
                     SettingsType, ShellType, State, ThreadType, TopologyType, VolumeType>(module);
    bindSchemeNames<BoundaryTag, BoundaryType, Connectivity, DomainType, InterfaceType, MeshConnectivity, ShellType,
                    ThreadType, VolumeType>(module);
    bindNameManager(module);
    module.def("solver_thread_type", &solverThreadType, doc(docstring("solverThreadType").c_str()), arg("thread_type"));
}

} // namespace physics::python
