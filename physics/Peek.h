#pragma once

#include "physics/Types.h"

#include <vector>

namespace physics {

class BoundaryPatch;
class Interface;
class Physics;
class Settings;
class ThreadBundle;
class Volume;

/// How reports, checks and saved texts look at the objects: unlike some of the public members, nothing
/// here makes a settings object, draws an id or prints.
class Peek {
public:
    // The settings made so far, or null.
    static Settings* settings(const Volume& volume);
    static Settings* internalSettings(const Volume& volume);
    static Settings* settings(const Interface& interface);
    static Settings* settings(const BoundaryPatch& patch, SettingsType kind);

    // What the public members of these names answer, without the message about non-shared meshes.
    static std::vector<int> zoneIds(const ThreadBundle& bundle);
    static std::vector<int> internalZoneIds(const Volume& volume);
    static std::vector<int> zoneIds(const Physics& physics);

    /// Boundary by boundary, in the order of `Physics::boundaries`.
    static std::vector<BoundaryPatch*> patches(const Physics& physics);
};

} // namespace physics
