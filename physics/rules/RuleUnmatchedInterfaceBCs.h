#pragma once

#include "physics/rules/Rule.h"

namespace physics {

/// Warns of boundaries that are tagged for use in an interface and are in none.
class RuleUnmatchedInterfaceBCs final : public Rule {
public:
    std::vector<std::string> checkPhysics(const Physics* physics, bool ignoreWarnings) override;
};

} // namespace physics
