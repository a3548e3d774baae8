#include "apps/verbs/BuildVerb.h"

#include "apps/CaseListing.h"
#include "apps/LoadedCase.h"
#include "apps/Output.h"

#include <CLI/CLI.hpp>

namespace physics::apps {

std::string BuildVerb::summary() const { return "Build the set-up of a case and list what was made"; }

void BuildVerb::addOptions(CLI::App& app)
{
    app.add_option("case", m_file, "A case file (docs/case-file.md)")->required();
}

ExitCode BuildVerb::run(Output& output)
{
    const LoadedCase loaded(m_file, output);
    listCase(loaded.built(), output);
    for (const std::string& refusal : loaded.refusals()) {
        output.complain(refusal);
    }
    return loaded.refusals().empty() ? ExitCode::Fine : ExitCode::CaseHasProblems;
}

} // namespace physics::apps
