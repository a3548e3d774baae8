#include "apps/check/RuleFindings.h"

#include "apps/Joined.h"
#include "apps/check/Naming.h"
#include "gtm/Face.h"
#include "gtm/FaceUse.h"
#include "gtm/Model.h"
#include "gtm/TopologyMap.h"
#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/Physics.h"
#include "physics/TypeNames.h"
#include "physics/Volume.h"

#include <cstdint>
#include <set>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace physics::apps {
namespace {

using Details = std::map<std::string, std::vector<std::string>>;

template <class Type>
std::vector<std::string> namesOf(const std::vector<Type>& types)
{
    std::vector<std::string> names;
    for (const Type type : types) {
        names.push_back(displayName(type));
    }
    return names;
}

/// "...; allowed are A, B."
std::string allowedTypes(const std::vector<std::string>& names)
{
    return names.empty() ? "; no type is allowed." : "; allowed are " + joined(names) + ".";
}

/// The mesh zones on a side of a face, negative where their faces look away from the first side.
std::set<std::int64_t> zonesOf(const gtm::TopologyMap* map, const gtm::FaceUse* faceUse, bool isSecondSide)
{
    std::set<std::int64_t> zones;
    if (map != nullptr && faceUse != nullptr) {
        for (const gtm::ExternalFaceSide& side : map->externalFaceSides(faceUse)) {
            const std::int64_t zone = side.zoneId;
            zones.insert((side.sideWord != 0) == isSecondSide ? zone : -zone);
        }
    }
    return zones;
}

class RuleExaminer final : public Examiner {
public:
    std::vector<Finding> about(const Physics& setUp) override;
    std::vector<Finding> about(const Volume& volume) override;
    std::vector<Finding> about(const Boundary& boundary) override;
    std::vector<Finding> about(const Interface& interface) override;

private:
    void findUnsharedMesh(const Volume& volume);
    void findTypeAgainstVolume(const Boundary& boundary);
    void findInternalTypeOutside(const Boundary& boundary);
    void findUnmatchedTag(const Boundary& boundary);
    void findTypeAgainst(const Interface& interface, Side side);

    template <class R>
    void add(FindingKind kind, const R& region, const std::string& rest, Details details = {});

    const std::unordered_set<const gtm::Face*>& internalFaces(const Volume& volume);

