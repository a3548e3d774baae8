#pragma once

#include "physics/Physics.h"
#include "python/bindings/Exchange.h"

#include <pybind11/stl.h>

#include <optional>
#include <vector>

namespace physics::python {

/// A `Physics::Complaint` on its way to Python.
struct Complaint {
    std::optional<Held<physics::Region>> region;
    std::vector<Text> lines;
};

} // namespace physics::python

namespace pybind11::detail {

/// A `physics.values.Complaint`, which is a plain tuple with names.
template <>
class type_caster<physics::python::Complaint> {
public:
    PYBIND11_TYPE_CASTER(physics::python::Complaint, const_name("Complaint"));

    static handle cast(const physics::python::Complaint& complaint, return_value_policy, handle)
    {
        static const pybind11::handle type =
            object(module_::import("physics.values").attr("Complaint")).release(); // stays until the process ends
        return type(complaint.region, complaint.lines).release();
    }
};

} // namespace pybind11::detail
