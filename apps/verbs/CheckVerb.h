#pragma once

#include "apps/Verb.h"

namespace physics::apps {

/// Builds the set-up of a case without restrictions and tells everything that is wrong with it, or explains
/// one kind of finding.
class CheckVerb final : public Verb {
public:
    std::string name() const override { return "check"; }
    std::string summary() const override;
    void addOptions(CLI::App& app) override;
    ExitCode run(Output& output) override;

private:
    std::string m_file;
    std::string m_format = "text";
    std::string m_warnings = "report";
    std::string m_explain;
};

} // namespace physics::apps
