#pragma once

#include "locationmodel/LocationText.h"
#include "locationmodel/ModelRegions.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace gtm::bundled {

class ModelTopology;

/// A term that names nothing or cannot be used.
struct UnresolvedTerm {
    std::string text;
    std::string problem; ///< a sentence, or empty when the term just names nothing
};

/// What the terms of an interior's location come to. It depends on the topology only: mask and other
/// interiors are looked at when somebody asks.
struct BodyPlacement {
    /// In the order of the topology, each once; masked ones too.
    std::vector<ModelBody*> bodies;

    /// How many face uses these bodies have together.
    std::size_t noOfFaceUses = 0;

    std::vector<UnresolvedTerm> unresolved;

    /// The first face or face use that a term names, or null: an interior is made of bodies.
    const RegionInfo* wrongKind = nullptr;
};

BodyPlacement placeBodies(const std::vector<LocationTerm>& terms, const ModelTopology& topology);

/// The bodies that a name stands for: by the ids of bodies and parts, or else as a path PART/BODY.
/// Nothing when it is the name of none; no bodies when only parts without any have it.
std::optional<std::vector<ModelBody*>> findBodies(const Pattern& pattern, const ModelTopology& topology);

} // namespace gtm::bundled
