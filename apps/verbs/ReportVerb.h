#pragma once

#include "apps/SetUpOptions.h"
#include "apps/Verb.h"

namespace physics::apps {

/// Writes the listing of a set-up, or the block of one of its objects.
class ReportVerb final : public Verb {
public:
    std::string name() const override { return "report"; }
    std::string summary() const override;
    void addOptions(CLI::App& app) override;
    ExitCode run(Output& output) override;

private:
    std::string m_file;
    std::string m_object;
    SetUpOptions m_options;
};

} // namespace physics::apps
