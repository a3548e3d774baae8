#include "apps/verbs/CheckVerb.h"

#include "apps/InputError.h"
#include "apps/LoadedSetUp.h"
#include "apps/Output.h"
#include "apps/Progress.h"
#include "apps/check/CheckReport.h"
#include "apps/check/CheckViews.h"

#include <CLI/CLI.hpp>

#include <ostream>

namespace physics::apps {

std::string CheckVerb::summary() const { return "Tell everything that is wrong with a set-up"; }

void CheckVerb::addOptions(CLI::App& app)
{
    CLI::Option* file = app.add_option("setup", m_file, setUpHelp);
    app.add_option("--format", m_format, "text: to read; json and sarif: for tools")
        ->check(CLI::IsMember({"text", "json", "sarif"}))
        ->capture_default_str();
    app.add_option("--warnings", m_warnings,
                   "ignore: leave them out; report: tell them; error: exit with 1 for them too")
        ->check(CLI::IsMember({"ignore", "report", "error"}))
        ->capture_default_str();
    app.add_option("--explain", m_explain, "Explain a kind of finding, for example PS004 (docs/findings.md)")
        ->excludes(file);
    m_options.addTo(app);
}

ExitCode CheckVerb::run(Output& output)
{
    if (!m_explain.empty()) {
        output.out() << explanationOf(m_explain);
        return ExitCode::Fine;
    }
    if (m_file.empty()) {
        throw InputError("physics-case: check needs a set-up, or --explain; try \"physics-case check --help\".");
    }
    m_options.refuseWithout({m_file});
    const LoadedSetUp loaded(m_file, m_options, output, LoadedCase::Restrictions::Off);
    CheckReport report = [&] {
        const Progress progress(output, "checking " + m_file);
        return check(*loaded.built().physics, loaded.locationModel(), loaded.built().refusals, m_warnings == "ignore");
    }();
    report.file = m_file;
    if (const LoadedCase* fromCase = loaded.asCase()) {
        report.places = Places(fromCase->caseFile(), fromCase->source());
    }
    if (m_format == "json") {
        output.out() << toJson(report);
    } else if (m_format == "sarif") {
        output.out() << toSarif(report);
    } else {
        writeText(report, output);
    }
    const bool fails =
        report.noOf(Severity::Error) > 0 || (m_warnings == "error" && report.noOf(Severity::Warning) > 0);
    return fails ? ExitCode::CaseHasProblems : ExitCode::Fine;
}

} // namespace physics::apps
