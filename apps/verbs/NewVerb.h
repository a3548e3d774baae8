#pragma once

#include "apps/ReadingOptions.h"
#include "apps/Verb.h"

namespace physics::apps {

/// Proposes a case for a geometry file and tells what it made of what the file says.
class NewVerb final : public Verb {
public:
    std::string name() const override { return "new"; }
    std::string summary() const override;
    void addOptions(CLI::App& app) override;
    ExitCode run(Output& output) override;

private:
    std::string m_file;
    std::string m_target;
    bool m_isForced = false;
    ReadingOptions m_reading;
};

} // namespace physics::apps
