#pragma once

#include "apps/ReadingOptions.h"
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
    ReadingOptions m_reading;
};

} // namespace physics::apps
