#pragma once

#include "physics/rules/Rule.h"

namespace physics {

/// A boundary must be of a type that its volume and its interfaces allow.
class RuleAdjacentPhysics final : public Rule {
public:
    std::vector<std::string> checkInterface(const Interface* interface, bool ignoreWarnings) override;
    std::vector<std::string> checkBoundary(const Boundary* boundary, bool ignoreWarnings) override;
};

} // namespace physics
