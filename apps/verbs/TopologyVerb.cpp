#include "apps/verbs/TopologyVerb.h"

#include "apps/GeometryFile.h"
#include "apps/Output.h"
#include "apps/Progress.h"
#include "apps/TopologyListing.h"
#include "locationmodel/LocationModel.h"
#include "locationmodel/TopologyFile.h"

#include <CLI/CLI.hpp>

#include <ostream>

namespace physics::apps {

std::string TopologyVerb::summary() const { return "List the parts, bodies, faces and solver zones of a file"; }

void TopologyVerb::addOptions(CLI::App& app)
{
    app.add_option("file", m_file, "A topology file (.json) or a geometry file (.step, .stp, .brep, .brp, .cgns)")
        ->required();
    app.add_option("--format", m_format, "text: tables to read; json: a topology file")
        ->check(CLI::IsMember({"text", "json"}))
        ->capture_default_str();
    m_reading.addTo(app);
}

ExitCode TopologyVerb::run(Output& output)
{
    const GeometryFile geometry = [&] {
        const Progress progress(output, "reading " + m_file);
        return readGeometry(m_file, m_reading.value());
    }();
    for (const std::string& note : geometry.notes) {
        output.note(note);
    }
    if (m_format == "json") {
        output.out() << gtm::bundled::writeTopology(*geometry.model);
    } else {
        listTopology(*geometry.model, output);
    }
    return ExitCode::Fine;
}

} // namespace physics::apps
