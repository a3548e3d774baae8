#include "apps/TypeTables.h"

#include "physics/TypeManager.h"
#include "physics/TypeNames.h"
#include "physics/Types.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <vector>

namespace physics::apps {
namespace {

using Json = nlohmann::ordered_json;

template <class E>
Json namesOf(const std::vector<E>& types)
{
    Json names = Json::array();
    for (const E type : types) {
        names.push_back(displayName(type));
    }
    return names;
}

template <class E>
Json entryOf(E type)
{
    return {{"name", displayName(type)}, {"value", static_cast<std::int32_t>(type)}};
}

/// An entry for each type; `complete` adds to it.
template <class E, class Complete>
Json entriesOf(const std::vector<E>& types, Complete complete)
{
    Json entries = Json::array();
    for (const E type : types) {
        Json entry = entryOf(type);
        complete(type, entry);
        entries.push_back(std::move(entry));
    }
    return entries;
}

template <class E>
Json entriesOf(const std::vector<E>& types)
{
    return entriesOf(types, [](E, Json&) {});
}

Json volumeTypes(TypeManager& tables)
{
    return entriesOf(tables.allowedVolumeTypes(), [&tables](VolumeType type, Json& entry) {
        entry["defaultBoundaryType"] = displayName(tables.defaultBoundaryType(type));
        entry["boundaryTypes"] = namesOf(tables.allowedBoundaryTypes(type));
    });
}

Json boundaryTypes(TypeManager& tables)
{
    return entriesOf(tables.allowedBoundaryTypes(), [&tables](BoundaryType type, Json& entry) {
        entry["isInternal"] = tables.isInternalBoundaryType(type);
        entry["shellTypes"] = namesOf(tables.allowedShellTypes(type));
    });
}

Json interfaceTypes(TypeManager& tables)
{
    return entriesOf(tables.allowedInterfaceTypes(), [&tables](InterfaceType type, Json& entry) {
        entry["isShared"] = tables.isSharedInterfaceType(type);
        for (const VolumeType volumeType : tables.allowedVolumeTypes()) {
            entry["boundaryTypes"][displayName(volumeType)] = namesOf(tables.allowedBoundaryTypes(type, volumeType));
        }
    });
}

Json shellTypes(TypeManager& tables)
{
    return entriesOf(tables.allowedShellTypes(), [&tables](ShellType type, Json& entry) {
        entry["boundaryTypes"] = namesOf(tables.allowedBoundaryTypes(type));
    });
}

Json threadTypes(TypeManager& tables)
{
    return entriesOf(tables.allowedThreadTypes(),
                     [](ThreadType type, Json& entry) { entry["solverNumber"] = solverThreadType(type); });
}

} // namespace

std::string typeTablesAsJson()
{
    TypeManager tables;
    const Json json = {{"format", "physics-types"},
                       {"version", 1},
                       {"volumeTypes", volumeTypes(tables)},
                       {"boundaryTypes", boundaryTypes(tables)},
                       {"interfaceTypes", interfaceTypes(tables)},
                       {"shellTypes", shellTypes(tables)},
                       {"threadTypes", threadTypes(tables)},
                       {"domainTypes", entriesOf(tables.allowedDomainTypes())},
                       {"boundaryTags", entriesOf(tables.allowedBoundaryTags())},
                       {"periodicities", entriesOf(tables.allowedPeriodicities())},
                       {"connectivities", entriesOf(tables.allowedConnectivities())},
                       {"meshConnectivities", entriesOf(tables.allowedMeshConnectivities())}};
    return json.dump(2) + "\n";
}

} // namespace physics::apps
