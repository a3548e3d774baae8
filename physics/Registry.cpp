#include "physics/Registry.h"

#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/Volume.h"

#include <algorithm>
#include <utility>

namespace physics {

static_assert(std::max({alignof(Model), alignof(Volume), alignof(Boundary), alignof(BoundaryPatch), alignof(Interface),
                        alignof(Settings), alignof(ThreadBundle)}) <= NodePool::alignment);

Registry::~Registry()
{
    for (Interface* interface : m_endedInterfaces)
        delete interface;
}

void Registry::add(Model* model)
{
    m_models.enter(*model);
    models.put(model->id(), model);
}

void Registry::add(Volume* volume)
{
    m_volumes.enter(*volume);
    volumesByName.put(volume->name(), volume);
    volumes.put(volume->id(), volume);
    volumesByAddress.put(volume, volume);
    if (volume->isDefaultVolume())
        defaultVolume = volume;
}

void Registry::add(Boundary* boundary)
{
    boundaries.put(boundary->id(), boundary);
    boundariesByLocation.put(boundary->boundary(), boundary);
}

void Registry::add(Interface* interface)
{
    m_interfaces.enter(*interface);
    interfacesByName.put(interface->name(), interface);
    interfaces.put(interface->id(), interface);
    interfacesByAddress.put(interface, interface);
}

void Registry::add(Settings* object)
{
    m_settings.enter(*object);
    settings.put(object->id(), object);
    for (ThreadBundle* bundle : object->threadBundles())
        add(bundle);
}

void Registry::add(ThreadBundle* bundle)
{
    bundlesByThreadId.put(bundle->threadId(), bundle);
    addZones(bundle, bundle->zoneIds());
}

void Registry::addZones(ThreadBundle* bundle, const std::vector<int>& zoneIds)
{
    for (const int zoneId : zoneIds)
        bundlesByZoneId.put(zoneId, bundle);
}

void Registry::remove(Model* model) { models.erase(model->id()); }

void Registry::remove(Volume* volume)
{
    volumesByName.erase(volume->name());
    volumes.erase(volume->id());
    volumesByAddress.erase(volume);
    if (defaultVolume.get() == volume)
        defaultVolume = nullptr;
}

void Registry::remove(Boundary* boundary)
{
    boundaries.erase(boundary->id());
    boundariesByLocation.erase(boundary->boundary());
}

void Registry::remove(Interface* interface)
{
    interfacesByName.erase(interface->name());
    interfaces.erase(interface->id());
    interfacesByAddress.erase(interface);
}

void Registry::remove(Settings* object)
{
    for (ThreadBundle* bundle : object->threadBundles())
        remove(bundle);
    settings.erase(object->id());
}

/// The bundle is ending, which cannot fail. When the location model does not say which zones it inherits, only the
/// entries that name it go.
void Registry::remove(ThreadBundle* bundle)
{
    try {
        removeZones(bundle);
    } catch (...) {
        // Those entries vanish with the bundle.
    }
    bundlesByThreadId.erase(bundle->threadId());
}

/// Releases the zones that the bundle reports now, also those that another bundle has taken since.
void Registry::removeZones(ThreadBundle* bundle)
{
    for (const int zoneId : bundle->zoneIds())
        bundlesByZoneId.erase(zoneId);
}

void Registry::forget(const Volume* volume)
{
    volumes.forget(volume->id(), volume);
    volumesByAddress.erase(volume);
}

void Registry::forget(const Interface* interface)
{
    interfaces.forget(interface->id(), interface);
    interfacesByAddress.erase(interface);
}

void Registry::forget(const Boundary* boundary)
{
    boundaries.forget(boundary->id(), boundary);
    boundariesByLocation.forget(boundary->boundary(), boundary);
}

std::vector<Volume*> Registry::allVolumes() const { return listedFirst(volumesByName.objects(), m_volumes.objects()); }

std::vector<Interface*> Registry::allInterfaces() const
{
    return listedFirst(interfacesByName.objects(), m_interfaces.objects());
}

std::vector<Boundary*> Registry::listedBoundaries() const
{
    std::vector<Boundary*> listed;
    for (const Volume* volume : volumesByName.objects())
        for (Boundary* boundary : volume->boundaries())
            listed.push_back(boundary);
    return listed;
}

bool Registry::listsAllBoundaries() const
{
    std::size_t noOfVolumes = 0;
    for (const Volume* volume = m_volumes.first(); volume != nullptr; volume = m_volumes.after(*volume)) {
        if (!volume->listsAll())
            return false;
        ++noOfVolumes;
    }
    return volumesByName.size() == noOfVolumes;
}

std::vector<Boundary*> Registry::allBoundaries() const
{
    std::vector<Boundary*> listed = listedBoundaries();
    if (listsAllBoundaries())
        return listed;
    std::vector<Boundary*> all;
    for (const Volume* volume : m_volumes.objects())
        for (Boundary* boundary : volume->ownedBoundaries())
            all.push_back(boundary);
    return listedFirst(std::move(listed), std::move(all));
}

void Registry::clear()
{
    const std::vector<Interface*> endingInterfaces = allInterfaces();
    const std::vector<Volume*> endingVolumes = allVolumes();
    forgetAll(); // all at once costs less than one by one

    for (Interface* interface : endingInterfaces)
        interface->destroy();
    for (Volume* volume : endingVolumes)
        volume->destroy();
    for (Model* model : m_models.objects())
        model->destroy();
    for (Settings* detached : m_settings.objects())
        delete detached;

    // Empty by now: tables from the beginning, and every entry of an index has gone with its object.
}

void Registry::forgetAll()
{
    activationGroups.clear();
    volumesByName.clear();
    interfacesByName.clear();
    volumes.clear();
    volumesByAddress.clear();
    boundaries.clear();
    interfaces.clear();
    interfacesByAddress.clear();
    settings.clear();
    bundlesByThreadId.clear();
    bundlesByZoneId.clear();
    boundariesByLocation.clear();
}

} // namespace physics
