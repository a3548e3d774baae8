#include "apps/verbs/RestoreVerb.h"

#include "apps/CaseListing.h"
#include "apps/RestoredSetUp.h"

#include <CLI/CLI.hpp>

namespace physics::apps {

std::string RestoreVerb::summary() const { return "Restore a saved text on its geometry and list what came back"; }

void RestoreVerb::addOptions(CLI::App& app)
{
    app.add_option("geometry", m_geometry, "The topology or geometry file that the set-up was made on")->required();
    app.add_option("text", m_text, "A saved text (docs/saved-text.md)")->required();
    m_reading.addTo(app);
}

ExitCode RestoreVerb::run(Output& output)
{
    const RestoredSetUp restored(m_geometry, m_reading.value(), m_text, output);
    listCase(restored.built(), output);
    return ExitCode::Fine;
}

} // namespace physics::apps
