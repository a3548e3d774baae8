#include "apps/verbs/DiffVerb.h"

#include "apps/Joined.h"
#include "apps/LoadedSetUp.h"
#include "apps/Output.h"
#include "apps/diff/Difference.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <ostream>

namespace physics::apps {
namespace {

DescriptionRules rulesFor(const LoadedSetUp& first, const LoadedSetUp& second)
{
    DescriptionRules rules;
    rules.matching = first.isCase() || second.isCase() ? Matching::Names : Matching::Ids;
    rules.hasModelNames =
        first.isCase() && second.isCase() && allModelsHaveNames(first.built()) && allModelsHaveNames(second.built());
    rules.hasPeriodicValues = first.isCase() && second.isCase();
    return rules;
}

std::string toJson(const std::vector<Difference>& found, Matching matching)
{
    using Json = nlohmann::ordered_json;
    Json json = {{"format", "physics-diff"},
                 {"version", 1},
                 {"matchedBy", matching == Matching::Ids ? "ids" : "names"},
                 {"differences", Json::array()}};
    for (const Difference& difference : found) {
        Json entry = {{"kind", difference.kind}, {"name", difference.name}};
        if (!difference.of.empty()) {
            entry["of"] = difference.of;
        }
        entry["change"] = difference.change;
        if (!difference.aspect.empty()) {
            entry["aspect"] = difference.aspect;
            entry["from"] = difference.from;
            entry["to"] = difference.to;
        }
        json["differences"].push_back(std::move(entry));
    }
    return json.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

void write(const std::vector<Difference>& found, std::ostream& stream)
{
    for (const Difference& difference : found) {
        stream << lineOf(difference) << '\n';
    }
    stream << (found.empty() ? "no differences" : counted(found.size(), "difference")) << '\n';
}

/// Complains about what a set-up lacks; true when there was something.
bool complainsAbout(const LoadedSetUp& loaded, Output& output)
{
    const std::vector<std::string> refusals = loaded.refusals();
    for (const std::string& refusal : refusals) {
        output.complain(refusal);
    }
    return !refusals.empty();
}

} // namespace

std::string DiffVerb::summary() const { return "Tell in words how two set-ups differ"; }

void DiffVerb::addOptions(CLI::App& app)
{
    app.add_option("first", m_first, setUpHelp)->required();
    app.add_option("second", m_second, "The set-up to compare it with, in either form")->required();
    app.add_option("--format", m_format, "text: to read; json: for tools")
        ->check(CLI::IsMember({"text", "json"}))
        ->capture_default_str();
    m_options.addTo(app);
    app.footer("Objects of two saved texts are the same when kind and id are; otherwise when kind and full name are,\n"
               "and models by their names in two case files that name all, else by their places in the order of ids.\n"
               "Exit code: 0 no differences, 1 differences, or part of a case is refused.");
}

ExitCode DiffVerb::run(Output& output)
{
    m_options.refuseWithout({m_first, m_second});
    const LoadedSetUp first(m_first, m_options, output);
    const LoadedSetUp second(m_second, m_options, output);
    const DescriptionRules rules = rulesFor(first, second);
    const std::vector<Difference> found = differences(describe(first.built(), rules), describe(second.built(), rules));
    if (m_format == "json") {
        output.out() << toJson(found, rules.matching);
    } else {
        write(found, output.out());
    }
    const bool isFirstRefused = complainsAbout(first, output);
    const bool isSecondRefused = complainsAbout(second, output);
    return found.empty() && !isFirstRefused && !isSecondRefused ? ExitCode::Fine : ExitCode::CaseHasProblems;
}

} // namespace physics::apps
