#pragma once

#include "apps/Verb.h"

namespace physics::apps {

/// Lists which types may be used where.
class TypesVerb final : public Verb {
public:
    std::string name() const override { return "types"; }
    std::string summary() const override;
    void addOptions(CLI::App& app) override;
    ExitCode run(Output& output) override;

private:
    std::string m_format = "text";
};

} // namespace physics::apps
