#include "apps/ReadingOptions.h"

#include <CLI/CLI.hpp>

namespace physics::apps {

void ReadingOptions::addTo(CLI::App& app)
{
    CLI::Option* yes = app.add_flag("--imprint", m_imprints, "Make touching bodies share faces (default for STEP)");
    app.add_flag("--no-imprint", m_doesNotImprint, "Take the faces as they are (default for BREP)")->excludes(yes);
    app.add_flag("--bodies-are-families", m_bodiesAreFamilies, "Make one body of all zones of one family (CGNS)");
}

ReadingChoice ReadingOptions::value() const
{
    ReadingChoice reading;
    if (m_imprints || m_doesNotImprint) {
        reading.imprint = m_imprints;
    }
    reading.bodiesAreFamilies = m_bodiesAreFamilies;
    return reading;
}

} // namespace physics::apps
