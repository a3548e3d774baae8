#include "apps/TopologyListing.h"

#include "apps/Joined.h"
#include "apps/Output.h"
#include "apps/Table.h"
#include "gtm/Body.h"
#include "gtm/Face.h"
#include "gtm/FaceUse.h"
#include "gtm/Part.h"
#include "gtm/TopologyMap.h"
#include "locationmodel/LocationModel.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace physics::apps {
namespace {

using gtm::bundled::LocationModel;

/// A number in as few digits as still tell it from others to six of them.
std::string inDigits(double value)
{
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.begin(), text.end(), value, std::chars_format::general, 6);
    return {text.begin(), end.ptr};
}

std::string idOf(const gtm::Region* region) { return region == nullptr ? "-" : region->id(); }

std::string zonesOf(const LocationModel& model, const gtm::Body* body)
{
    std::vector<std::string> zones;
    if (const gtm::TopologyMap* map = model.solverZoneMap()) {
        for (const gtm::ExternalBody& zone : map->externalBodies(body)) {
            zones.push_back(std::to_string(zone.zoneId));
        }
    }
    return joined(zones);
}

/// "reversed" marks a zone whose mesh faces look the other way.
std::string zonesOf(const LocationModel& model, const gtm::FaceUse* faceUse)
{
    std::vector<std::string> zones;
    if (const gtm::TopologyMap* map = model.solverZoneMap()) {
        for (const gtm::ExternalFaceSide& zone : map->externalFaceSides(faceUse)) {
            zones.push_back(std::to_string(zone.zoneId) + (zone.sideWord == 0 ? "" : " reversed"));
        }
    }
    return joined(zones);
}

void listParts(const LocationModel& model, Output& output)
{
    Table table({"id", "bodies"});
    for (const gtm::Part* part : model.parts()) {
        std::vector<std::string> bodies;
        for (const gtm::Body* body : part->bodies()) {
            bodies.push_back(body->id());
        }
        table.add({part->id(), joined(bodies)});
    }
    table.print("parts", output);
}

std::string numberOrDash(const std::optional<double>& value) { return value ? inDigits(*value) : "-"; }

std::string pointOrDash(const std::optional<std::array<double, 3>>& point)
{
    return point ? inDigits((*point)[0]) + " " + inDigits((*point)[1]) + " " + inDigits((*point)[2]) : "-";
}

std::string textOrDash(const std::string& text) { return text.empty() ? "-" : text; }

/// Whether anything is known of any of these regions; otherwise there are no columns for it.
template <class Regions, class Facts>
bool areDescribed(const LocationModel& model, const Regions& regions, const Facts& nothing)
{
    return std::any_of(regions.begin(), regions.end(),
                       [&](const auto* region) { return !(model.facts(region) == nothing); });
}

void listBodies(const LocationModel& model, Output& output)
{
    const bool areKnown = areDescribed(model, model.bodies(), gtm::bundled::BodyFacts());
    std::vector<std::string> titles = {"id", "part", "face uses", "zones"};
    if (areKnown) {
        titles.insert(titles.end(), {"volume", "colour"});
    }
    Table table(titles);
    for (const gtm::Body* body : model.bodies()) {
        std::vector<std::string> row = {body->id(), idOf(model.part(body)), std::to_string(model.faceUses(body).size()),
                                        zonesOf(model, body)};
        if (areKnown) {
            const gtm::bundled::BodyFacts& facts = model.facts(body);
            row.insert(row.end(), {numberOrDash(facts.volume), textOrDash(facts.color)});
        }
        table.add(row);
    }
    table.print("bodies", output);
}

void listFaces(const LocationModel& model, Output& output)
{
    const bool areKnown = areDescribed(model, model.faces(), gtm::bundled::FaceFacts());
    std::vector<std::string> titles = {"id", "first side", "second side"};
    if (areKnown) {
        titles.insert(titles.end(), {"area", "centroid", "colour"});
    }
    Table table(titles);
    const auto bodyOf = [](const gtm::FaceUse* use) { return idOf(use == nullptr ? nullptr : use->body()); };
    for (const gtm::Face* face : model.faces()) {
        std::vector<std::string> row = {face->id(), bodyOf(face->firstFaceUse()), bodyOf(face->secondFaceUse())};
        if (areKnown) {
            const gtm::bundled::FaceFacts& facts = model.facts(face);
            row.insert(row.end(), {numberOrDash(facts.area), pointOrDash(facts.centroid), textOrDash(facts.color)});
        }
        table.add(row);
    }
    table.print("faces", output);
}

void listFaceUses(const LocationModel& model, Output& output)
{
    Table table({"id", "face", "body", "partner", "zones"});
    for (const gtm::FaceUse* use : model.faceUses()) {
        table.add({use->id(), use->face()->id(), idOf(use->body()), idOf(use->partner()), zonesOf(model, use)});
    }
    table.print("face uses", output);
}

} // namespace

void listTopology(const LocationModel& model, Output& output)
{
    output.out() << counted(model.parts().size(), "part") << ", " << counted(model.bodies().size(), "body", "bodies")
                 << ", " << counted(model.faces().size(), "face") << ", "
                 << counted(model.faceUses().size(), "face use") << ", "
                 << (model.solverZoneMap() == nullptr ? "no solver zones" : "with solver zones") << '\n';
    listParts(model, output);
    listBodies(model, output);
    listFaces(model, output);
    listFaceUses(model, output);
}

} // namespace physics::apps
