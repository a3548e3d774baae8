#pragma once

#include "gtm/Export.h"
#include "gtm/Interface.h"
#include "gtm/Interior.h"

#include <cstddef>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace gtm {

class Body;
class Boundary;
class Face;
class FaceUse;
class Region;
class Topology;

/// A working copy of a topology: the interiors, boundaries and interfaces placed on it, and the mask
/// of bodies that are treated as absent. It owns all of these; they end with it.
class GTM_EXPORT VirtualTopology {
public:
    /// `topology` is not owned and must live longer. `name` and `number` tell several working copies
    /// of one topology apart in the location model's own reports; they have no other meaning.
    VirtualTopology(Topology* topology, const std::string& name, int number);
    ~VirtualTopology();
    VirtualTopology(const VirtualTopology&) = delete;
    VirtualTopology& operator=(const VirtualTopology&) = delete;

    /// Creates an interior and says how it lies there: never `Incomplete`, because that is a matter of
    /// its boundaries. With `enforceRestrictions`, anything but `Valid` is a refusal: the pointer is null
    /// and the state says why. Without, the interior exists in any state. `isTemporary` asks for an
    /// interior that the location model leaves out of its own reports.
    /// @{
    std::pair<Interior*, Interior::State> createInterior(const std::string& name, const std::string& location,
                                                         bool isTemporary, bool enforceRestrictions);
    std::pair<Interior*, Interior::State> createInterior(const std::string& name, const std::vector<Region*>& regions,
                                                         bool isTemporary, bool enforceRestrictions);
    /// @}

    /// Creates an interface between two sets of boundaries of this working copy, and refuses like
    /// `createInterior`. A boundary that is null or of another working copy is refused in any case.
    std::pair<Interface*, Interface::State> createInterface(const std::string& name, const std::set<Boundary*>& first,
                                                            const std::set<Boundary*>& second,
                                                            bool enforceRestrictions);

    /// Switches the default interior on or off. Off, it stands for no body; its boundaries stay.
    void activateDefaultInterior(bool active);

    /// The interior of every unmasked body that no other interior uses. It lives as long as this
    /// object and is switched on and off, never destroyed; off at first. Null where the location model has none.
    Interior* defaultInterior() const;

    /// Whether it is switched on.
    bool isDefaultInteriorActive() const;

    /// In the order of creation, the default interior last when it is active.
    std::vector<Interior*> interiors() const;

    /// In the order of creation.
    std::vector<Interface*> interfaces() const;

    /// As many as `interfaces` lists.
    std::size_t noOfInterfaces() const;

    /// Adds bodies to the mask. One that is masked already stays so.
    void mask(const std::vector<Body*>& bodies);

    /// Takes bodies out of the mask. One that is not masked stays so.
    void unmask(const std::vector<Body*>& bodies);

    /// Masks these bodies and no other.
    void setMaskedBodies(const std::vector<Body*>& bodies);

    /// A face use is masked with its body, a face when all of its face uses are. False for null.
    /// @{
    bool isMasked(Body* body) const;
    bool isMasked(Face* face) const;
    bool isMasked(FaceUse* faceUse) const;
    /// @}

    /// All of the topology that are masked or are not, in its order.
    /// @{
    std::vector<Body*> maskedBodies() const;
    std::vector<Body*> unmaskedBodies() const;
    std::vector<Face*> maskedFaces() const;
    std::vector<Face*> unmaskedFaces() const;
    std::vector<FaceUse*> maskedFaceUses() const;
    std::vector<FaceUse*> unmaskedFaceUses() const;
    /// @}

    /// The unmasked bodies that no interior uses, in the order of the topology.
    std::vector<Body*> unusedBodies() const;

    /// The topology that this was made over; never null.
    Topology* topology() const;

    /// True when every interior, boundary and interface is valid, or `acceptEmpty` and empty.
    bool isValid(bool acceptEmpty) const;

    /// Ends every interior, boundary and interface, switches the default interior off and empties the
    /// mask.
    void clear();

private:
    class Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace gtm
