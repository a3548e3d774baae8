#pragma once

namespace physics::apps {

class Output;
struct BuiltCase;

/// Prints the objects of a set-up on the bundled location model, and why those are not valid that are not.
void listCase(const BuiltCase& built, Output& output);

} // namespace physics::apps
