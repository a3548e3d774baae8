#pragma once

#include "gtm/Export.h"

#include <cstdint>
#include <string>
#include <vector>

namespace gtm {

class FaceUse;
class Interior;
class Location;
class Region;

/// A named set of face uses of one interior: where a boundary lies. Owned by its interior.
class GTM_EXPORT Boundary {
public:
    /// How a boundary lies in its interior. The numbers are the same in `Interior` and `Interface`.
    enum class State : std::int32_t {
        Valid = 0,         ///< nothing is wrong
        Empty = 1,         ///< it stands for no face use
        Unresolvable = 2,  ///< a term of the location cannot be read, or names nothing
        Incomplete = 10,   ///< not used for boundaries
        Inconsistent = 11, ///< the location names something that has no face use in the interior
        Overlapping = 12,  ///< another boundary of the interior has one of the face uses
    };

    Boundary(const Boundary&) = delete;
    Boundary& operator=(const Boundary&) = delete;

    /// The text of a state for messages; its wording belongs to the location model.
    static std::string stateAsString(State state);

    /// The name that was asked for last, unless the location model had to choose another one.
    std::string name() const;

    /// Asks for a new name and returns the name that the boundary has afterwards.
    std::string rename(const std::string& name);

    /// The interior whose surface the boundary divides; never null.
    Interior* interior() const;

    /// Where the boundary lies; may be null for a default boundary.
    const Location* location() const;

    /// True for the boundary that `Interior::defaultBoundary` gives.
    bool isDefaultBoundary() const;

    /// The face uses that the boundary stands for now, in the order of the topology.
    std::vector<FaceUse*> faceUses() const;

    /// The other boundaries of the same interior that share a face use with this one, each once.
    std::vector<Boundary*> overlappingBoundaries() const;

    /// The face uses shared with `other`; empty when `other` is null.
    std::vector<FaceUse*> overlap(const Boundary* other) const;

    /// The terms of the location that name nothing; empty when all are found.
    std::vector<std::string> unresolvableNames() const;

    /// True when the boundary has face uses and all lie on internal faces of its interior.
    bool isInternal() const;

    /// Another boundary made of exactly the partners of this boundary's face uses, or null.
    Boundary* pair() const;

    /// How the boundary lies now: the answer follows the mask, the topology and the other boundaries.
    State state() const;

    /// Moves the boundary and returns how it lies there. With `enforceRestrictions`, anything but `Valid`
    /// leaves it where it was. A default boundary cannot be moved: the answer is `Inconsistent`.
    /// @{
    State relocate(const std::string& location, bool enforceRestrictions);
    State relocate(const std::vector<Region*>& regions, bool enforceRestrictions);
    /// @}

    /// Takes regions out of the location; true when that changed it. A face stands for its face uses, a
    /// body for its own, a part for those of its bodies.
    bool remove(const std::vector<Region*>& regions);

    /// Ends the boundary and every interface that uses it. A default boundary is switched off instead.
    void destroy();

protected:
    Boundary() = default;
    ~Boundary() = default;
};

} // namespace gtm
