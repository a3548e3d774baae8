#pragma once

#include "apps/SetUpOptions.h"
#include "apps/Verb.h"

namespace physics::apps {

/// Tells in words how two set-ups differ.
class DiffVerb final : public Verb {
public:
    std::string name() const override { return "diff"; }
    std::string summary() const override;
    void addOptions(CLI::App& app) override;
    ExitCode run(Output& output) override;

private:
    std::string m_first;
    std::string m_second;
    std::string m_format = "text";
    SetUpOptions m_options;
};

} // namespace physics::apps
