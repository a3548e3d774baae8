#pragma once

#include "physics/rules/Rule.h"

namespace physics {

/// Warns of boundaries that are tagged for use in an interface and are in none.
class RuleUnmatchedInterfaceBCs final : public Rule {
public:
    void lookAt(const Boundary* boundary, bool ignoreWarnings) override;
    std::vector<std::string> conclude() override;

private:
    std::vector<std::string> m_lines;
};

} // namespace physics
