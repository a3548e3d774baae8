#pragma once

#include "python/bindings/Binding.h"

namespace physics::python {

// Each binds the members of one class, in the source named after it. All classes are known to Python before the first
// member is bound, so that the signatures in docstrings show their names.

void bind(Binding<Boundary>& type);
void bind(Binding<BoundaryPatch>& type);
void bind(Binding<Interface>& type);
void bind(Binding<Model>& type);
void bind(Binding<Physics>& type);
void bind(Binding<physics::Region>& type);
void bind(Binding<Settings>& type);
void bind(Binding<ThreadBundle>& type);
void bind(Binding<TypeManager>& type);
void bind(Binding<Volume>& type);

/// The classes and functions of the location model.
void bindLocationModel(pybind11::module_& module);

/// Reads geometry and mesh files.
void bindReaders(pybind11::module_& module);

/// Names of enumerators, and the other functions that belong to no object.
void bindFunctions(pybind11::module_& module);

} // namespace physics::python
