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

#include <ostream>
#include <string>
#include <vector>

namespace physics::apps {
namespace {

using gtm::bundled::LocationModel;

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

void listBodies(const LocationModel& model, Output& output)
{
    Table table({"id", "part", "face uses", "zones"});
    for (const gtm::Body* body : model.bodies()) {
        table.add(
            {body->id(), idOf(model.part(body)), std::to_string(model.faceUses(body).size()), zonesOf(model, body)});
    }
    table.print("bodies", output);
}

void listFaces(const LocationModel& model, Output& output)
{
    Table table({"id", "first side", "second side"});
    const auto bodyOf = [](const gtm::FaceUse* use) { return idOf(use == nullptr ? nullptr : use->body()); };
    for (const gtm::Face* face : model.faces()) {
        table.add({face->id(), bodyOf(face->firstFaceUse()), bodyOf(face->secondFaceUse())});
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
