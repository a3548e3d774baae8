// The location model of the example, to be tested against the contract.

#include "examples/own-kernel/Kernel.h"
#include "examples/own-kernel/Topology.h"
#include "tests/gtm/ContractFixture.h"

#include <algorithm>
#include <cstddef>

namespace contract {
namespace {

std::vector<int> signedZones(const std::vector<gtm::ExternalFaceSide>& sides)
{
    std::vector<int> zones;
    for (const gtm::ExternalFaceSide& side : sides)
        zones.push_back(side.sideWord != 0 ? -side.zoneId : side.zoneId);
    return zones;
}

kernel::Geometry geometryOf(const TopologyDescription& description)
{
    const auto placeOf = [&](const std::string& id) {
        const auto& bodies = description.bodies;
        const auto named = [&](const BodyDescription& body) { return body.id == id; };
        return static_cast<std::size_t>(std::find_if(bodies.begin(), bodies.end(), named) - bodies.begin());
    };
    kernel::Geometry geometry;
    geometry.assemblies = description.parts;
    for (const BodyDescription& body : description.bodies)
        geometry.solids.push_back({body.id, body.part, {body.zoneIds.begin(), body.zoneIds.end()}});
    for (const FaceDescription& face : description.faces)
        geometry.surfaces.push_back({face.id, placeOf(face.first),
                                     face.second.empty() ? std::nullopt : std::optional(placeOf(face.second)),
                                     signedZones(face.firstZones), signedZones(face.secondZones)});
    return geometry;
}

class KernelContractModel final : public ContractModel {
public:
    explicit KernelContractModel(const TopologyDescription& description) : m_model(geometryOf(description)) {}

    const gtm::Model* model() const override { return &m_model; }

    gtm::Face* face(const std::string& id) const override
    {
        return dynamic_cast<gtm::Face*>(m_model.topology()->findRegionById(id));
    }

private:
    own::Model m_model;
};

} // namespace

std::unique_ptr<ContractModel> makeContractModel(const TopologyDescription& description)
{
    return std::make_unique<KernelContractModel>(description);
}

} // namespace contract
