#pragma once

#include "locationmodel/BodyPlacement.h"
#include "locationmodel/LocationText.h"
#include "locationmodel/ModelRegions.h"

#include <string>
#include <vector>

namespace gtm::bundled {

class ModelTopology;

/// A face use that a boundary takes if it belongs to the boundary's interior, and there lies on the
/// outside (`whenOutward`) or on an internal face (`whenInternal`).
struct Candidate {
    ModelFaceUse* faceUse = nullptr;
    bool whenOutward = false;
    bool whenInternal = false;
};

/// What one term of a boundary's location names.
struct SurfaceTerm {
    std::string text;
    const RegionInfo* region = nullptr; ///< the region when the term names just one, else null
    bool isPattern = false;             ///< has wildcards
    std::vector<Candidate> candidates;  ///< may be empty for a pattern: it names nothing in the interior
};

/// What the terms of a boundary's location come to. It depends on the topology and on the bodies that
/// the interior's location names; mask and other boundaries are looked at when somebody asks.
struct SurfacePlacement {
    /// In the order of the topology, each face use once.
    std::vector<Candidate> candidates;

    std::vector<SurfaceTerm> terms;
    std::vector<UnresolvedTerm> unresolved;

    /// True when some term has wildcards: these look at the interior, so the terms must be placed again
    /// when it moves.
    bool dependsOnInterior = false;
};

/// What a region stands for in a boundary's location, not sorted; a face use may come twice.
std::vector<Candidate> candidatesOf(Region& region);

/// `interior` is where the interior lies, or null for the default interior, whose bodies change with
/// every other interior: patterns then look at the whole topology.
SurfacePlacement placeSurface(const std::vector<LocationTerm>& terms, const ModelTopology& topology,
                              const BodyPlacement* interior);

} // namespace gtm::bundled
