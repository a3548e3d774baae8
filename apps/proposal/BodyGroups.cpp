#include "apps/proposal/BodyGroups.h"

#include "apps/GeometryFile.h"
#include "apps/Joined.h"
#include "gtm/Body.h"
#include "gtm/Part.h"
#include "locationmodel/LocationModel.h"
#include "support/InQuotes.h"

#include <cstddef>
#include <map>

namespace physics::apps {
namespace {

using gtm::support::inQuotes;

constexpr VolumeMapping unknownVolume{"", VolumeType::Fluid, Fidelity::Approximate,
                                      "nothing says what fills it; a fluid is assumed"};

/// The first of the names that says what fills a body, the name of its part last.
VolumeMapping mappingOf(const std::string& name, const gtm::Part* part)
{
    const VolumeMapping* mapping = volumeMappingOfName(name);
    if (mapping == nullptr && part != nullptr) {
        mapping = volumeMappingOfName(part->id());
    }
    return mapping == nullptr ? unknownVolume : *mapping;
}

} // namespace

std::vector<BodyGroup> groupBodies(const GeometryFile& geometry)
{
    std::map<std::string, std::string> familyOfBody;
    for (const gtm::bundled::CgnsZone& zone : geometry.zones) {
        familyOfBody.emplace(zone.body, zone.family);
    }
    std::vector<BodyGroup> groups;
    std::map<std::string, std::size_t> groupOfFamily;
    for (const gtm::Body* body : geometry.model->bodies()) {
        const std::string family = familyOfBody[body->id()];
        const auto [known, isNew] = groupOfFamily.emplace(family, groups.size());
        if (!family.empty() && !isNew) {
            groups[known->second].bodies.push_back(body);
            continue;
        }
        const std::string name = family.empty() ? geometry.nameOf(body->id()) : family;
        groups.push_back({(family.empty() ? "body " : "family ") + inQuotes(name),
                          name,
                          mappingOf(name, geometry.model->part(body)),
                          {body}});
    }
    for (BodyGroup& group : groups) {
        if (group.bodies.size() > 1) {
            group.inFile += ", " + counted(group.bodies.size(), "body", "bodies");
        }
    }
    return groups;
}

} // namespace physics::apps
