#include "apps/SetUpOptions.h"

#include "apps/InputError.h"

#include <CLI/CLI.hpp>

#include <algorithm>

namespace physics::apps {

void SetUpOptions::addTo(CLI::App& app)
{
    app.add_option("--geometry", m_geometry,
                   "The topology or geometry file under a saved text; a case file names its own");
    m_reading.addTo(app);
}

void SetUpOptions::refuseWithout(const std::vector<std::string>& files) const
{
    const bool areGiven = !m_geometry.empty() || !reading().isAsUsual();
    if (areGiven && std::all_of(files.begin(), files.end(), isCaseFile)) {
        throw InputError(files.front() + ": a case file says itself which geometry it is about and how to read it; "
                                         "leave --geometry, --imprint, --no-imprint and --bodies-are-families out.");
    }
}

bool isCaseFile(const std::filesystem::path& file) { return file.extension() == ".json"; }

} // namespace physics::apps
