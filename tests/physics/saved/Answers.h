#pragma once

#include <string>

namespace physics {

class Physics;

/// What a set-up answers to every question about what a saved text keeps, objects named by their ids: equal
/// for set-ups that cannot be told apart. Asking makes no settings.
std::string answersOf(const Physics& physics);

} // namespace physics
