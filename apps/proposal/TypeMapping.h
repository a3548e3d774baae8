#pragma once

#include "physics/Types.h"

#include <string>
#include <string_view>
#include <vector>

namespace physics::apps {

/// How well something of a geometry file can be said in a case.
enum class Fidelity { Exact, Approximate, NotPossible };

/// "exact", "approximate", "not possible".
std::string_view inWords(Fidelity fidelity);

/// One row of a table of docs/mapping.md: what a file says, what we make of it, and what is lost thereby.
template <class Type>
struct TypeMapping {
    std::string_view said;
    Type type;
    Fidelity fidelity;
    std::string_view lost; ///< empty when nothing is
};

/// The sentence about a row: what is lost, or, where no row was found, what is assumed instead.
template <class Type>
std::string remarkOn(const TypeMapping<Type>& mapping)
{
    return (mapping.said.empty() || mapping.lost.empty() ? "" : "lost: ") + std::string(mapping.lost);
}

using BoundaryMapping = TypeMapping<BoundaryType>;
using VolumeMapping = TypeMapping<VolumeType>;

/// The types of condition that a CGNS file may name. A type is `Unset` where we have none like it.
const std::vector<BoundaryMapping>& conditionTypes();

/// Words in the names of faces and of families of conditions, and words in the names of bodies and of families
/// of zones. Several words are said with one blank between them. The first row found in a name counts.
const std::vector<BoundaryMapping>& boundaryWords();
const std::vector<VolumeMapping>& volumeWords();

/// The row about a type of condition; that of "UserDefined" for a type that is not listed.
const BoundaryMapping& mappingOfCondition(std::string_view type);

/// The first row whose words stand one after the other in a name, or null. Words end at what is not a letter
/// and begin with a capital behind a small letter: "hotInlet_2" is "hot inlet".
const BoundaryMapping* boundaryMappingOfName(std::string_view name);
const VolumeMapping* volumeMappingOfName(std::string_view name);

} // namespace physics::apps
