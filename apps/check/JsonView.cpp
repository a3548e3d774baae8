#include "apps/check/CheckReport.h"
#include "apps/check/CheckViews.h"
#include "apps/check/Naming.h"
#include "gtm/Body.h"
#include "gtm/Face.h"
#include "gtm/FaceUse.h"
#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/Volume.h"

#include <nlohmann/json.hpp>

#include <cstddef>
#include <unordered_map>

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

Json bodiesOf(const Coverage& coverage)
{
    std::unordered_map<const gtm::Body*, std::vector<std::string>> volumesOf;
    for (const Volume* volume : coverage.volumes) {
        for (const gtm::Body* body : volume->bodies()) {
            volumesOf[body].push_back(volume->fullName());
        }
    }
    Json bodies = Json::array();
    auto side = coverage.faceSides.begin();
    for (const Coverage::Body& body : coverage.bodies) {
        Json sides = Json::array();
        for (const auto end = side + static_cast<std::ptrdiff_t>(body.noOfFaceSides); side != end; ++side) {
            sides.push_back({{"id", side->faceUse->id()},
                             {"face", side->faceUse->face()->id()},
                             {"isInternal", side->isInternal},
                             {"boundaries", coverage.ownersOf(*side)}});
        }
        bodies.push_back({{"id", body.body->id()}, {"volumes", volumesOf[body.body]}, {"faceSides", sides}});
    }
    return bodies;
}

Json toJson(const Coverage& coverage)
{
    Json json = {{"faceSides", coverage.faceSides.size()},
                 {"inOneBoundary", coverage.noInOne},
                 {"inSeveralBoundaries", coverage.noInSeveral},
                 {"inNone", coverage.noInNoneOutside},
                 {"inNoneInsideVolumes", coverage.noInNoneInside},
                 {"maskedBodies", idsOf(coverage.maskedBodies)},
                 {"volumes", Json::array()},
                 {"boundaries", Json::array()},
                 {"bodies", bodiesOf(coverage)}};
    for (const Volume* volume : coverage.volumes) {
        json["volumes"].push_back({{"name", volume->fullName()}, {"bodies", idsOf(volume->bodies())}});
    }
    for (const Boundary* boundary : coverage.boundaries) {
        json["boundaries"].push_back({{"name", boundary->fullName()},
                                      {"volume", boundary->volume()->fullName()},
                                      {"faceSides", idsOf(boundary->faceUses())}});
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
