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
    enum class State : std::int32_t {
        Valid = 0,
        Empty = 1,
        Unresolvable = 2,
        Incomplete = 10,
        Inconsistent = 11,
        Overlapping = 12,
        SameBoundary = 20,
        InconsistentBoundaries = 21,
        MoreThanOneVolumePerSide = 22,
        InconsistentSharedFaces = 23,
    };

    /// The boundaries of the two sides. The order within a side is by address and means nothing.
    using Sides = std::pair<std::set<Boundary*>, std::set<Boundary*>>;

    Interface(const Interface&) = delete;
    Interface& operator=(const Interface&) = delete;

    /// The text of a state for messages; its wording belongs to the location model.
    static std::string stateAsString(State state);

    std::string name() const;

    /// Asks for a new name and returns the name that the interface has afterwards.
    std::string rename(const std::string& name);

    Sides sides() const;
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
