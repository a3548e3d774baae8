#pragma once

#include "apps/SetUpOptions.h"
#include "apps/Verb.h"

namespace physics::apps {

/// Builds a case without restrictions, or restores a saved text, and tells everything that is wrong with the
/// set-up; or explains one kind of finding.
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
    SetUpOptions m_options;
};

} // namespace physics::apps
