#pragma once

#include "physics/rules/Rule.h"

#include <unordered_map>
#include <unordered_set>

namespace gtm {
class Face;
class FaceUse;
} // namespace gtm

namespace physics {

/// A boundary of an internal type must lie inside its volume, with both sides of its faces; and internal
/// faces that no boundary uses must carry one mesh that both sides share.
///
/// One object serves one validation call: it keeps the internal faces of the volumes that it has looked at.
class RuleInternalBoundaries final : public Rule {
public:
    std::vector<std::string> checkBoundary(const Boundary* boundary, bool ignoreWarnings) override;
    std::vector<std::string> checkVolume(const Volume* volume, bool ignoreWarnings) override;

private:
    const std::unordered_set<const gtm::Face*>& internalFaces(const Volume* volume);

    std::unordered_map<const Volume*, std::unordered_set<const gtm::Face*>> m_internalFaces;
};

} // namespace physics
