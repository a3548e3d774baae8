// The bundled location model, to be tested against the contract.

#include "locationmodel/LocationModel.h"
#include "locationmodel/TopologyBuilder.h"
#include "tests/gtm/ContractFixture.h"

#include <optional>
#include <utility>

namespace contract {
namespace {

using gtm::bundled::LocationModel;
using gtm::bundled::TopologyBuilder;

class BundledContractModel final : public ContractModel {
public:
    explicit BundledContractModel(std::unique_ptr<LocationModel> model) : m_model(std::move(model)) {}

    const gtm::Model* model() const override { return m_model.get(); }

    gtm::Face* face(const std::string& id) const override
    {
        return dynamic_cast<gtm::Face*>(m_model->topology()->findRegionById(id));
    }

private:
    std::unique_ptr<LocationModel> m_model;
};

} // namespace

std::unique_ptr<ContractModel> makeContractModel(const TopologyDescription& description)
{
    TopologyBuilder builder;
    for (const std::string& part : description.parts) {
        builder.addPart(part);
    }
    for (const BodyDescription& body : description.bodies) {
        builder.addBody(body.id, body.part, body.zoneIds);
    }
    for (const FaceDescription& face : description.faces) {
        std::optional<TopologyBuilder::Side> second;
        if (!face.second.empty()) {
            second = TopologyBuilder::Side{face.second, "", face.secondZones};
        }
        builder.addFace(face.id, {face.first, "", face.firstZones}, second);
    }
    return std::make_unique<BundledContractModel>(builder.build());
}

} // namespace contract
