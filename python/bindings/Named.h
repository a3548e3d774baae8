#pragma once

#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <tuple>
#include <utility>

namespace physics::python {

/// Values that are a tuple with names in Python: the one of `physics.values` that `Name::text` names.
template <class Name, class... T>
struct Named {
    std::tuple<T...> values;
};

} // namespace physics::python

namespace pybind11::detail {

/// Any sequence with the right values is taken for such a tuple.
template <class Name, class... T>
class type_caster<physics::python::Named<Name, T...>> {
    using Values = std::tuple<T...>;
    using Type = physics::python::Named<Name, T...>;

public:
    PYBIND11_TYPE_CASTER(Type, Name::text);

    bool load(handle source, bool converts)
    {
        make_caster<Values> values;
        if (!values.load(source, converts))
            return false;
        value.values = cast_op<Values>(std::move(values));
        return true;
    }

    static handle cast(const Type& named, return_value_policy, handle)
    {
        static const pybind11::handle type =
            object(module_::import("physics.values").attr(Name::text.text)).release(); // stays until the process ends
        return object(type(*pybind11::cast(named.values))).release();
    }
};

} // namespace pybind11::detail
