#include "tests/physics/PhysicsCase.h"

namespace {

void switchOn(physics::Physics& physics);
int& counterOf(const physics::Volume*);
int& counterOf(const physics::Boundary*);
int& counterOf(const physics::Interface*);
int& counterOf(const physics::Model*);
int& counterOf(const physics::BoundaryPatch*);
int& counterOf(const physics::Settings*);

// An explicit instantiation may name private members; these hand them to the functions above.

template <bool physics::Physics::*Flag>
struct FlagOf {
    friend void switchOn(physics::Physics& physics) { physics.*Flag = true; }
};

template <class Owner, int* Counter>
struct CounterOf {
    friend int& counterOf(const Owner*) { return *Counter; }
};

template struct FlagOf<&physics::Physics::m_reportCreationFailures>;
template struct CounterOf<physics::Volume, &physics::Volume::s_lastUsedId>;
template struct CounterOf<physics::Boundary, &physics::Boundary::s_lastUsedId>;
template struct CounterOf<physics::Interface, &physics::Interface::s_lastUsedId>;
template struct CounterOf<physics::Model, &physics::Model::s_lastUsedId>;
template struct CounterOf<physics::BoundaryPatch, &physics::BoundaryPatch::s_lastUsedId>;
template struct CounterOf<physics::Settings, &physics::Settings::s_lastUsedId>;

} // namespace

void reportCreationFailures(physics::Physics& physics) { switchOn(physics); }

int& volumeIdCounter() { return counterOf(static_cast<physics::Volume*>(nullptr)); }
int& boundaryIdCounter() { return counterOf(static_cast<physics::Boundary*>(nullptr)); }
int& interfaceIdCounter() { return counterOf(static_cast<physics::Interface*>(nullptr)); }
int& modelIdCounter() { return counterOf(static_cast<physics::Model*>(nullptr)); }
int& patchIdCounter() { return counterOf(static_cast<physics::BoundaryPatch*>(nullptr)); }
int& settingsIdCounter() { return counterOf(static_cast<physics::Settings*>(nullptr)); }
