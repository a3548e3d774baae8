#pragma once

#include "gtm/Export.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "gtm/Boundary.h"

namespace gtm {

class Body;
class Face;
class FaceUse;
class Location;
class Region;
class VirtualTopology;

/// A named set of bodies: where a volume lies. Owned by its `VirtualTopology`.
class GTM_EXPORT Interior {
public:
    /// How an interior lies in the geometry. The numbers are the same in `Boundary` and `Interface`.
    enum class State : std::int32_t {
        Valid = 0,         ///< nothing is wrong
        Empty = 1,         ///< it stands for no body
        Unresolvable = 2,  ///< a term of the location cannot be read, or names nothing
        Incomplete = 10,   ///< part of its outside is in none of its boundaries
        Inconsistent = 11, ///< the location names a face or a face use
        Overlapping = 12,  ///< another interior has one of the bodies
    };

    Interior(const Interior&) = delete;
    Interior& operator=(const Interior&) = delete;

    /// The text of a state for messages; its wording belongs to the location model.
    static std::string stateAsString(State state);

    /// The name that was asked for last, unless the location model had to choose another one.
    std::string name() const;

    /// Asks for a new name and returns the name that the interior has afterwards.
    std::string rename(const std::string& name);

    /// Creates a boundary of this interior and says how it lies there. With `enforceRestrictions`,
    /// anything but `Valid` is a refusal: the pointer is null and the state says why. Without, the
    /// boundary exists in any state.
    /// @{
    std::pair<Boundary*, Boundary::State> createBoundary(const std::string& name, const std::string& location,
                                                         bool enforceRestrictions);
    std::pair<Boundary*, Boundary::State> createBoundary(const std::string& name, const std::vector<Region*>& regions,
                                                         bool enforceRestrictions);
    /// @}

    /// The boundary that takes every outward face use which no other boundary of this interior uses.
    /// It lives as long as the interior and is switched on and off, never destroyed.
    /// Off at first. Null where the location model has none.
    Boundary* defaultBoundary() const;

    /// Switches the default boundary on or off. Off, it stands for no face use.
    void activateDefaultBoundary(bool active);

    /// Whether it is switched on.
    bool isDefaultBoundaryActive() const;

    /// The boundaries in the order of their creation, the default boundary last when it is active.
    std::vector<Boundary*> boundaries() const;

    /// The bodies that the interior stands for now, in the order of the topology.
    std::vector<Body*> bodies() const;

    /// The faces with both face uses in this interior, in the order of the topology.
    std::vector<Face*> internalFaces() const;

    /// The face uses of this interior's bodies that no boundary of it uses, but for those of internal
    /// faces; in the order of the topology.
    std::vector<FaceUse*> unusedFaceUses() const;

    /// The internal faces of which no face use is in a boundary of this interior.
    std::vector<Face*> unusedInternalFaces() const;

    /// The other interiors that share a body with this one, each once.
    std::vector<Interior*> overlappingInteriors() const;

    /// The bodies shared with `other`; empty when `other` is null.
    std::vector<Body*> overlap(const Interior* other) const;

    /// The terms of the location that name nothing; empty when all are found.
    std::vector<std::string> unresolvableNames() const;

    /// Where the interior lies; may be null for the default interior.
    const Location* location() const;

    /// True for the interior that `VirtualTopology::defaultInterior` gives.
    bool isDefaultInterior() const;

    /// The working copy that owns the interior; never null.
    VirtualTopology* virtualTopology() const;

    /// How the interior lies now: the answer follows the mask, the topology, the other interiors and its
    /// boundaries.
    State state() const;

    /// Moves the interior and returns how it lies there: never `Incomplete`, because that is a matter of
    /// its boundaries. With `enforceRestrictions`, anything but `Valid` leaves it where it was.
    /// The default interior cannot be moved: the answer is `Inconsistent`.
    /// @{
    State relocate(const std::string& location, bool enforceRestrictions);
    State relocate(const std::vector<Region*>& regions, bool enforceRestrictions);
    /// @}

    /// Takes regions out of the location; true when that changed it. A part stands for its bodies.
    bool remove(const std::vector<Region*>& regions);

    /// Ends the interior with its boundaries and every interface that uses one of them. The default
    /// interior is switched off instead.
    void destroy();

protected:
    Interior() = default;
    ~Interior() = default;
};

} // namespace gtm
