#include "apps/verbs/ReportVerb.h"

#include "apps/LoadedSetUp.h"
#include "apps/Output.h"
#include "apps/ReportedObject.h"
#include "physics/Physics.h"

#include <CLI/CLI.hpp>

#include <sstream>

namespace physics::apps {

std::string ReportVerb::summary() const { return "Write the full listing of a set-up, or of one of its objects"; }

void ReportVerb::addOptions(CLI::App& app)
{
    app.add_option("setup", m_file, setUpHelp)->required();
    app.add_option("--object", m_object,
                   "Only this object: volume:NAME, boundary:VOLUME::NAME, interface:NAME, model:ID or settings:ID");
    m_options.addTo(app);
    app.footer("On a terminal the listing goes through $PAGER, or through less when that is not set.");
}

ExitCode ReportVerb::run(Output& output)
{
    m_options.refuseWithout({m_file});
    const LoadedSetUp loaded(m_file, m_options, output);
    const Physics& physics = *loaded.built().physics;
    std::ostringstream text;
    if (m_object.empty()) {
        physics.dump(text);
    } else {
        dumpObject(m_object, physics, text);
    }
    output.page(text.str());
    for (const std::string& refusal : loaded.refusals()) {
        output.complain(refusal);
    }
    return loaded.refusals().empty() ? ExitCode::Fine : ExitCode::CaseHasProblems;
}

} // namespace physics::apps
