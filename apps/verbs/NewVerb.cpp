#include "apps/verbs/NewVerb.h"

#include "apps/CaseText.h"
#include "apps/GeometryFile.h"
#include "apps/InputError.h"
#include "apps/Output.h"
#include "apps/Progress.h"
#include "apps/SetUpOptions.h"
#include "apps/proposal/Proposal.h"
#include "locationmodel/LocationModel.h"
#include "support/WholeFile.h"

#include <CLI/CLI.hpp>

#include <filesystem>

namespace physics::apps {
namespace {

/// The way from a case file to its geometry, so that both can be moved together.
std::string relativeTo(const std::filesystem::path& caseFile, const std::filesystem::path& geometry)
{
    return std::filesystem::proximate(geometry, std::filesystem::absolute(caseFile).parent_path()).generic_string();
}

} // namespace

std::string NewVerb::summary() const { return "Propose a case for a geometry and tell what it was made of"; }

void NewVerb::addOptions(CLI::App& app)
{
    app.add_option("geometry", m_file, "A topology file (.json) or a geometry file (.step, .stp, .brep, .brp, .cgns)")
        ->required();
    app.add_option("-o,--output", m_target, "The case file to write (*.json), whole or not at all")->required();
    app.add_flag("--force", m_isForced, "Replace a case file that is there already");
    m_reading.addTo(app);
}

ExitCode NewVerb::run(Output& output)
{
    if (!isCaseFile(m_target)) {
        throw InputError(m_target + ": a case file with this name would be taken for a saved text; choose one that "
                                    "ends in .json.");
    }
    if (!m_isForced && std::filesystem::exists(m_target)) {
        throw InputError(m_target + ": this file is there already; name another one, or replace it with --force.");
    }
    const GeometryFile geometry = [&] {
        const Progress progress(output, "reading " + m_file);
        return readGeometry(m_file, m_reading.value());
    }();
    for (const std::string& note : geometry.notes) {
        output.note(note);
    }
    Proposal proposal = propose(geometry);
    proposal.file.geometry = {"", relativeTo(m_target, m_file), m_reading.value()};
    try {
        gtm::support::writeWholeFile(m_target, writeCase(proposal.file));
    } catch (const gtm::support::FileError& error) {
        throw InputError(error.what());
    }
    listLedger(proposal.ledger, output);
    return ExitCode::Fine;
}

} // namespace physics::apps
