#include "apps/verbs/TypesVerb.h"

#include "apps/Output.h"
#include "apps/TypeTables.h"
#include "physics/TypeManager.h"

#include <CLI/CLI.hpp>

#include <ostream>

namespace physics::apps {

std::string TypesVerb::summary() const { return "List the types that there are and which may be used where"; }

void TypesVerb::addOptions(CLI::App& app)
{
    app.add_option("--format", m_format, "text: to read; json: for tools")
        ->check(CLI::IsMember({"text", "json"}))
        ->capture_default_str();
}

ExitCode TypesVerb::run(Output& output)
{
    if (m_format == "json") {
        output.out() << typeTablesAsJson();
    } else {
        TypeManager().dump(output.out());
    }
    return ExitCode::Fine;
}

} // namespace physics::apps
