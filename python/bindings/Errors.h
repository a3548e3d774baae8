#pragma once

#include <pybind11/pybind11.h>

#include <stdexcept>
#include <string>

namespace physics::python {

/// An object was used after its end.
class EndedError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Within a `building` block, the location model refused to make something.
class RefusedError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Shows a C++ exception to Python as one of the module that has the classes.
template <class Error>
void bindError(pybind11::module_& module, const char* name, pybind11::handle base, const std::string& text)
{
    auto& error = pybind11::register_exception<Error>(module, name, base);
    error.attr("__module__") = module.attr("__module__");
    error.attr("__doc__") = text;
}

} // namespace physics::python
