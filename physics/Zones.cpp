#include "physics/Zones.h"

#include "gtm/Model.h"

namespace physics {

std::vector<gtm::ExternalFaceSide> faceSides(const gtm::Model* locationModel, const gtm::FaceUse* faceUse)
{
    const gtm::TopologyMap* zones = locationModel->solverZoneMap();
    if (zones == nullptr || faceUse == nullptr)
        return {};
    return zones->externalFaceSides(faceUse);
}

} // namespace physics
