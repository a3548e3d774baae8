#pragma once

#include "physics/Export.h"
#include "physics/Types.h"

#include <iosfwd>
#include <map>
#include <set>
#include <utility>
#include <vector>

namespace physics {

class TextReader;
class TextWriter;

/// Which types may be used where. The tables are complete after construction and change afterwards only
/// when a whole table set is read back from a saved text.
///
/// Every list is a new vector in ascending order of the enumerator's value; a type that is in no table
/// gives an empty list, false or `Unset`. Asking changes nothing, also not the set of table keys; the
/// list members are nevertheless not `const`, as hosts have come to know them.
class PHYSICS_EXPORT TypeManager {
public:
    /// Fills the tables.
    TypeManager();

    /// The types of one kind that an object may have.
    /// @{
    std::vector<VolumeType> allowedVolumeTypes();
    std::vector<InterfaceType> allowedInterfaceTypes();
    std::vector<ShellType> allowedShellTypes();
    std::vector<DomainType> allowedDomainTypes();
    std::vector<BoundaryTag> allowedBoundaryTags();
    std::vector<Periodicity> allowedPeriodicities();
    std::vector<Connectivity> allowedConnectivities();
    std::vector<MeshConnectivity> allowedMeshConnectivities();

    /// Those that a thread bundle may be asked for; fewer than the thread types that have names.
    std::vector<ThreadType> allowedThreadTypes();
    /// @}

    /// Every boundary type that some volume or some interface allows.
    std::vector<BoundaryType> allowedBoundaryTypes();

    /// The boundary types that a volume may carry.
    std::vector<BoundaryType> allowedBoundaryTypes(VolumeType volumeType);

    /// The types of a boundary that lies in such an interface and bounds such a volume.
    std::vector<BoundaryType> allowedBoundaryTypes(InterfaceType interfaceType, VolumeType volumeType);

    /// The types of a boundary that may carry such a shell.
    std::vector<BoundaryType> allowedBoundaryTypes(ShellType shellType);

    /// The interfaces in which such a boundary of such a volume may lie.
    std::vector<InterfaceType> allowedInterfaceTypes(BoundaryType boundaryType, VolumeType volumeType);

    /// The shells that such a boundary may carry.
    std::vector<ShellType> allowedShellTypes(BoundaryType boundaryType);

    /// The allowed boundary types that lie between two volumes.
    std::vector<BoundaryType> allowedInternalBoundaryTypes();

    /// The allowed boundary types that do not.
    std::vector<BoundaryType> allowedExternalBoundaryTypes();

    /// The type of a boundary of such a volume unless another is asked for; `Unset` when there is none.
    BoundaryType defaultBoundaryType(VolumeType volumeType);

    /// Whether the list for the first types has the last one.
    /// @{
    bool isAllowedBoundaryType(VolumeType volumeType, BoundaryType boundaryType) const;
    bool isAllowedBoundaryType(InterfaceType interfaceType, VolumeType volumeType, BoundaryType boundaryType) const;
    bool isAllowedInterfaceType(BoundaryType boundaryType, VolumeType volumeType, InterfaceType interfaceType) const;
    bool isAllowedShellType(BoundaryType boundaryType, ShellType shellType) const;
    /// @}

    /// Fixed rules that hold whatever tables were read back: the types that need fluid on both sides.
    /// @{
    bool isInternalBoundaryType(BoundaryType boundaryType) const;
    bool isSharedInterfaceType(InterfaceType interfaceType) const;
    /// @}

    /// Lists the tables for people: every type, then the boundary types that each volume type (its default
    /// type has a star), each interface type and each shell type allows.
    void dump(std::ostream& stream) const;

private:
    friend class TextReader;
    friend class TextWriter;

    using BoundaryTypes = std::set<BoundaryType>;

    void initialise();
    void clear();
    void buildSecondaryMaps();
    void serialise(TextWriter& writer) const;
    void restore(TextReader& reader);
    BoundaryTypes boundaryTypesInUse() const;
    std::vector<BoundaryType> boundaryTypesThatAre(bool internal) const;

    std::set<VolumeType> m_volumeTypes;
    std::set<InterfaceType> m_interfaceTypes;
    std::set<ShellType> m_shellTypes;
    std::set<ThreadType> m_threadTypes;
    std::set<DomainType> m_domainTypes;
    std::set<BoundaryTag> m_boundaryTags;
    std::set<Periodicity> m_periodicities;
    std::set<Connectivity> m_connectivities;
    std::set<MeshConnectivity> m_meshConnectivities;
    std::map<VolumeType, BoundaryTypes> m_volumeBoundaryTypes;
    std::map<std::pair<InterfaceType, VolumeType>, BoundaryTypes> m_interfaceBoundaryTypes;
    std::map<ShellType, BoundaryTypes> m_shellBoundaryTypes;
    std::map<VolumeType, BoundaryType> m_defaultBoundaryTypes;
    std::map<std::pair<BoundaryType, VolumeType>, std::set<InterfaceType>> m_boundaryInterfaceTypes; // derived
    std::map<BoundaryType, std::set<ShellType>> m_boundaryShellTypes;                                // derived
    BoundaryTypes m_allBoundaryTypes;                                                                // derived
};

/// The solver's number for a thread type, by a fixed table; -1 for `Unset` and for unknown types.
PHYSICS_EXPORT int solverThreadType(ThreadType threadType);

} // namespace physics
