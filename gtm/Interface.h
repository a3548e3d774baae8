#pragma once

#include "gtm/Export.h"

#include <cstdint>
#include <set>
#include <string>
#include <utility>

namespace gtm {

class Boundary;

/// Two sets of boundaries that face each other. Owned by its `VirtualTopology`.
class GTM_EXPORT Interface {
public:
    /// Whether the two sides can face each other. The numbers below 20 are those of `Boundary` and `Interior`.
    enum class State : std::int32_t {
        Valid = 0,                     ///< nothing is wrong
        Empty = 1,                     ///< a side stands for no face use
        Unresolvable = 2,              ///< not used for interfaces
        Incomplete = 10,               ///< not used for interfaces
        Inconsistent = 11,             ///< not used for interfaces
        Overlapping = 12,              ///< not used for interfaces
        SameBoundary = 20,             ///< a boundary is on both sides
        InconsistentBoundaries = 21,   ///< a boundary is neither valid nor empty, or two of them share a face use
        MoreThanOneVolumePerSide = 22, ///< the boundaries of one side are of different interiors
        InconsistentSharedFaces = 23,  ///< both face uses of a face are on the same side
    };

    /// The boundaries of the two sides. The order within a side is by address and means nothing.
    using Sides = std::pair<std::set<Boundary*>, std::set<Boundary*>>;

    Interface(const Interface&) = delete;
    Interface& operator=(const Interface&) = delete;

    /// The text of a state for messages; its wording belongs to the location model.
    static std::string stateAsString(State state);

    /// The name that was asked for last, unless the location model had to choose another one.
    std::string name() const;

    /// Asks for a new name and returns the name that the interface has afterwards.
    std::string rename(const std::string& name);

    /// The boundaries on both sides.
    Sides sides() const;

    /// Whether the sides can face each other now: the answer follows the state of the boundaries.
    State state() const;

    /// Replaces both sides. With `enforceRestrictions`, anything but `Valid` leaves them as they were.
    State relocate(const Sides& sides, bool enforceRestrictions);

    /// Ends the interface; its boundaries stay.
    void destroy();

protected:
    Interface() = default;
    ~Interface() = default;
};

} // namespace gtm
