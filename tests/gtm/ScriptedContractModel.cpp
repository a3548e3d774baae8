// The scripted location model, to be tested against the contract.

#include "tests/gtm/ContractFixture.h"
#include "tests/scripted/World.h"

namespace contract {
namespace {

class ScriptedContractModel final : public ContractModel {
public:
    explicit ScriptedContractModel(const TopologyDescription& description)
    {
        for (const std::string& part : description.parts)
            m_world.part(part);
        for (const BodyDescription& body : description.bodies)
            add(body);
        for (const FaceDescription& face : description.faces)
            add(face);
        if (!m_hasZones)
            m_world.withoutZoneMap();
    }

    const gtm::Model* model() const override { return m_world.model(); }

    gtm::Face* face(const std::string& id) const override
    {
        return dynamic_cast<gtm::Face*>(model()->topology()->findRegionById(id));
    }

private:
    void add(const BodyDescription& body)
    {
        auto* part = dynamic_cast<gtm::Part*>(model()->topology()->findRegionById(body.part));
        m_world.zones(m_world.body(body.id, part), body.zoneIds);
        m_hasZones = m_hasZones || !body.zoneIds.empty();
    }

    void add(const FaceDescription& face)
    {
        const gtm::Topology& topology = *model()->topology();
        const auto [entity, first, second] =
            m_world.face(face.id, topology.findBodyById(face.first), topology.findBodyById(face.second));
        m_world.sideZones(first, face.firstZones);
        if (second != nullptr)
            m_world.sideZones(second, face.secondZones);
        m_hasZones = m_hasZones || !face.firstZones.empty() || !face.secondZones.empty();
    }

    scripted::World m_world;
    bool m_hasZones = false;
};

} // namespace

std::unique_ptr<ContractModel> makeContractModel(const TopologyDescription& description)
{
    return std::make_unique<ScriptedContractModel>(description);
}

} // namespace contract
