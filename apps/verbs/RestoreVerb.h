#pragma once

#include "apps/ImprintOption.h"
#include "apps/Verb.h"

namespace physics::apps {

/// Lists what a saved text holds.
class RestoreVerb final : public Verb {
public:
    std::string name() const override { return "restore"; }
    std::string summary() const override;
    void addOptions(CLI::App& app) override;
    ExitCode run(Output& output) override;

private:
    std::string m_geometry;
    std::string m_text;
    ImprintOption m_imprint;
};

} // namespace physics::apps
