#include "physics/TypeNames.h"
#include "python/bindings/Bindings.h"
#include "python/bindings/Building.h"
#include "python/bindings/Errors.h"

#include <memory>
#include <string>

namespace physics::python {
namespace {

void bindErrors(pybind11::module_& module)
{
    bindError<EndedError>(module, "EndedError", PyExc_ReferenceError, "An object of a set-up was used after its end.");
    bindError<RefusedError>(
        module, "RefusedError", PyExc_RuntimeError,
        "Within a `building` block, the location model refused to make something; the text says why.");
}

void bindBuilding(pybind11::module_& module)
{
    using Self = std::shared_ptr<Building>;
    pybind11::class_<Building, Self>(module, "Building", "What `Physics.building` answers.")
        .def("__enter__", [](const Self& self) { return self->enter(); })
        .def("__exit__", [](const Self& self, const pybind11::args&) { self->exit(); });
}

/// "name=NAME type=TYPE" for what has them.
template <class T>
std::string description(const T& object)
{
    std::string text;
    if constexpr (requires { object.name(); })
        text += " name='" + object.name() + "'";
    if constexpr (std::is_same_v<T, ThreadBundle>)
        text += " type=" + displayName(object.threadType());
    else if constexpr (std::is_same_v<T, BoundaryPatch>)
        text += " type=" + displayName(object.boundary()->type());
    else if constexpr (requires { object.type(); })
        text += " type=" + displayName(object.type());
    return text;
}

template <class T>
void bindRepresentation(Binding<T>& type, const std::string& name)
{
    type.more(
        "__repr__",
        [name](const Self<T>& self) {
            const HeldAs<T>& held = present<T>(self);
            const std::string id = "<physics." + name + " id=" + held.id();
            return Text{held.hasEnded() ? id + " ended>" : id + description(held.object()) + ">"};
        },
        "");
}

template <class... T>
void bindEach(Binding<T>&... types)
{
    (bind(types), ...);
}

void bindRepresentation(Binding<Physics>& type)
{
    type.more(
        "__repr__",
        [](const Self<Physics>& self) {
            const Physics& physics = present<Physics>(self).object();
            return Text{"<physics.Physics volumes=" + std::to_string(physics.volumes().size()) +
                        " boundaries=" + std::to_string(physics.boundaries().size()) +
                        " interfaces=" + std::to_string(physics.interfaces().size()) + ">"};
        },
        "");
}

void bindObjects(pybind11::module_& module)
{
    pybind11::class_<AnyHandle, std::shared_ptr<AnyHandle>>(
        module, "Object", "An object of a set-up. It keeps its Physics alive, and so itself until it is destroyed.")
        .def(
            "has_ended", [](const std::shared_ptr<AnyHandle>& self) { return self->hasEnded(); },
            pybind11::doc("Whether the object has ended. Then all else raises `EndedError`, but for interfaces, of\n"
                          "which the plain values stay readable."));
    Binding<Physics> physics(module, "Physics");
    bindBuilding(module);
    Binding<physics::Region> region(module, "Region");
    Binding<Model> model(module, "Model");
    Binding<Volume> volume(module, "Volume");
    Binding<Boundary> boundary(module, "Boundary");
    Binding<Interface> interface(module, "Interface");
    Binding<BoundaryPatch> patch(module, "BoundaryPatch");
    Binding<Settings> settings(module, "Settings");
    Binding<ThreadBundle> bundle(module, "ThreadBundle");
    Binding<TypeManager> tables(module, "TypeManager");

    bindEach(physics, region, model, volume, boundary, interface, patch, settings, bundle, tables);
    bindRepresentation(physics);
    bindRepresentation(model, "Model");
    bindRepresentation(volume, "Volume");
    bindRepresentation(boundary, "Boundary");
    bindRepresentation(interface, "Interface");
    bindRepresentation(patch, "BoundaryPatch");
    bindRepresentation(settings, "Settings");
    bindRepresentation(bundle, "ThreadBundle");
}

} // namespace
} // namespace physics::python

PYBIND11_MODULE(_native, module)
{
    using namespace physics::python;

    module.doc() = "The C++ libraries as Python sees them; `physics` and `physics.locationmodel` show what is in here.";
    module.attr("__module__") = "physics"; // where users find the classes
    bindErrors(module);
    pybind11::module_ locationModel = module.def_submodule("locationmodel", "What `physics.locationmodel` shows.");
    locationModel.attr("__module__") = "physics.locationmodel";
    bindLocationModel(locationModel);
    bindReaders(locationModel);
    bindObjects(module);
    bindFunctions(module);
}
