#include "physics/rules/RuleInternalBoundaries.h"

#include "physics/Boundary.h"
#include "physics/Physics.h"
#include "physics/TypeNames.h"
#include "physics/Volume.h"
#include "physics/Zones.h"

#include "gtm/LocationModel.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <set>
#include <tuple>

namespace physics {
namespace {

constexpr const char* mustBeFixed = "This problem MUST be fixed before the solution can proceed.";

/// The face uses of a boundary whose face it reaches by one side only, each once and in its order.
std::vector<const gtm::FaceUse*> singleSided(const Boundary* boundary)
{
    struct Reach {
        const gtm::Face* face;
        const gtm::FaceUse* side;
        std::size_t place; // in the boundary's list
    };
    std::vector<Reach> reached;
    for (const gtm::FaceUse* faceUse : boundary->faceUses())
        if (faceUse != nullptr)
            reached.push_back({faceUse->face(), faceUse, reached.size()});
    std::sort(reached.begin(), reached.end(), [](const Reach& left, const Reach& right) {
        return std::tie(left.face, left.place) < std::tie(right.face, right.place);
    });

    std::vector<Reach> single;
    for (auto first = reached.cbegin(); first != reached.cend();) {
        const auto isAnother = [first](const Reach& reach) { return reach.face != first->face; };
        const auto isOtherSide = [first](const Reach& reach) { return reach.side != first->side; };
        const auto end = std::find_if(first, reached.cend(), isAnother);
        if (std::none_of(first, end, isOtherSide))
            single.push_back(*first);
        first = end;
    }
    std::sort(single.begin(), single.end(),
              [](const Reach& left, const Reach& right) { return left.place < right.place; });
    std::vector<const gtm::FaceUse*> faceUses;
    for (const Reach& reach : single)
        faceUses.push_back(reach.side);
    return faceUses;
}

std::string counted(std::size_t count, const std::string& noun)
{
    return std::to_string(count) + noun + (count == 1 ? "" : "s");
}

/// "is 1 face and2 face-sides": the verb goes with the first count, and no blank stands behind "and".
/// Both as always; those who search reports know the words.
std::string verbAndCounts(std::size_t faces, std::size_t faceSides)
{
    std::string text = faces == 1 || (faces == 0 && faceSides == 1) ? "is " : "are ";
    if (faces > 0)
        text += counted(faces, " face");
    if (faceSides > 0)
        text += (faces > 0 ? " and" : "") + counted(faceSides, " face-side");
    return text;
}

template <class Regions>
std::string idLines(const Regions& regions)
{
    std::string text;
    for (const gtm::Region* region : regions)
        text += region->id() + "\n";
    return text;
}

/// The mesh zones on one side of a face, with their orientation seen from the first side.
std::set<std::int64_t> signedZones(const Volume* volume, const gtm::FaceUse* faceUse, bool isSecond)
{
    std::set<std::int64_t> zones;
    for (const gtm::ExternalFaceSide& side : faceSides(volume->physics()->locationModel(), faceUse)) {
        const bool isReversed = (side.sideWord != 0) != isSecond;
        zones.insert(isReversed ? -std::int64_t{side.zoneId} : std::int64_t{side.zoneId});
    }
    return zones;
}

bool sharesOneMesh(const Volume* volume, const gtm::Face* face)
{
    return signedZones(volume, face->firstFaceUse(), false) == signedZones(volume, face->secondFaceUse(), true);
}

} // namespace

std::vector<std::string> RuleInternalBoundaries::checkBoundary(const Boundary* boundary, bool /*ignoreWarnings*/)
{
    if (!boundary->isInternal())
        return {};
    std::vector<const gtm::Face*> faces;
    std::vector<const gtm::FaceUse*> faceSides;
    for (const gtm::FaceUse* faceUse : singleSided(boundary)) {
        if (internalFaces(boundary->volume()).count(faceUse->face()) > 0)
            faceSides.push_back(faceUse);
        else
            faces.push_back(faceUse->face());
    }
    if (faces.empty() && faceSides.empty())
        return {};
    return {"The internal boundary " + boundary->name() + " of type " + displayName(boundary->type()) +
                " is defined on a piece of the\nexternal boundary of volume " + boundary->volume()->name() +
                ".\n\nIn particular there " + verbAndCounts(faces.size(), faceSides.size()) +
                " in the external boundary:\n\n" + idLines(faces) + (faces.empty() || faceSides.empty() ? "" : "\n") +
                idLines(faceSides),
            mustBeFixed};
}

std::vector<std::string> RuleInternalBoundaries::checkVolume(const Volume* volume, bool /*ignoreWarnings*/)
{
    std::vector<const gtm::Face*> problemFaces;
    std::unordered_set<const gtm::Face*> seen;
    for (const gtm::Face* face : volume->unusedInternalFaces())
        if (face != nullptr && seen.insert(face).second && !sharesOneMesh(volume, face))
            problemFaces.push_back(face);
    if (problemFaces.empty())
        return {};
    // No blank between name and "contains" on purpose: the text has always read so.
    return {
        "The volume " + volume->name() +
            "contains internal faces which are not discretised by a single shared mesh. The problem faces are:\n\n" +
            idLines(problemFaces),
        mustBeFixed};
}

const std::unordered_set<const gtm::Face*>& RuleInternalBoundaries::internalFaces(const Volume* volume)
{
    const auto [entry, isNew] = m_internalFaces.try_emplace(volume);
    if (isNew)
        for (const gtm::Face* face : volume->internalFaces())
            entry->second.insert(face);
    return entry->second;
}

} // namespace physics
