#pragma once

#include "gtm/LocationModel.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

/// What the contract suite needs from a location model to be run on it. The seam is fixed when a
/// program is linked, so each location model has a test program of its own, made of the suite and of a
/// source that defines `makeContractModel`.
namespace contract {

struct BodyDescription {
    std::string id;
    std::string part; ///< empty for a body outside every part
    std::vector<std::int32_t> zoneIds;
};

/// A face between two bodies, at one body only (`second` is empty), or within one (both the same).
struct FaceDescription {
    std::string id;
    std::string first;
    std::string second;
    std::vector<gtm::ExternalFaceSide> firstZones;
    std::vector<gtm::ExternalFaceSide> secondZones;
};

/// A small topology in its own order. When no body and no face has a zone, the model has no zone map.
struct TopologyDescription {
    std::vector<std::string> parts;
    std::vector<BodyDescription> bodies;
    std::vector<FaceDescription> faces;
};

/// Keeps a model of a description alive.
class ContractModel {
public:
    ContractModel() = default;
    ContractModel(const ContractModel&) = delete;
    ContractModel& operator=(const ContractModel&) = delete;
    virtual ~ContractModel() = default;

    /// Never null; owned by this object. A second `VirtualTopology` may be made over the same model.
    virtual const gtm::Model* model() const = 0;

    /// The face with this id; never null for a face of the description.
    virtual gtm::Face* face(const std::string& id) const = 0;
};

/// The suite asks of a location model that a list of regions, and a string of the ids of bodies (for
/// an interior) or of faces (for a boundary) joined by ", ", stand for just these, and otherwise only
/// what the comments in `gtm/` promise.
std::unique_ptr<ContractModel> makeContractModel(const TopologyDescription& description);

} // namespace contract
