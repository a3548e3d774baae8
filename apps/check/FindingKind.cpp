#include "apps/check/FindingKind.h"

#include "apps/InputError.h"
#include "apps/check/FindingsPage.h"
#include "support/InQuotes.h"
#include "support/NearestName.h"

#include <algorithm>

namespace physics::apps {

const std::vector<FindingRow>& allFindingKinds()
{
    using enum FindingKind;
    using enum Severity;
    static const std::vector<FindingRow> rows = {
        {UnknownName, "PS001", Error, "A location names something that does not exist"},
        {WrongRegion, "PS002", Error, "A location names the wrong kind of region"},
        {EmptyRegion, "PS003", Warning, "Something lies on nothing"},
        {OverlappingVolumes, "PS004", Error, "Volumes overlap"},
        {OverlappingBoundaries, "PS005", Error, "Boundaries overlap"},
        {UncoveredSurface, "PS006", Error, "Part of a surface is in no boundary"},
        {UnusedBody, "PS007", Warning, "A body is in no volume"},
        {SameBoundaryTwice, "PS008", Error, "An interface has one boundary on both sides"},
        {UnsoundBoundaries, "PS009", Error, "An interface joins boundaries that overlap or are not valid"},
        {SeveralVolumesOnASide, "PS010", Error, "A side of an interface has several volumes"},
        {BothSidesOfAFace, "PS011", Error, "A side of an interface has both sides of a face"},
        {TypeAgainstVolume, "PS012", Error, "A volume does not allow the type of a boundary"},
        {TypeAgainstInterface, "PS013", Error, "An interface does not allow the type of a boundary"},
        {InternalTypeOutside, "PS014", Error, "A boundary of an internal type lies on an outer surface"},
        {UnsharedMesh, "PS015", Error, "The two sides of an internal face have different meshes"},
        {UnmatchedTag, "PS016", Warning, "A boundary meant for an interface is in none"},
        {Refused, "PS017", Error, "Part of the case could not be made"},
        {EqualName, "PS018", Error, "Something has the name of another"},
    };
    return rows;
}

const FindingRow& rowOf(FindingKind kind) { return allFindingKinds().at(static_cast<std::size_t>(kind)); }

std::string_view wordFor(Severity severity) { return severity == Severity::Error ? "error" : "warning"; }

std::string explanationOf(const std::string& id)
{
    std::vector<std::string> ids;
    for (const FindingRow& row : allFindingKinds()) {
        ids.emplace_back(row.id);
    }
    if (std::find(ids.begin(), ids.end(), id) == ids.end()) {
        throw InputError("physics-case: there is no kind of finding " + gtm::support::inQuotes(id) +
                         gtm::support::hintForName(id, ids));
    }
    const std::string_view page = findingsPage;
    const std::size_t begin = page.find("## " + id + " ");
    return std::string(page.substr(begin, page.find("\n## ", begin) - begin));
}

} // namespace physics::apps
