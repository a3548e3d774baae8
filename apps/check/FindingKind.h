#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace physics::apps {

/// What can be wrong with a set-up. What each kind means and how it is put right: docs/findings.md.
enum class FindingKind {
    UnknownName,
    WrongRegion,
    EmptyRegion,
    OverlappingVolumes,
    OverlappingBoundaries,
    UncoveredSurface,
    UnusedBody,
    SameBoundaryTwice,
    UnsoundBoundaries,
    SeveralVolumesOnASide,
    BothSidesOfAFace,
    TypeAgainstVolume,
    TypeAgainstInterface,
    InternalTypeOutside,
    UnsharedMesh,
    UnmatchedTag,
    Refused,
    EqualName,
};

/// An error makes a set-up invalid. A warning is what somebody may have meant.
enum class Severity { Error, Warning };

/// One kind of finding as its users know it.
struct FindingRow {
    FindingKind kind;
    std::string_view id; ///< it never changes its meaning, and one that is given up is not used again
    Severity severity;
    std::string_view title;
};

/// In ascending order of the ids.
const std::vector<FindingRow>& allFindingKinds();

const FindingRow& rowOf(FindingKind kind);

/// "error" or "warning".
std::string_view wordFor(Severity severity);

/// The section about a kind in docs/findings.md, which stands in this program. Throws `InputError` with the
/// nearest id when there is no such kind.
std::string explanationOf(const std::string& id);

} // namespace physics::apps
