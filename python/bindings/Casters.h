#pragma once

#include "physics/Types.h"

#include <pybind11/pybind11.h>

#include <cstddef>
#include <string>
#include <type_traits>

// How texts and enumerators go to Python and come back. Every source that binds something includes this first, so
// that each type has one form everywhere.

namespace physics::python {

/// A text of the library. Bytes that are not UTF-8 go through Python unchanged, as in names of files there.
struct Text {
    std::string bytes;
};

/// The name of an enumeration in `physics.enumerations`.
template <class E>
struct EnumerationName;
template <>
struct EnumerationName<BoundaryTag> {
    static constexpr auto text = pybind11::detail::const_name("BoundaryTag");
};
template <>
struct EnumerationName<BoundaryType> {
    static constexpr auto text = pybind11::detail::const_name("BoundaryType");
};
template <>
struct EnumerationName<Connectivity> {
    static constexpr auto text = pybind11::detail::const_name("Connectivity");
};
template <>
struct EnumerationName<DomainType> {
    static constexpr auto text = pybind11::detail::const_name("DomainType");
};
template <>
struct EnumerationName<InterfaceType> {
    static constexpr auto text = pybind11::detail::const_name("InterfaceType");
};
template <>
struct EnumerationName<MeshConnectivity> {
    static constexpr auto text = pybind11::detail::const_name("MeshConnectivity");
};
template <>
struct EnumerationName<Periodicity> {
    static constexpr auto text = pybind11::detail::const_name("Periodicity");
};
template <>
struct EnumerationName<SettingsType> {
    static constexpr auto text = pybind11::detail::const_name("SettingsType");
};
template <>
struct EnumerationName<ShellType> {
    static constexpr auto text = pybind11::detail::const_name("ShellType");
};
template <>
struct EnumerationName<Side> {
    static constexpr auto text = pybind11::detail::const_name("Side");
};
template <>
struct EnumerationName<State> {
    static constexpr auto text = pybind11::detail::const_name("State");
};
template <>
struct EnumerationName<ThreadType> {
    static constexpr auto text = pybind11::detail::const_name("ThreadType");
};
template <>
struct EnumerationName<TopologyType> {
    static constexpr auto text = pybind11::detail::const_name("TopologyType");
};
template <>
struct EnumerationName<VolumeType> {
    static constexpr auto text = pybind11::detail::const_name("VolumeType");
};

} // namespace physics::python

namespace pybind11::detail {

template <>
class type_caster<physics::python::Text> {
public:
    PYBIND11_TYPE_CASTER(physics::python::Text, const_name("str"));

    bool load(handle source, bool)
    {
        if (!PyUnicode_Check(source.ptr()))
            return false;
        const auto encoded =
            reinterpret_steal<bytes>(PyUnicode_AsEncodedString(source.ptr(), "utf-8", "surrogateescape"));
        if (!encoded)
            throw error_already_set();
        value.bytes = std::string(encoded);
        return true;
    }

    static handle cast(const physics::python::Text& text, return_value_policy, handle)
    {
        const std::string& bytes = text.bytes;
        return PyUnicode_DecodeUTF8(bytes.data(), static_cast<Py_ssize_t>(bytes.size()), "surrogateescape");
    }
};

/// Only members of the very enumeration are taken, so that overloads can tell them apart.
template <class E>
class type_caster<E, std::enable_if_t<std::is_enum_v<E> && sizeof(physics::python::EnumerationName<E>) != 0>> {
public:
    PYBIND11_TYPE_CASTER(E, physics::python::EnumerationName<E>::text);

    bool load(handle source, bool)
    {
        if (!isinstance(source, enumeration()))
            return false;
        value = static_cast<E>(PyLong_AsLong(source.ptr()));
        return true;
    }

    static handle cast(E source, return_value_policy, handle)
    {
        return enumeration()(static_cast<std::underlying_type_t<E>>(source)).release();
    }

private:
    /// Looked up once; the class stays until the process ends.
    static handle enumeration()
    {
        static const handle found =
            object(module_::import("physics.enumerations").attr(physics::python::EnumerationName<E>::text.text))
                .release();
        return found;
    }
};

} // namespace pybind11::detail
