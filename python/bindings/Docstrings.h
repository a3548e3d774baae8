#pragma once

#include <string>
#include <string_view>

namespace physics::python {

/// What the comment of a class ("Volume") or of a public member ("Volume::createBoundary") says, in the words of
/// Python; empty where a member speaks for itself. Made of the headers when this module is built. Throws
/// `std::logic_error` when there is no such thing, so that nothing can be bound that the headers do not have.
std::string docstring(std::string_view name);

/// "createBoundary" as Python calls it: "create_boundary".
std::string pythonName(std::string_view name);

} // namespace physics::python
