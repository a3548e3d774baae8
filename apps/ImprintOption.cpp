#include "apps/ImprintOption.h"

#include <CLI/CLI.hpp>

namespace physics::apps {

void ImprintOption::addTo(CLI::App& app)
{
    CLI::Option* yes = app.add_flag("--imprint", m_yes, "Make touching bodies share faces (default for STEP)");
    app.add_flag("--no-imprint", m_no, "Take the faces as they are (default for BREP)")->excludes(yes);
}

} // namespace physics::apps
