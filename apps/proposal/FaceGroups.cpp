#include "apps/proposal/FaceGroups.h"

#include "apps/GeometryFile.h"
#include "apps/Joined.h"
#include "gtm/Body.h"
#include "gtm/Face.h"
#include "gtm/FaceUse.h"
#include "locationmodel/LocationModel.h"
#include "support/InQuotes.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>

namespace physics::apps {
namespace {

using gtm::bundled::CgnsCondition;
using gtm::support::inQuotes;

constexpr BoundaryMapping unknownBoundary{"", BoundaryType::Wall, Fidelity::Approximate,
                                          "nothing says what it is; a wall is assumed"};

/// The name of a face behind the id of a body; empty for "face-3", which only counts.
std::string ownNameOf(const gtm::Face& face, const GeometryFile& geometry)
{
    std::string name = geometry.nameOf(face.id());
    for (const gtm::FaceUse* use : {face.firstFaceUse(), face.secondFaceUse()}) {
        const std::string start = use == nullptr ? "/" : use->body()->id() + "/";
        if (name.rfind(start, 0) == 0) {
            name.erase(0, start.size());
            break;
        }
    }
    const bool isNumber = name.rfind("face-", 0) == 0 && name.find_first_not_of("0123456789-", 5) == std::string::npos;
    return isNumber ? "" : name;
}

BoundaryMapping mappingOfName(const std::string& name)
{
    const BoundaryMapping* mapping = boundaryMappingOfName(name);
    return mapping == nullptr ? unknownBoundary : *mapping;
}

/// What the type of the condition says, or, where we have none like it, its names.
BoundaryMapping mappingOf(const CgnsCondition& condition)
{
    const BoundaryMapping& byType = mappingOfCondition(condition.type);
    if (byType.fidelity != Fidelity::NotPossible) {
        return byType;
    }
    for (const std::string& name : {condition.family, condition.name}) {
        if (const BoundaryMapping* byName = boundaryMappingOfName(name)) {
            return *byName;
        }
    }
    return byType;
}

class Grouping {
public:
    Grouping(const GeometryFile& geometry, const std::vector<BodyGroup>& volumes);

    void sort(const gtm::Face& face);
    FaceGroups result() &&;

private:
    void sortOwn(const gtm::Face& face, std::size_t volume, bool isInside);
    void sortShared(const gtm::Face& face, std::size_t first, std::size_t second);
    void add(const gtm::Face& face, FaceGroup group);

    const GeometryFile& m_geometry;
    FaceGroups m_groups;
    std::map<const gtm::Body*, std::size_t> m_volumeOf;
    std::map<std::string, const CgnsCondition*> m_conditions; ///< by face
    std::set<std::string> m_periodic;
    std::map<std::tuple<std::size_t, std::string, bool>, std::size_t> m_own;
    std::map<std::tuple<std::size_t, std::size_t, std::string>, std::size_t> m_shared;
};

Grouping::Grouping(const GeometryFile& geometry, const std::vector<BodyGroup>& volumes) : m_geometry(geometry)
{
    for (std::size_t volume = 0; volume < volumes.size(); ++volume) {
        for (const gtm::Body* body : volumes[volume].bodies) {
            m_volumeOf.emplace(body, volume);
        }
    }
    for (const CgnsCondition& condition : geometry.conditions) {
        m_conditions.emplace(condition.face, &condition);
    }
    for (const gtm::bundled::CgnsPeriodic& periodic : geometry.periodics) {
        m_periodic.insert({periodic.firstFace, periodic.secondFace});
    }
    m_groups.noOfUnnamed.resize(volumes.size());
    m_groups.noOfInside.resize(volumes.size());
}

void Grouping::sort(const gtm::Face& face)
{
    const std::size_t first = m_volumeOf.at(face.firstFaceUse()->body());
    const gtm::FaceUse* other = face.secondFaceUse();
    const std::size_t second = other == nullptr ? first : m_volumeOf.at(other->body());
    if (m_periodic.count(face.id()) != 0) {
        m_groups.periodic.push_back({first, face.id(), ownNameOf(face, m_geometry)});
    } else if (first != second) {
        sortShared(face, first, second);
    } else {
        sortOwn(face, first, other != nullptr);
    }
}

void Grouping::sortOwn(const gtm::Face& face, std::size_t volume, bool isInside)
{
    const auto condition = m_conditions.find(face.id());
    if (condition != m_conditions.end()) {
        const bool isFamily = !condition->second->family.empty();
        const std::string& name = isFamily ? condition->second->family : condition->second->name;
        add(face, {volume,
                   (isFamily ? "family " : "condition ") + inQuotes(name) + ", " + condition->second->type,
                   name,
                   mappingOf(*condition->second),
                   isInside,
                   {}});
        return;
    }
    const std::string name = ownNameOf(face, m_geometry);
    if (isInside && (name.empty() || boundaryMappingOfName(name) == nullptr)) {
        ++m_groups.noOfInside[volume];
    } else if (name.empty()) {
        ++m_groups.noOfUnnamed[volume];
    } else {
        add(face, {volume, "face " + inQuotes(name), name, mappingOfName(name), isInside, {}});
    }
}

void Grouping::sortShared(const gtm::Face& face, std::size_t first, std::size_t second)
{
    const std::string name = ownNameOf(face, m_geometry);
    const auto [low, high] = std::minmax(first, second);
    const auto [known, isNew] = m_shared.emplace(std::tuple(low, high, name), m_groups.shared.size());
    if (isNew) {
        m_groups.shared.push_back({{low, high}, name, {}});
    }
    m_groups.shared[known->second].faces.push_back(face.id());
}

void Grouping::add(const gtm::Face& face, FaceGroup group)
{
    const auto [known, isNew] =
        m_own.emplace(std::tuple(group.volume, group.inFile, group.isInside), m_groups.own.size());
    if (isNew) {
        m_groups.own.push_back(std::move(group));
    }
    m_groups.own[known->second].faces.push_back(face.id());
}

FaceGroups Grouping::result() &&
{
    for (FaceGroup& group : m_groups.own) {
        if (group.faces.size() > 1) {
            group.inFile += ", " + counted(group.faces.size(), "face");
        }
    }
    return std::move(m_groups);
}

} // namespace

FaceGroups groupFaces(const GeometryFile& geometry, const std::vector<BodyGroup>& volumes)
{
    Grouping grouping(geometry, volumes);
    for (const gtm::Face* face : geometry.model->faces()) {
        grouping.sort(*face);
    }
    return std::move(grouping).result();
}

} // namespace physics::apps
