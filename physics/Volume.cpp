#include "physics/Volume.h"

#include "physics/Boundary.h"
#include "physics/CreationFailure.h"
#include "physics/Model.h"
#include "physics/Physics.h"
#include "physics/Registry.h"
#include "physics/Settings.h"
#include "physics/Zones.h"

#include "gtm/LocationModel.h"

#include <set>

namespace physics {

int Volume::s_lastUsedId = 0;

Volume::Volume(Physics* physics, int id, VolumeType type, Model* model, gtm::Interior* interior, bool isDefault)
    : m_id(id),
      m_type(type),
      m_model(model),
      m_interior(interior),
      m_isDefault(isDefault),
      m_physics(physics),
      m_boundariesByName(physics->registry().nodes)
{}

Volume::Volume(Physics* physics, VolumeType type, Model* model, gtm::Interior* interior, bool isDefault)
    : Volume(physics, nextId(s_lastUsedId), type, model, interior, isDefault)
{
    model->add(this);
    physics->registry().add(this);
}

Volume::~Volume()
{
    m_physics->registry().forget(this);
    Settings::detachAll(m_settings);
}

std::string Volume::name() const { return m_interior->name(); }
std::string Volume::fullName() const { return name(); }
State Volume::state() const { return State(static_cast<int>(m_interior->state())); }
bool Volume::isEmpty() const { return m_interior->bodies().empty(); }
std::string Volume::rename(const std::string& name) { return m_interior->rename(name); }
Model* Volume::model() const { return m_model; }
Boundary* Volume::defaultBoundary() const { return m_defaultBoundary.get(); }

const gtm::Location* Volume::location() const { return m_interior->location(); }
std::vector<gtm::Body*> Volume::bodies() const { return m_interior->bodies(); }
std::vector<gtm::Face*> Volume::internalFaces() const { return m_interior->internalFaces(); }
std::vector<gtm::FaceUse*> Volume::unusedFaceUses() const { return m_interior->unusedFaceUses(); }
std::vector<gtm::Face*> Volume::unusedInternalFaces() const { return m_interior->unusedInternalFaces(); }
std::vector<std::string> Volume::unresolvableNames() const { return m_interior->unresolvableNames(); }

std::vector<gtm::Body*> Volume::overlap(const Volume* other) const
{
    return other == nullptr || other->physics() != m_physics ? std::vector<gtm::Body*>()
                                                             : m_interior->overlap(other->m_interior);
}

std::vector<Volume*> Volume::overlappingVolumes() const
{
    std::vector<Volume*> volumes;
    for (const gtm::Interior* interior : m_interior->overlappingInteriors())
        volumes.push_back(m_physics->find(interior));
    return volumes;
}

Settings* Volume::settings() const { return settingsOfKind(TopologyType::Volume); }
Settings* Volume::internalSettings() const { return settingsOfKind(TopologyType::Internal); }

/// Like a pointer member, a constant volume hands out what may be changed.
Settings* Volume::settingsOfKind(TopologyType kind) const
{
    return m_model == nullptr ? nullptr : m_model->settingsOf(const_cast<Volume*>(this), kind);
}

BoundaryType Volume::defaultBoundaryType() const { return m_physics->defaultBoundaryType(m_type); }
std::vector<BoundaryType> Volume::allowedBoundaryTypes() const { return m_physics->allowedBoundaryTypes(m_type); }

bool Volume::isAllowedBoundaryType(BoundaryType type) const { return m_physics->isAllowedBoundaryType(m_type, type); }

Boundary* Volume::createBoundary(const std::string& name, const std::string& location, BoundaryType type)
{
    return createBoundaryAt(name, location, type);
}

Boundary* Volume::createBoundary(const std::string& name, const std::vector<gtm::Region*>& regions, BoundaryType type)
{
    return createBoundaryAt(name, regions, type);
}

template <class Where>
Boundary* Volume::createBoundaryAt(const std::string& name, const Where& where, BoundaryType type)
{
    const auto [boundary, state] = m_interior->createBoundary(name, where, m_physics->enforceRestrictions());
    if (boundary != nullptr)
        return constructBoundary(boundary, type, nullptr);
    if (m_physics->reportsFailures())
        reportCreationFailure("boundary", name, where, gtm::Boundary::stateAsString(state));
    return nullptr;
}

Boundary* Volume::createDefaultBoundary(const std::string& name, BoundaryType type)
{
    if (hasDefaultBoundary())
        defaultBoundary()->destroy();
    m_interior->activateDefaultBoundary(true);
    gtm::Boundary* boundary = m_interior->defaultBoundary();
    if (boundary == nullptr)
        return nullptr;
    return constructBoundary(boundary, type, &name);
}

/// Makes the boundary on a location-model boundary, which must not stay behind if that fails. `defaultName`
/// is the name for the default boundary, null for any other.
Boundary* Volume::constructBoundary(gtm::Boundary* boundary, BoundaryType type, const std::string* defaultName)
{
    const bool isDefault = defaultName != nullptr;
    try {
        if (isDefault)
            boundary->rename(*defaultName);
        return new (m_physics->registry().nodes)
            Boundary(this, type == BoundaryType::Unset ? defaultBoundaryType() : type, boundary, isDefault);
    } catch (...) {
        if (isDefault)
            m_interior->activateDefaultBoundary(false);
        else
            boundary->destroy();
        throw;
    }
}

std::vector<Boundary*> Volume::boundaries() const { return m_boundariesByName.objects(); }

std::vector<Boundary*> Volume::ownedBoundaries() const
{
    return listsAll() ? boundaries() : listedFirst(boundaries(), m_boundaries.objects());
}

/// Takes the boundary into the lists of the volume, and no further.
void Volume::adopt(Boundary* boundary)
{
    m_boundaries.enter(*boundary);
    ++m_noOfBoundaries;
    m_boundariesByName.put(boundary->name(), boundary);
    if (boundary->isDefaultBoundary())
        m_defaultBoundary = boundary;
}

void Volume::add(Boundary* boundary)
{
    adopt(boundary);
    if (m_model != nullptr)
        m_model->addVolumeBoundary(boundary);
    m_physics->registry().add(boundary);
}

void Volume::remove(Boundary* boundary)
{
    m_boundariesByName.erase(boundary->name());
    if (m_defaultBoundary.get() == boundary)
        m_defaultBoundary = nullptr;
    if (m_model != nullptr)
        m_model->removeVolumeBoundary(boundary);
    m_physics->registry().remove(boundary);
}

bool Volume::relocate(const std::string& location, bool enforceRestrictions)
{
    return m_interior->relocate(location, enforceRestrictions) == gtm::Interior::State::Valid;
}

bool Volume::relocate(const std::vector<gtm::Region*>& regions, bool enforceRestrictions)
{
    return m_interior->relocate(regions, enforceRestrictions) == gtm::Interior::State::Valid;
}

bool Volume::remove(const std::vector<gtm::Region*>& regions) { return m_interior->remove(regions); }

void Volume::setType(VolumeType type)
{
    m_type = type;
    for (Boundary* boundary : boundaries())
        if (!isAllowedBoundaryType(boundary->type()))
            boundary->setBoundaryType(defaultBoundaryType());
}

bool Volume::setModel(Model* model)
{
    if (model == nullptr || model->physics() != m_physics)
        return false;
    if (m_model != nullptr)
        m_model->move(this, model);
    else
        model->add(this);
    m_model = model;
    return true;
}

bool Volume::activate() { return !isActive() && m_physics->activateGroup(m_activationGroup); }

bool Volume::deactivate() { return isActive() && m_physics->deactivateVolumes({this}) != 0; }

std::vector<int> Volume::zoneIds() const
{
    std::vector<int> zoneIds;
    const gtm::TopologyMap* zones = m_physics->locationModel()->solverZoneMap();
    if (zones == nullptr)
        return zoneIds;
    for (const gtm::Body* body : m_interior->bodies())
        if (body != nullptr)
            for (const gtm::ExternalBody& zone : zones->externalBodies(body))
                zoneIds.push_back(zone.zoneId);
    return zoneIds;
}

std::vector<int> Volume::internalZoneIds() const { return internalZoneIds(m_physics->reportsFailures()); }

std::vector<int> Volume::internalZoneIds(bool mayReport) const
{
    std::set<int> first;
    std::set<int> second;
    const auto collect = [this](std::set<int>& zoneIds, const gtm::FaceUse* faceUse) {
        for (const gtm::ExternalFaceSide& side : faceSides(m_physics->locationModel(), faceUse))
            zoneIds.insert(absoluteZoneId(side.zoneId));
    };
    for (const gtm::Face* face : unusedInternalFaces()) {
        if (face == nullptr)
            continue;
        collect(first, face->firstFaceUse());
        collect(second, face->secondFaceUse());
    }
    if (mayReport && first != second)
        reportNonSharedMeshes(name());
    return {first.begin(), first.end()};
}

void Volume::destroy()
{
    if (m_model != nullptr)
        m_model->remove(this);
    m_physics->registry().remove(this);
    const std::vector<Boundary*> boundaries = ownedBoundaries();
    m_boundariesByName.clear(); // all at once costs less than one by one
    for (Boundary* boundary : boundaries)
        boundary->destroy();
    // Two default volumes share the one default interior; it stays on for a newer one.
    if (!m_isDefault)
        m_interior->destroy();
    else if (!m_physics->hasDefaultVolume())
        m_interior->virtualTopology()->activateDefaultInterior(false);
    delete this;
}

} // namespace physics
