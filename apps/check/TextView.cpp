#include "apps/Joined.h"
#include "apps/Output.h"
#include "apps/check/CheckReport.h"
#include "apps/check/CheckViews.h"
#include "gtm/FaceUse.h"
#include "physics/Region.h"
#include "physics/TypeNames.h"
#include "support/InQuotes.h"

#include <ostream>

namespace physics::apps {
namespace {

using gtm::support::inQuotes;

std::string headingFor(const Region* region)
{
    return region == nullptr ? "Set-up" : displayName(region->topologyType()) + " " + inQuotes(region->fullName());
}

void write(const CheckReport::Object& object, const Places& places, Output& output)
{
    output.heading(headingFor(object.region));
    for (const Finding& finding : object.findings) {
        const FindingRow& row = rowOf(finding.kind);
        output.out() << "  " << row.id << " " << wordFor(row.severity) << ": " << finding.message << '\n';
        if (const auto place = places.find(finding.subject)) {
            output.out() << "    at line " << place->line << ", column " << place->column << ", " << place->pointer
                         << '\n';
        }
    }
    for (const std::string& line : object.lines) {
        output.out() << line << (line.empty() || line.back() != '\n' ? "\n" : "");
    }
    output.out() << '\n';
}

void write(const Coverage& coverage, Output& output)
{
    output.heading("Coverage");
    output.out() << "  " << counted(coverage.faceSides.size(), "face side") << " of "
                 << counted(coverage.bodies.size(), "body", "bodies") << ": " << coverage.noInOne
                 << " in one boundary, " << coverage.noInSeveral << " in several, " << coverage.noInNoneOutside
                 << " in none, " << coverage.noInNoneInside << " inside volumes in none\n";
    for (const Coverage::FaceSide& side : coverage.faceSides) {
        if (side.noOfOwners > 1) {
            output.out() << "  " << inQuotes(side.faceUse->id()) << " is in " << joined(coverage.ownersOf(side))
                         << '\n';
        } else if (side.noOfOwners == 0 && !side.isInternal) {
            output.out() << "  " << inQuotes(side.faceUse->id()) << " is in no boundary\n";
        }
    }
    output.out() << '\n';
}

} // namespace

void writeText(const CheckReport& report, Output& output)
{
    for (const CheckReport::Object& object : report.objects) {
        write(object, report.places, output);
    }
    write(report.coverage, output);
    const std::vector<const Finding*> findings = report.findings();
    output.out() << counted(report.noOf(Severity::Error), "error") << ", "
                 << counted(report.noOf(Severity::Warning), "warning") << '\n';
    if (!findings.empty()) {
        output.out() << "What a finding means and how it is put right: physics-case check --explain "
                     << rowOf(findings.front()->kind).id << '\n';
    }
}

} // namespace physics::apps
