#include "apps/verbs/SaveVerb.h"

#include "apps/InputError.h"
#include "apps/LoadedCase.h"
#include "apps/Output.h"
#include "apps/SetUpOptions.h"
#include "gtm/LocationModel.h"
#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Physics.h"
#include "physics/Volume.h"
#include "support/InQuotes.h"
#include "support/WholeFile.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <string>
#include <vector>

namespace physics::apps {
namespace {

using gtm::support::inQuotes;

/// Whether a saved text gives back a name or a location string: it stands there without quotes.
bool comesBack(const std::string& text)
{
    return std::string(" \t\n\v\f\r").find(text[0]) == std::string::npos && text.find('\n') == std::string::npos;
}

/// Whether a saved text gives back a list of regions: their ids stand there between commas.
template <class R>
bool comesBack(const std::vector<R*>& regions)
{
    return std::all_of(regions.begin(), regions.end(), [](const R* region) {
        return region == nullptr || (comesBack(region->id()) && region->id().find(',') == std::string::npos);
    });
}

bool comesBack(const gtm::Location* location)
{
    if (location == nullptr) {
        return true;
    }
    return location->isImplicit() ? comesBack(location->locationString(false))
                                  : comesBack(location->components().regions());
}

/// What of a set-up a saved text would not give back.
std::vector<std::string> lostInText(const Physics& physics)
{
    std::vector<std::string> lost;
    const auto look = [&lost](bool isKept, const std::string& what) {
        if (!isKept) {
            lost.push_back(what);
        }
    };
    look(comesBack(physics.maskedBodies()), "the list of masked bodies");
    for (const Volume* volume : physics.volumes()) {
        look(comesBack(volume->name()), "the name of the volume " + inQuotes(volume->name()));
        look(comesBack(volume->location()), "the location of the volume " + inQuotes(volume->name()));
    }
    for (const Boundary* boundary : physics.boundaries()) {
        look(comesBack(boundary->name()), "the name of the boundary " + inQuotes(boundary->fullName()));
        look(comesBack(boundary->location()), "the location of the boundary " + inQuotes(boundary->fullName()));
    }
    for (const Interface* interface : physics.interfaces()) {
        look(comesBack(interface->name()), "the name of the interface " + inQuotes(interface->name()));
    }
    for (const Model* model : physics.models()) {
        for (const int id : model->domainIds()) {
            look(comesBack(model->domainName(id)), "the name of the domain " + inQuotes(model->domainName(id)));
        }
    }
    return lost;
}

/// Says which values of the case a saved text does not keep, so that nobody misses them later.
void noteWhatIsNotKept(const Physics& physics, const std::string& target, Output& output)
{
    for (const Interface* interface : physics.interfaces()) {
        if (interface->isPeriodic()) {
            output.note(
                target + ": the interface " + inQuotes(interface->name()) +
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
    const std::vector<std::string> lost = lostInText(*loaded.built().physics);
    for (const std::string& what : lost) {
        output.complain(m_target + ": " + what +
                        " would not come back: a saved text keeps no name or location that begins with a blank or has "
                        "a line end, and no list of regions with a comma in an id; change it.");
    }
    if (!lost.empty()) {
        output.complain(m_target + ": not written, because part of the case would be lost.");
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
