#pragma once

#include "gtm/Interior.h"

#include "examples/own-kernel/Boundary.h"
#include "examples/own-kernel/Location.h"

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace own {

class WorkingCopy;

/// Owned by its working copy; it owns its boundaries, the default one too.
class Interior final : public gtm::Interior {
public:
    /// Without a place it is the default interior.
    Interior(WorkingCopy& copy, std::string name, std::optional<Place> place);
    ~Interior();

    std::pair<gtm::Boundary*, gtm::Boundary::State> createBoundary(const std::string& name, Place place,
                                                                   bool enforceRestrictions);
    void end(Boundary* boundary);
    void endBoundaries();

    State relocate(Place place, bool enforceRestrictions);

    /// The bodies of its location, masked or not.
    std::set<gtm::Body*> placedBodies() const;

    /// How the interior lies, whatever boundaries it has.
    State placementState() const;

    /// The sides of its surface: those of its bodies whose partner is not in it.
    std::vector<gtm::FaceUse*> outside() const;

    /// All face uses in its boundaries, but for the default one.
    std::set<gtm::FaceUse*> usedFaceUses() const;

    WorkingCopy& m_copy;
    std::string m_name;
    std::unique_ptr<Location> m_location; ///< null for the default interior
    std::vector<std::unique_ptr<Boundary>> m_boundaries;
    std::unique_ptr<Boundary> m_defaultBoundary;
    bool m_isDefaultBoundaryActive = false;
};

} // namespace own
