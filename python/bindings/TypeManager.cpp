#include "physics/TypeManager.h"

#include "python/bindings/AllowedTypes.h"
#include "python/bindings/Bindings.h"

namespace physics::python {

void bind(Binding<TypeManager>& type)
{
    type.type().def(pybind11::init<>());
    bindAllowedTypes(type);
    type.as("report", "dump", [](const Self<TypeManager>& self) {
        const TypeManager& tables = present<TypeManager>(self).object();
        return written([&](std::ostream& stream) { tables.dump(stream); });
    });
}

} // namespace physics::python
