#include "apps/SetUpOptions.h"

#include <CLI/CLI.hpp>

namespace physics::apps {

void SetUpOptions::addTo(CLI::App& app)
{
    app.add_option("--geometry", m_geometry,
                   "The topology or geometry file under a saved text; a case file names its own");
    m_imprint.addTo(app);
}

bool isCaseFile(const std::filesystem::path& file) { return file.extension() == ".json"; }

} // namespace physics::apps
