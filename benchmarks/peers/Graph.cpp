#include "benchmarks/peers/Graph.h"

#include "physics/Boundary.h"
#include "physics/BoundaryPatch.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Physics.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/Volume.h"

#include "gtm/Boundary.h"
#include "gtm/Location.h"

namespace peers {
namespace {

template <class Object>
int idOf(const Object* object)
{
    return object == nullptr ? -1 : object->id();
}

template <class Object>
std::vector<int> idsOf(const std::vector<Object*>& objects)
{
    std::vector<int> ids;
    for (const Object* object : objects)
        ids.push_back(object->id());
    return ids;
}

template <class E>
int number(E value)
{
    return static_cast<int>(value);
}

template <class Region>
Place placeOf(const Region* region)
{
    const gtm::Location* location = region->location();
    return {region->name(), location == nullptr ? "" : location->locationString(false)};
}

Model described(const physics::Model* model)
{
    Model result{model->id(), idsOf(model->volumes()), idsOf(model->interfaces()), {}};
    for (const int id : model->domainIds())
        result.domains.push_back({id, number(model->domainType(id)), model->domainName(id)});
    return result;
}

Volume described(const physics::Volume* volume)
{
    return {volume->id(),
            number(volume->type()),
            idOf(volume->model()),
            volume->activationGroup(),
            volume->isDefaultVolume(),
            placeOf(volume),
            idsOf(volume->boundaries())};
}

Boundary described(const physics::Boundary* boundary)
{
    Boundary result{boundary->id(),
                    number(boundary->type()),
                    number(boundary->shellType()),
                    idOf(boundary->shellModel()),
                    idOf(boundary->volume()),
                    boundary->isDefaultBoundary(),
                    placeOf(boundary),
                    idsOf(boundary->patches()),
                    {}};
    for (const physics::BoundaryTag tag : boundary->tags())
        result.tags.push_back(number(tag));
    return result;
}

Interface described(const physics::Interface* interface)
{
    return {interface->id(),
            number(interface->type()),
            number(interface->periodicity()),
            number(interface->meshConnectivity()),
            idOf(interface->model()),
            idOf(interface->boundary(physics::Side::First)),
            idOf(interface->boundary(physics::Side::Second)),
            interface->isMapped(),
            interface->isStatic(),
            interface->isMeshValid(),
            interface->name()};
}

Patch described(const physics::BoundaryPatch* patch)
{
    return {patch->id(), idOf(patch->boundary()), idOf(patch->interface())};
}

Settings described(const physics::Settings* settings)
{
    Settings result{settings->id(),
                    number(settings->type()),
                    number(settings->topologyType()),
                    idOf(settings->model()),
                    idOf(settings->volume()),
                    idOf(settings->boundaryPatch()),
                    idOf(settings->interface()),
                    {}};
    for (const physics::ThreadBundle* bundle : settings->threadBundles())
        result.bundles.push_back({bundle->index(), bundle->threadId(), number(bundle->threadType()),
                                  bundle->domainIds(), bundle->zoneIds()});
    return result;
}

template <class Object>
auto allDescribed(const std::vector<Object*>& objects)
{
    std::vector<decltype(described(objects.front()))> result;
    for (const Object* object : objects)
        result.push_back(described(object));
    return result;
}

} // namespace

Graph graphOf(const physics::Physics& setUp)
{
    const std::vector<physics::Boundary*> boundaries = setUp.boundaries();
    std::vector<physics::BoundaryPatch*> patches;
    for (const physics::Boundary* boundary : boundaries)
        for (physics::BoundaryPatch* patch : boundary->patches())
            patches.push_back(patch);
    return {allDescribed(setUp.models()),     allDescribed(setUp.volumes()), allDescribed(boundaries),
            allDescribed(setUp.interfaces()), allDescribed(patches),         allDescribed(setUp.settings())};
}

} // namespace peers
