#include "physics/Boundary.h"

#include "physics/BoundaryPatch.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Physics.h"
#include "physics/Registry.h"
#include "physics/Settings.h"
#include "physics/Volume.h"
#include "physics/Zones.h"

#include "gtm/LocationModel.h"

#include <algorithm>
#include <set>
#include <unordered_set>

namespace physics {

int Boundary::s_lastUsedId = 0;

Boundary::Boundary(int id, int ownPatchId, Volume* volume, BoundaryType type, gtm::Boundary* boundary, bool isDefault)
    : m_id(id),
      m_type(type),
      m_boundary(boundary),
      m_volume(volume),
      m_isDefault(isDefault),
      m_ownPatch(ownPatchId, this, nullptr)
{}

Boundary::Boundary(Volume* volume, BoundaryType type, gtm::Boundary* boundary, bool isDefault)
    : Boundary(nextId(s_lastUsedId), nextId(BoundaryPatch::s_lastUsedId), volume, type, boundary, isDefault)
{
    volume->add(this);
}

Boundary::~Boundary()
{
    if (Brood<Boundary, OfVolume>::isIn(*this))
        --m_volume->m_noOfBoundaries;
    physics()->registry().forget(this);
    endPatches();
}

Physics* Boundary::physics() const { return m_volume->physics(); }

std::string Boundary::name() const { return m_boundary->name(); }
std::string Boundary::fullName() const { return m_volume->name() + "::" + name(); }
State Boundary::state() const { return State(static_cast<int>(m_boundary->state())); }
bool Boundary::isActive() const { return m_volume->isActive(); }
bool Boundary::isEmpty() const { return m_boundary->faceUses().empty(); }
std::string Boundary::rename(const std::string& name) { return m_boundary->rename(name); }
Model* Boundary::shellModel() const { return m_shellModel; }
Model* Boundary::volumeModel() const { return m_volume->model(); }
VolumeType Boundary::volumeType() const { return m_volume->type(); }

const gtm::Location* Boundary::location() const { return m_boundary->location(); }
std::vector<gtm::FaceUse*> Boundary::faceUses() const { return m_boundary->faceUses(); }
std::vector<std::string> Boundary::unresolvableNames() const { return m_boundary->unresolvableNames(); }

std::vector<gtm::FaceUse*> Boundary::overlap(const Boundary* other) const
{
    return other == nullptr || other->physics() != physics() ? std::vector<gtm::FaceUse*>()
                                                             : m_boundary->overlap(other->m_boundary);
}

std::vector<Boundary*> Boundary::overlappingBoundaries() const
{
    std::vector<Boundary*> boundaries;
    for (const gtm::Boundary* boundary : m_boundary->overlappingBoundaries())
        boundaries.push_back(physics()->find(boundary));
    return boundaries;
}

bool Boundary::isInternal() const { return physics()->isInternalBoundaryType(m_type); }
bool Boundary::couldBeInternal() const { return m_boundary->isInternal(); }
Boundary* Boundary::pair() const { return physics()->find(m_boundary->pair()); }

bool Boundary::setBoundaryType(BoundaryType type)
{
    if (!physics()->isAllowedBoundaryType(volumeType(), type))
        return false;
    for (const Interface* interface : interfaces())
        if (!interface->isAllowedBoundaryType(volumeType(), type))
            return false;
    m_type = type;
    return true;
}

bool Boundary::setShellType(ShellType type)
{
    if (m_shellModel == nullptr || !isAllowedShellType(type))
        return false;
    m_shellType = type;
    return true;
}

void Boundary::setShellModel(Model* model)
{
    if (model != nullptr && model->physics() != physics())
        return;
    if (m_shellModel != nullptr && model != nullptr)
        m_shellModel->move(this, model);
    else if (m_shellModel != nullptr)
        m_shellModel->remove(this);
    else if (model != nullptr)
        model->add(this);
    m_shellModel = model;
}

std::vector<InterfaceType> Boundary::allowedInterfaceTypes() const
{
    return physics()->allowedInterfaceTypes(m_type, volumeType());
}

bool Boundary::isAllowedInterfaceType(InterfaceType type) const
{
    return physics()->isAllowedInterfaceType(m_type, volumeType(), type);
}

std::vector<ShellType> Boundary::allowedShellTypes() const { return physics()->allowedShellTypes(m_type); }
bool Boundary::isAllowedShellType(ShellType type) const { return physics()->isAllowedShellType(m_type, type); }

void Boundary::addTag(BoundaryTag tag)
{
    if (!hasTag(tag))
        m_tags.insert(std::upper_bound(m_tags.begin(), m_tags.end(), tag), tag);
}

void Boundary::removeTag(BoundaryTag tag)
{
    m_tags.erase(std::remove(m_tags.begin(), m_tags.end(), tag), m_tags.end());
}

bool Boundary::hasTag(BoundaryTag tag) const { return std::binary_search(m_tags.begin(), m_tags.end(), tag); }
std::vector<BoundaryTag> Boundary::tags() const { return m_tags; }

void Boundary::addToInterface(Interface* interface)
{
    addPatch(new (physics()->registry().nodes) BoundaryPatch(this, interface));
}

/// An earlier patch for the interface ends, as with an interface that has this boundary on both sides.
void Boundary::addPatch(BoundaryPatch* patch)
{
    m_interfacePatches.enter(*patch);
    ++m_noOfInterfaces;
    if (BoundaryPatch* earlier = patch->interface()->exchangePatch(patch))
        removePatch(earlier);
}

/// Until the patch has ended, the boundary counts it, so that the zones of an undivided boundary are not yet
/// inherited.
void Boundary::removePatch(BoundaryPatch* patch)
{
    delete patch;
    --m_noOfInterfaces;
}

void Boundary::endPatches()
{
    while (BoundaryPatch* patch = m_interfacePatches.first())
        removePatch(patch);
    m_ownPatch.endSettings();
}

int Boundary::noOfInterfaces() const { return m_noOfInterfaces; }

std::vector<Interface*> Boundary::interfaces() const
{
    std::vector<Interface*> interfaces;
    interfaces.reserve(static_cast<std::size_t>(m_noOfInterfaces));
    for (const auto* patch = m_interfacePatches.first(); patch != nullptr; patch = m_interfacePatches.after(*patch))
        interfaces.push_back(patch->interface());
    sortById(interfaces);
    return interfaces;
}

BoundaryPatch* Boundary::patch(const Interface* interface) const
{
    if (interface == nullptr)
        return &m_ownPatch;
    const Interface* live = physics()->registry().interfacesByAddress.find(interface);
    return live == nullptr ? nullptr : patchFor(live);
}

BoundaryPatch* Boundary::patchFor(const Interface* live) const
{
    return live == nullptr ? &m_ownPatch : live->patchOf(this);
}

std::vector<BoundaryPatch*> Boundary::patches() const
{
    std::vector<BoundaryPatch*> patches;
    patches.reserve(1 + static_cast<std::size_t>(noOfInterfaces()));
    appendPatches(patches);
    sortByIdOf(patches, [](const BoundaryPatch* patch) { return patch->interface(); }); // none comes first
    return patches;
}

void Boundary::appendPatches(std::vector<BoundaryPatch*>& result) const
{
    result.push_back(&m_ownPatch);
    for (auto* patch = m_interfacePatches.first(); patch != nullptr; patch = m_interfacePatches.after(*patch))
        result.push_back(patch);
}

Settings* Boundary::settings(SettingsType kind, const Interface* interface) const
{
    const BoundaryPatch* ofInterface = patch(interface);
    return ofInterface == nullptr ? nullptr : ofInterface->settings(kind);
}

Settings* Boundary::boundarySettings(const Interface* interface) const
{
    return settings(SettingsType::VolumeSettings, interface);
}

Settings* Boundary::shellSettings(const Interface* interface) const
{
    return settings(SettingsType::ShellSettings, interface);
}

Settings* Boundary::interfaceSettings(const Interface* interface) const
{
    return settings(SettingsType::InterfaceSettings, interface);
}

Settings* Boundary::nonOverlappingBoundarySettings() const { return m_ownPatch.boundarySettings(); }
Settings* Boundary::nonOverlappingShellSettings() const { return m_ownPatch.shellSettings(); }

void Boundary::appendSettings(std::vector<Settings*>& result, SettingsType kind) const
{
    for (const BoundaryPatch* patch : patches())
        result.push_back(patch->settings(kind));
}

void Boundary::appendInterfaceSettings(std::vector<Settings*>& result) const
{
    for (const BoundaryPatch* patch : patches())
        if (Settings* settings = patch->interfaceSettings())
            result.push_back(settings);
}

std::vector<Settings*> Boundary::allBoundarySettings() const
{
    std::vector<Settings*> result;
    if (volumeModel() != nullptr)
        appendSettings(result, SettingsType::VolumeSettings);
    sortOnceById(result);
    return result;
}

std::vector<Settings*> Boundary::allShellSettings() const
{
    std::vector<Settings*> result;
    if (m_shellModel != nullptr)
        appendSettings(result, SettingsType::ShellSettings);
    sortOnceById(result);
    return result;
}

std::vector<Settings*> Boundary::allInterfaceSettings() const
{
    std::vector<Settings*> result;
    appendInterfaceSettings(result);
    sortOnceById(result);
    return result;
}

std::vector<Settings*> Boundary::allSettings() const
{
    std::vector<Settings*> result = allBoundarySettings();
    if (m_shellModel != nullptr)
        appendSettings(result, SettingsType::ShellSettings);
    appendInterfaceSettings(result);
    sortOnceById(result);
    return result;
}

std::vector<int> Boundary::zoneIds() const
{
    std::set<int> zoneIds;
    for (const gtm::FaceUse* faceUse : faceUses())
        for (const gtm::ExternalFaceSide& side : faceSides(physics()->locationModel(), faceUse))
            zoneIds.insert(absoluteZoneId(side.zoneId));
    return {zoneIds.begin(), zoneIds.end()};
}

int Boundary::hasExternalRegion() const
{
    if (noOfInterfaces() == 0)
        return isEmpty() ? 0 : 1;
    std::unordered_set<const gtm::FaceUse*> facing;
    for (const Interface* interface : interfaces())
        if (const Boundary* other = interface->otherBoundary(this))
            for (const gtm::FaceUse* faceUse : other->faceUses())
                facing.insert(faceUse);
    for (const gtm::FaceUse* faceUse : faceUses())
        if (faceUse != nullptr && (faceUse->partner() == nullptr || facing.count(faceUse->partner()) == 0))
            return 2;
    return 0;
}

bool Boundary::relocate(const std::string& location, bool enforceRestrictions)
{
    return m_boundary->relocate(location, enforceRestrictions) == gtm::Boundary::State::Valid;
}

bool Boundary::relocate(const std::vector<gtm::Region*>& regions, bool enforceRestrictions)
{
    return m_boundary->relocate(regions, enforceRestrictions) == gtm::Boundary::State::Valid;
}

bool Boundary::remove(const std::vector<gtm::Region*>& regions) { return m_boundary->remove(regions); }

bool Boundary::destroy()
{
    gtm::Interior* interior = m_isDefault ? m_boundary->interior() : nullptr;
    for (Interface* interface : interfaces())
        interface->destroy();
    m_volume->remove(this);
    if (m_shellModel != nullptr)
        m_shellModel->remove(this);
    endPatches(); // while the location model still has the boundary
    if (m_isDefault)
        interior->activateDefaultBoundary(false);
    else
        m_boundary->destroy();
    delete this;
    return true;
}

} // namespace physics