    std::vector<Finding> m_findings; ///< about the present region
    std::unordered_map<const Volume*, std::unordered_set<const gtm::Face*>> m_internalFaces;
};

std::vector<Finding> RuleExaminer::about(const Physics& /*setUp*/) { return {}; }

std::vector<Finding> RuleExaminer::about(const Volume& volume)
{
    findUnsharedMesh(volume);
    return std::exchange(m_findings, {});
}

std::vector<Finding> RuleExaminer::about(const Boundary& boundary)
{
    findTypeAgainstVolume(boundary);
    findInternalTypeOutside(boundary);
    findUnmatchedTag(boundary);
    return std::exchange(m_findings, {});
}

std::vector<Finding> RuleExaminer::about(const Interface& interface)
{
    findTypeAgainst(interface, Side::First);
    findTypeAgainst(interface, Side::Second);
    return std::exchange(m_findings, {});
}

template <class R>
void RuleExaminer::add(FindingKind kind, const R& region, const std::string& rest, Details details)
{
    const Finding::Subject subject = subjectOf(region);
    m_findings.push_back({kind, subject, &region, theSubject(subject) + " " + rest, std::move(details)});
}

void RuleExaminer::findUnsharedMesh(const Volume& volume)
{
    const gtm::TopologyMap* map = volume.physics()->locationModel()->solverZoneMap();
    std::vector<const gtm::Face*> faces;
    for (const gtm::Face* face : volume.unusedInternalFaces()) {
        if (zonesOf(map, face->firstFaceUse(), false) != zonesOf(map, face->secondFaceUse(), true)) {
            faces.push_back(face);
        }
    }
    if (!faces.empty()) {
        const std::vector<std::string> ids = idsOf(faces);
        add(FindingKind::UnsharedMesh, volume,
            "has internal faces whose two sides do not share one mesh: " + listed(ids) + ".", {{"faces", ids}});
    }
}

void RuleExaminer::findTypeAgainstVolume(const Boundary& boundary)
{
    const Volume& volume = *boundary.volume();
    if (volume.isAllowedBoundaryType(boundary.type())) {
        return;
    }
    const std::vector<std::string> allowed = namesOf(volume.allowedBoundaryTypes());
    const std::string volumeType = displayName(volume.type());
    const std::string type = displayName(boundary.type());
    add(FindingKind::TypeAgainstVolume, boundary,
        "is of type " + type + ", which a volume of type " + volumeType + " does not allow" + allowedTypes(allowed),
        {{"type", {type}}, {"volumeType", {volumeType}}, {"allowed", allowed}});
}

void RuleExaminer::findTypeAgainst(const Interface& interface, Side side)
{
    const Boundary* boundary = interface.boundary(side);
    if (boundary == nullptr || interface.isAllowedBoundaryType(boundary->volumeType(), boundary->type())) {
        return;
    }
    const std::vector<std::string> allowed = namesOf(interface.allowedBoundaryTypes(boundary->volumeType()));
    const std::string interfaceType = displayName(interface.type());
    const std::string volumeType = displayName(boundary->volumeType());
    const std::string type = displayName(boundary->type());
    const std::string name = boundary->fullName();
    const std::string sideName = side == Side::First ? "first" : "second";
    add(FindingKind::TypeAgainstInterface, interface,
        "of type " + interfaceType + " does not allow the type " + type + " of the boundary " + listed({name}) +
            " on its " + sideName + " side, next to a volume of type " + volumeType + allowedTypes(allowed),
        {{"boundary", {name}},
         {"side", {sideName}},
         {"type", {type}},
         {"volumeType", {volumeType}},
         {"interfaceType", {interfaceType}},
         {"allowed", allowed}});
}

void RuleExaminer::findInternalTypeOutside(const Boundary& boundary)
{
    if (!boundary.isInternal()) {
        return;
    }
    const std::vector<gtm::FaceUse*> faceUses = boundary.faceUses();
    const std::unordered_set<const gtm::FaceUse*> own(faceUses.begin(), faceUses.end());
    std::vector<const gtm::Face*> faces;
    std::vector<const gtm::FaceUse*> faceSides;
    for (const gtm::FaceUse* faceUse : faceUses) {
        if (faceUse->partner() != nullptr && own.count(faceUse->partner()) > 0) {
            continue;
        }
        if (internalFaces(*boundary.volume()).count(faceUse->face()) > 0) {
            faceSides.push_back(faceUse);
        } else {
            faces.push_back(faceUse->face());
        }
    }
    if (faces.empty() && faceSides.empty()) {
        return;
    }
    std::string sentence = "is of the internal type " + displayName(boundary.type()) + ",";
    if (!faces.empty()) {
        sentence += " but lies on outer faces of its volume: " + listed(idsOf(faces)) + ".";
    }
    if (!faceSides.empty()) {
        sentence += (faces.empty() ? " but has one side only" : " It has one side only") +
                    std::string(" of internal faces: ") + listed(idsOf(faceSides)) + ".";
    }
    add(FindingKind::InternalTypeOutside, boundary, sentence,
        {{"faces", idsOf(faces)}, {"faceSides", idsOf(faceSides)}});
}

void RuleExaminer::findUnmatchedTag(const Boundary& boundary)
{
    if (boundary.hasTag(BoundaryTag::Interface) && boundary.noOfInterfaces() == 0) {
        add(FindingKind::UnmatchedTag, boundary, "is tagged for use in an interface and is in none.");
    }
}

const std::unordered_set<const gtm::Face*>& RuleExaminer::internalFaces(const Volume& volume)
{
    const auto [entry, isNew] = m_internalFaces.try_emplace(&volume);
    if (isNew) {
        const std::vector<gtm::Face*> faces = volume.internalFaces();
        entry->second.insert(faces.begin(), faces.end());
    }
    return entry->second;
}

} // namespace

std::unique_ptr<Examiner> examinerOfRules() { return std::make_unique<RuleExaminer>(); }

} // namespace physics::apps
