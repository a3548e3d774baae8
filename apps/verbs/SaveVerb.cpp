#include "apps/verbs/SaveVerb.h"

#include "apps/InputError.h"
#include "apps/LoadedCase.h"
#include "apps/Output.h"
#include "apps/SetUpOptions.h"
#include "physics/Interface.h"
#include "physics/Physics.h"
#include "support/InQuotes.h"
#include "support/WholeFile.h"

#include <CLI/CLI.hpp>

namespace physics::apps {
namespace {

/// Says which values of the case a saved text does not keep, so that nobody misses them later.
void noteWhatIsNotKept(const Physics& physics, const std::string& target, Output& output)
{
    for (const Interface* interface : physics.interfaces()) {
        if (interface->isPeriodic()) {
            output.note(
                target + ": the interface " + gtm::support::inQuotes(interface->name()) +
                " is kept as periodic, but without the values of its " +
                (interface->periodicity() == Periodicity::TranslationallyPeriodic ? "translation" : "rotation") +
                "; set them again after restoring.");
        }
    }
}

} // namespace

std::string SaveVerb::summary() const { return "Build the set-up of a case and write it as a saved text"; }

void SaveVerb::addOptions(CLI::App& app)
{
    app.add_option("case", m_file, "A case file (docs/case-file.md)")->required();
    app.add_option("-o,--output", m_target,
                   "The file for the saved text (docs/saved-text.md); it is written when nothing is refused, whole or "
                   "not at all")
        ->required();
}

ExitCode SaveVerb::run(Output& output)
{
    if (isCaseFile(m_target)) {
        throw InputError(m_target + ": a saved text with this name would be taken for a case file; choose one that "
                                    "does not end in .json.");
    }
    const LoadedCase loaded(m_file, output);
    for (const std::string& refusal : loaded.refusals()) {
        output.complain(refusal);
    }
    if (!loaded.refusals().empty()) {
        output.complain(m_target + ": not written, because part of the case is refused.");
        return ExitCode::CaseHasProblems;
    }
    try {
        gtm::support::writeWholeFile(m_target, loaded.built().physics->serialise());
    } catch (const gtm::support::FileError& error) {
        throw InputError(error.what());
    }
    noteWhatIsNotKept(*loaded.built().physics, m_target, output);
    return ExitCode::Fine;
}

} // namespace physics::apps
