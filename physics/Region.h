#pragma once

#include "physics/Export.h"
#include "physics/Lifetime.h"
#include "physics/Types.h"

#include <iosfwd>
#include <string>
#include <vector>

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

    /// Which of the three kinds of object it is.
    virtual TopologyType topologyType() const = 0;

    /// Whether the object takes part in the set-up: no volume that it depends on is deactivated.
    virtual bool isActive() const = 0;

    /// Whether the object lies on nothing.
    virtual bool isEmpty() const = 0;

    /// What the rules say against the object, as whole lines for people; empty when nothing. The last line
    /// of each complaint says "MUST" for an error, "SHOULD" for a warning. `ignoreWarnings` leaves the
    /// warnings out.
    virtual std::vector<std::string> validate(bool ignoreWarnings) const = 0;

    /// Writes a framed block about the object for people. `closes` asks for a rule at the end of every
    /// block of a patch in it. Objects that are missing are written "<NONE>"; settings that were not made
    /// yet count as missing and are not made.
    virtual void dump(std::ostream& stream, bool closes) const = 0;

    /// Asks the location model for a new name and returns what it answers. The object keeps the place
    /// in ordered lists that the name at its creation gave it.
    virtual std::string rename(const std::string& name) = 0;

    // Judged anew at each call. `lenient` accepts the state `Empty` and leaves warnings out.

    /// Whether the location model calls the object valid.
    bool isTopologyValid(bool lenient) const;

    /// Whether no rule speaks against the object.
    bool isPhysicsValid(bool lenient) const;

    /// Both; the rules are not asked when the topology is invalid.
    bool isValid(bool lenient) const;

protected:
    Region() = default;
    ~Region() = default;
};

} // namespace physics
