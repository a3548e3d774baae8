#pragma once

#include "apps/Verb.h"

namespace physics::apps {

/// Builds the set-up of a case and writes it as a saved text.
class SaveVerb final : public Verb {
public:
    std::string name() const override { return "save"; }
    std::string summary() const override;
    void addOptions(CLI::App& app) override;
    ExitCode run(Output& output) override;

private:
    std::string m_file;
    std::string m_target;
};

} // namespace physics::apps
