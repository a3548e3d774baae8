#include "apps/check/CheckReport.h"
#include "apps/check/CheckViews.h"
#include "apps/check/Naming.h"
#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/Volume.h"

#include <nlohmann/json.hpp>

namespace physics::apps {
namespace {

using Json = nlohmann::ordered_json;

Json toJson(const Finding::Subject& subject) { return {{"type", subject.type}, {"name", subject.name}}; }

/// Null for the set-up as a whole.
Json subjectOf(const Region* region)
{
    if (region == nullptr) {
        return nullptr;
    }
    switch (region->topologyType()) {
    case TopologyType::Volume:
        return toJson(apps::subjectOf(static_cast<const Volume&>(*region)));
    case TopologyType::Boundary:
        return toJson(apps::subjectOf(static_cast<const Boundary&>(*region)));
    default:
        return toJson(apps::subjectOf(static_cast<const Interface&>(*region)));
    }
}

Json toJson(const Finding& finding, const Places& places)
{
    const FindingRow& row = rowOf(finding.kind);
    Json json = {{"id", row.id},
                 {"severity", wordFor(row.severity)},
                 {"title", row.title},
                 {"subject", toJson(finding.subject)},
                 {"message", finding.message},
                 {"details", Json::object()}};
    for (const auto& [what, names] : finding.details) {
        json["details"][what] = names;
    }
    if (const auto place = places.find(finding.subject)) {
        json["place"] = {{"path", place->pointer}, {"line", place->line}, {"column", place->column}};
    }
    return json;
}

Json toJson(const Coverage::Body& body)
{
    Json json = {{"id", body.id}, {"volumes", body.volumes}, {"faceSides", Json::array()}};
    for (const Coverage::FaceSide& side : body.faceSides) {
        json["faceSides"].push_back(
            {{"id", side.id}, {"face", side.face}, {"isInternal", side.isInternal}, {"boundaries", side.boundaries}});
    }
    return json;
}

Json toJson(const Coverage& coverage)
{
    Json json = {{"faceSides", coverage.noOfFaceSides},
                 {"inOneBoundary", coverage.noInOne},
                 {"inSeveralBoundaries", coverage.noInSeveral},
                 {"inNone", coverage.noInNoneOutside},
                 {"inNoneInsideVolumes", coverage.noInNoneInside},
                 {"maskedBodies", coverage.maskedBodies},
                 {"volumes", Json::array()},
                 {"boundaries", Json::array()},
                 {"bodies", Json::array()}};
    for (const Coverage::Owner& volume : coverage.volumes) {
        json["volumes"].push_back({{"name", volume.name}, {"bodies", volume.owns}});
    }
    for (const Coverage::Owner& boundary : coverage.boundaries) {
        json["boundaries"].push_back(
            {{"name", boundary.name}, {"volume", boundary.volume}, {"faceSides", boundary.owns}});
    }
    for (const Coverage::Body& body : coverage.bodies) {
        json["bodies"].push_back(toJson(body));
    }
    return json;
}

} // namespace

std::string toJson(const CheckReport& report)
{
    Json json = {{"format", "physics-check"},
                 {"version", 1},
                 {"file", report.file},
                 {"errors", report.noOf(Severity::Error)},
                 {"warnings", report.noOf(Severity::Warning)},
                 {"findings", Json::array()},
                 {"messages", Json::array()},
                 {"coverage", toJson(report.coverage)}};
    for (const Finding* finding : report.findings()) {
        json["findings"].push_back(toJson(*finding, report.places));
    }
    for (const CheckReport::Object& object : report.objects) {
        if (!object.lines.empty()) {
            json["messages"].push_back({{"subject", subjectOf(object.region)}, {"lines", object.lines}});
        }
    }
    return json.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

} // namespace physics::apps
