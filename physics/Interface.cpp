#include "physics/Interface.h"

#include "physics/Boundary.h"
#include "physics/BoundaryPatch.h"
#include "physics/Model.h"
#include "physics/Physics.h"
#include "physics/Registry.h"
#include "physics/Settings.h"
#include "physics/Volume.h"

#include "gtm/LocationModel.h"

#include <unordered_set>
#include <utility>

namespace physics {

int Interface::s_lastUsedId = 0;

Interface::Interface(Physics* physics, int id, InterfaceType type, Model* model, gtm::Interface* interface,
                     Boundary* first, Boundary* second)
    : m_id(id), m_type(type), m_model(model), m_interface(interface), m_physics(physics), m_boundaries{first, second}
{}

Interface::Interface(Physics* physics, InterfaceType type, Model* model, gtm::Interface* interface, Boundary* first,
                     Boundary* second)
    : Interface(physics, nextId(s_lastUsedId), type, model, interface, first, second)
{
    try {
        first->addToInterface(this);
        second->addToInterface(this);
        model->add(this);
        physics->registry().add(this);
    } catch (...) {
        leaveBoundaries();
        physics->registry().forget(this);
        throw;
    }
}

std::string Interface::name() const { return hasEnded() ? std::string() : m_interface->name(); }
std::string Interface::fullName() const { return name(); }

State Interface::state() const
{
    return hasEnded() ? State::Unresolvable : State(static_cast<int>(m_interface->state()));
}

bool Interface::isActive() const { return !hasEnded() && m_boundaries[0]->isActive() && m_boundaries[1]->isActive(); }

bool Interface::isEmpty() const { return hasEnded() || (m_boundaries[0]->isEmpty() && m_boundaries[1]->isEmpty()); }

std::string Interface::rename(const std::string& name)
{
    return hasEnded() ? std::string() : m_interface->rename(name);
}

Model* Interface::model() const { return m_model; }

Boundary* Interface::boundary(Side side) const { return m_boundaries[side == Side::First ? 0 : 1]; }

Volume* Interface::volume(Side side) const
{
    const Boundary* ofSide = boundary(side);
    return ofSide == nullptr ? nullptr : ofSide->volume();
}

Boundary* Interface::otherBoundary(const Boundary* boundary) const
{
    if (boundary == nullptr)
        return nullptr;
    if (boundary == m_boundaries[0])
        return m_boundaries[1];
    return boundary == m_boundaries[1] ? m_boundaries[0] : nullptr;
}

/// Like a pointer member, a constant interface hands out what may be changed.
Settings* Interface::settings() const
{
    return m_model == nullptr ? nullptr : m_model->settingsOf(const_cast<Interface*>(this));
}

Settings* Interface::boundarySettings(Side side) const
{
    const Boundary* ofSide = boundary(side);
    return ofSide == nullptr ? nullptr : ofSide->boundarySettings(this);
}

Settings* Interface::boundaryShellSettings(Side side) const
{
    const Boundary* ofSide = boundary(side);
    return ofSide == nullptr ? nullptr : ofSide->shellSettings(this);
}

Settings* Interface::boundaryInterfaceSettings(Side side) const
{
    const Boundary* ofSide = boundary(side);
    return ofSide == nullptr ? nullptr : ofSide->interfaceSettings(this);
}

Settings* Interface::volumeSettings(Side side) const
{
    const Volume* ofSide = volume(side);
    return ofSide == nullptr ? nullptr : ofSide->settings();
}

std::vector<BoundaryType> Interface::allowedBoundaryTypes(VolumeType volumeType) const
{
    return m_physics->allowedBoundaryTypes(m_type, volumeType);
}

bool Interface::isAllowedBoundaryType(VolumeType volumeType, BoundaryType boundaryType) const
{
    return m_physics->isAllowedBoundaryType(m_type, volumeType, boundaryType);
}

void Interface::setTranslationalPeriodicity(const std::array<double, 3>& offset)
{
    m_periodicity = Periodicity::TranslationallyPeriodic;
    periodicToChange().offset = offset;
}

void Interface::setRotationalPeriodicity(double angle, const std::array<double, 3>& origin,
                                         const std::array<double, 3>& direction)
{
    m_periodicity = Periodicity::RotationallyPeriodic;
    PeriodicValues& values = periodicToChange();
    values.angle = angle;
    values.origin = origin;
    values.direction = direction;
}

const Interface::PeriodicValues& Interface::periodic() const
{
    static const PeriodicValues atFirst;
    return m_periodic == nullptr ? atFirst : *m_periodic;
}

Interface::PeriodicValues& Interface::periodicToChange()
{
    if (m_periodic == nullptr)
        m_periodic = std::make_unique<PeriodicValues>();
    return *m_periodic;
}

Connectivity Interface::connectivity() const
{
    if (hasEnded())
        return Connectivity::None;
    const std::vector<gtm::FaceUse*> firstSide = m_boundaries[0]->faceUses();
    std::unordered_set<const gtm::FaceUse*> first(firstSide.begin(), firstSide.end());
    first.erase(nullptr);
    std::size_t matched = 0;
    std::size_t unmatched = 0;
    for (const gtm::FaceUse* faceUse : m_boundaries[1]->faceUses()) {
        if (faceUse == nullptr)
            continue;
        const gtm::FaceUse* partner = faceUse->partner();
        const bool isMatched = partner != nullptr && first.count(partner) > 0;
        ++(isMatched ? matched : unmatched);
    }
    if (unmatched == 0 && matched == first.size())
        return Connectivity::Total;
    return matched > 0 ? Connectivity::Partial : Connectivity::None;
}

bool Interface::setModel(Model* model)
{
    if (model == nullptr || hasEnded() || model->physics() != m_physics)
        return false;
    if (m_model != nullptr)
        m_model->move(this, model);
    else
        model->add(this);
    m_model = model;
    return true;
}

bool Interface::relocate(Boundary* first, Boundary* second, bool enforceRestrictions)
{
    if (hasEnded() || first == nullptr || second == nullptr || m_physics->isForeign(first) ||
        m_physics->isForeign(second))
        return false;
    const gtm::Interface::State state =
        m_interface->relocate({{first->boundary()}, {second->boundary()}}, enforceRestrictions);
    const bool isValid = state == gtm::Interface::State::Valid;
    if (enforceRestrictions && !isValid)
        return false;
    rebind({first, second});
    m_isMeshValid = false;
    return isValid;
}

/// Every boundary that is on a side afterwards has a patch for this interface, and no other has one. Side
/// by side, so that patch ids are drawn in a fixed order; a boundary that only changes sides keeps its patch.
void Interface::rebind(const std::array<Boundary*, 2>& sides)
{
    const std::array<BoundaryPatch*, 2> joining = {patchOf(sides[0]), patchOf(sides[1])};
    std::array<BoundaryPatch*, 2> leaving = m_patches;
    if (leaving[1] == leaving[0])
        leaving[1] = nullptr;
    m_boundaries = sides;
    m_patches = joining;
    for (std::size_t side = 0; side < 2; ++side) {
        if (leaving[side] != nullptr && patchOf(leaving[side]->boundary()) == nullptr)
            leaving[side]->boundary()->removePatch(leaving[side]);
        if (m_patches[side] == nullptr)
            sides[side]->addToInterface(this);
    }
}

BoundaryPatch* Interface::patchOf(const Boundary* boundary) const
{
    for (std::size_t side = 0; side < 2; ++side)
        if (m_boundaries[side] == boundary)
            return m_patches[side];
    return nullptr;
}

BoundaryPatch* Interface::exchangePatch(BoundaryPatch* patch)
{
    BoundaryPatch* earlier = patchOf(patch->boundary());
    for (std::size_t side = 0; side < 2; ++side)
        if (m_boundaries[side] == patch->boundary())
            m_patches[side] = patch;
    return earlier;
}

void Interface::leaveBoundaries()
{
    for (BoundaryPatch* patch : {m_patches[0], m_patches[1] == m_patches[0] ? nullptr : m_patches[1]})
        if (patch != nullptr)
            patch->boundary()->removePatch(patch);
    m_patches = {nullptr, nullptr};
}

void Interface::destroy()
{
    if (hasEnded())
        return;
    if (m_model != nullptr)
        m_model->remove(this);
    m_physics->registry().remove(this);
    leaveBoundaries();
    gtm::Interface* interface = std::exchange(m_interface, nullptr);
    m_boundaries = {nullptr, nullptr};
    m_model = nullptr;
    Brood<Interface, OfSetUp>::leave(*this);
    Settings::detachAll(m_settings);
    endReferences();
    m_physics->registry().keepEnded(this);
    interface->destroy(); // last: whatever it throws, this object has ended and points at nothing
}

} // namespace physics
