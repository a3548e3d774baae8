#include "physics/Peek.h"

#include "physics/BoundaryPatch.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Physics.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/Volume.h"

namespace physics {

Settings* Peek::settings(const Volume& volume)
{
    const Model* model = volume.model();
    return model == nullptr ? nullptr : model->held(&volume, TopologyType::Volume);
}

Settings* Peek::internalSettings(const Volume& volume)
{
    const Model* model = volume.model();
    return model == nullptr ? nullptr : model->held(&volume, TopologyType::Internal);
}

Settings* Peek::settings(const Interface& interface)
{
    const Model* model = interface.model();
    return model == nullptr ? nullptr : model->held(&interface);
}

Settings* Peek::settings(const BoundaryPatch& patch, SettingsType kind)
{
    const Model* model = patch.model(kind);
    return model == nullptr ? nullptr : model->held(&patch, kind);
}

std::vector<int> Peek::zoneIds(const ThreadBundle& bundle) { return bundle.zoneIds(false); }
std::vector<int> Peek::internalZoneIds(const Volume& volume) { return volume.internalZoneIds(false); }
std::vector<int> Peek::zoneIds(const Physics& physics) { return physics.zoneIds(false); }
std::vector<BoundaryPatch*> Peek::patches(const Physics& physics) { return physics.boundaryPatches(); }

} // namespace physics
