#pragma once

#include "apps/ReadingOptions.h"
#include "apps/Verb.h"

namespace physics::apps {

/// Lists what a topology or geometry file holds.
class TopologyVerb final : public Verb {
public:
    std::string name() const override { return "topology"; }
    std::string summary() const override;
    void addOptions(CLI::App& app) override;
    ExitCode run(Output& output) override;

private:
    std::string m_file;
    std::string m_format = "text";
    ReadingOptions m_reading;
};

} // namespace physics::apps
