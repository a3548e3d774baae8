#pragma once

#include "physics/Export.h"
#include "physics/Lifetime.h"
#include "physics/Types.h"

#include <string>

namespace physics {

/// What volumes, boundaries and interfaces have in common. Objects end only through their own
/// `destroy`, never through a pointer to this base.
class PHYSICS_EXPORT Region : public Referable {
public:
    /// The name of the location-model entity behind the object, as it is now.
    virtual std::string name() const = 0;

    /// The name as messages give it: that of a boundary is qualified by its volume.
    virtual std::string fullName() const = 0;

    /// Drawn from a counter of the class; it never changes.
    virtual int id() const = 0;

    /// The validity that the location model reports at this moment.
    virtual State state() const = 0;

    virtual TopologyType topologyType() const = 0;

    /// Whether the object takes part in the set-up: no volume that it depends on is deactivated.
    virtual bool isActive() const = 0;

    /// Whether the object lies on nothing.
    virtual bool isEmpty() const = 0;

    /// Asks the location model for a new name and returns what it answers. The object keeps the place
    /// in ordered lists that the name at its creation gave it.
    virtual std::string rename(const std::string& name) = 0;

protected:
    Region() = default;
    ~Region() = default;
};

} // namespace physics
