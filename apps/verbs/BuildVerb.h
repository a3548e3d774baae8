#pragma once

#include "apps/Verb.h"

namespace physics::apps {

/// Builds the set-up of a case and lists what was made and what was refused.
class BuildVerb final : public Verb {
public:
    std::string name() const override { return "build"; }
    std::string summary() const override;
    void addOptions(CLI::App& app) override;
    ExitCode run(Output& output) override;

private:
    std::string m_file;
};

} // namespace physics::apps
