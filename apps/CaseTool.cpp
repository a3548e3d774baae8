#include "apps/CaseTool.h"

#include "apps/CommandLine.h"
#include "apps/InputError.h"
#include "apps/verbs/BuildVerb.h"
#include "apps/verbs/CheckVerb.h"
#include "apps/verbs/DiffVerb.h"
#include "apps/verbs/NewVerb.h"
#include "apps/verbs/ReportVerb.h"
#include "apps/verbs/RestoreVerb.h"
#include "apps/verbs/SaveVerb.h"
#include "apps/verbs/TopologyVerb.h"
#include "apps/verbs/TypesVerb.h"
#include "support/InQuotes.h"
#include "support/NearestName.h"

#include <CLI/CLI.hpp>

#include <algorithm>

namespace physics::apps {
namespace {

/// The parser only says that a word is not expected; we know what was meant.
void refuseUnknownVerb(const std::vector<std::unique_ptr<Verb>>& verbs, const std::vector<std::string>& arguments)
{
    if (arguments.empty() || arguments.front().rfind('-', 0) == 0) {
        return;
    }
    std::vector<std::string> names;
    for (const std::unique_ptr<Verb>& verb : verbs) {
        names.push_back(verb->name());
    }
    if (std::find(names.begin(), names.end(), arguments.front()) == names.end()) {
        throw InputError("physics-case: there is no verb " + gtm::support::inQuotes(arguments.front()) +
                         gtm::support::hintForName(arguments.front(), names));
    }
}

ExitCode parseAndRun(const std::vector<std::string>& arguments, Output& output)
{
    CLI::App app("Builds and looks at the physics set-up of fluid-dynamics cases.", "physics-case");
    app.require_subcommand(1);
    app.footer("Exit code: 0 fine, 1 the case has problems, 2 usage or unreadable input, 3 a fault of ours.");
    const std::vector<std::unique_ptr<Verb>> verbs = allVerbs();
    std::vector<CLI::App*> parsers;
    for (const std::unique_ptr<Verb>& verb : verbs) {
        parsers.push_back(app.add_subcommand(verb->name(), verb->summary()));
        verb->addOptions(*parsers.back());
    }
    refuseUnknownVerb(verbs, arguments);
    if (!parseCommandLine(app, arguments, output)) {
        return ExitCode::Fine;
    }
    const auto used =
        std::find_if(parsers.begin(), parsers.end(), [](const CLI::App* parser) { return parser->parsed(); });
    return verbs[static_cast<std::size_t>(used - parsers.begin())]->run(output);
}

} // namespace

std::vector<std::unique_ptr<Verb>> allVerbs()
{
    std::vector<std::unique_ptr<Verb>> verbs;
    verbs.push_back(std::make_unique<TopologyVerb>());
    verbs.push_back(std::make_unique<NewVerb>());
    verbs.push_back(std::make_unique<BuildVerb>());
    verbs.push_back(std::make_unique<CheckVerb>());
    verbs.push_back(std::make_unique<ReportVerb>());
    verbs.push_back(std::make_unique<SaveVerb>());
    verbs.push_back(std::make_unique<RestoreVerb>());
    verbs.push_back(std::make_unique<DiffVerb>());
    verbs.push_back(std::make_unique<TypesVerb>());
    return verbs;
}

ExitCode runCaseTool(const std::vector<std::string>& arguments, Output& output)
{
    return runProgram("physics-case", output, [&] { return parseAndRun(arguments, output); });
}

} // namespace physics::apps
