#include "tests/physics/saved/RandomSetUp.h"

#include "physics/Boundary.h"
#include "physics/BoundaryPatch.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Physics.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/Volume.h"
#include "tests/physics/saved/Geometry.h"

#include <algorithm>

namespace physics {

RandomSetUp::RandomSetUp(Physics& physics, const Geometry& geometry, const std::vector<unsigned>& numbers)
    : m_physics(physics), m_geometry(geometry), m_numbers(numbers)
{
    while (m_next < m_numbers.size())
        change();
}

/// 0 when the row has ended.
unsigned RandomSetUp::next() { return m_next < m_numbers.size() ? m_numbers[m_next++] : 0; }

/// A null pointer, 0 or an empty text when there is none.
template <class T>
T RandomSetUp::oneOf(const std::vector<T>& values)
{
    return values.empty() ? T() : values[next() % values.size()];
}

std::string RandomSetUp::newName(const std::string& noun) { return noun + " " + std::to_string(++m_lastNumber); }

std::string RandomSetUp::bodies()
{
    return oneOf(std::vector<std::string>{"left", "right", "loose", "left, right", "right, loose", "rotor", "gone", "",
                                          "left, gone"});
}

std::string RandomSetUp::faces()
{
    return oneOf(std::vector<std::string>{"inlet", "middle", "baffle", "outlet", "inlet, middle", "inlet@left",
                                          "middle@right", "gone", "", "outlet, gone"});
}

Model* RandomSetUp::someModel() { return next() % 3 == 0 ? nullptr : oneOf(m_physics.models()); }

void RandomSetUp::change()
{
    switch (next() % 20) {
    case 0:
        return makeModel();
    case 1:
    case 2:
        return makeVolume();
    case 3:
        return makeDefaultVolume();
    case 4:
    case 5:
    case 6:
        return makeBoundary(oneOf(m_physics.volumes()));
    case 7:
    case 8:
        return makeInterface();
    case 9:
    case 10:
    case 11:
        return makeSettings();
    case 12:
    case 13:
        return makeBundle();
    case 14:
        return changeVolume(oneOf(m_physics.volumes()));
    case 15:
        return changeBoundary(oneOf(m_physics.boundaries()));
    case 16:
        return changeInterface(oneOf(m_physics.interfaces()));
    case 17:
        return changeMask();
    case 18:
        return changeGroups();
    default:
        return endSomething();
    }
}

void RandomSetUp::makeModel()
{
    Model* model = m_physics.models().size() < 4 ? m_physics.createModel() : oneOf(m_physics.models());
    const int domain = static_cast<int>(next() % 4);
    if (next() % 4 == 0)
        model->removeDomain(domain);
    else
        model->addDomain(domain, DomainType(static_cast<int>(next() % 4) - 1), newName("Domain of"));
}

void RandomSetUp::makeVolume()
{
    const VolumeType type{static_cast<int>(next() % 3)};
    if (next() % 2 == 0) {
        m_physics.createVolume(newName("volume"), bodies(), type, someModel());
        return;
    }
    std::vector<gtm::Region*> regions;
    for (const char* id : {"left", "right", "far side", "loose"})
        if (next() % 3 == 0)
            regions.push_back(m_geometry.region(id));
    m_physics.createVolume(newName("volume"), regions, type, someModel());
}

/// One at a time: a second one would rename the first.
void RandomSetUp::makeDefaultVolume()
{
    if (!m_physics.hasDefaultVolume())
        m_physics.createDefaultVolume(newName("rest"), VolumeType::Fluid, someModel());
}

void RandomSetUp::makeBoundary(Volume* volume)
{
    if (volume == nullptr)
        return;
    const BoundaryType type{static_cast<int>(next() % 19) - 1};
    switch (next() % 3) {
    case 0:
        volume->createDefaultBoundary(newName("rest"), type);
        return;
    case 1:
        volume->createBoundary(newName("boundary"), faces(), type);
        return;
    default:
        volume->createBoundary(newName("boundary"),
                               std::vector<gtm::Region*>{m_geometry.region(oneOf(std::vector<std::string>{
                                   "inlet", "outer wall", "skin@far side", "middle@left", "outlet@right"}))},
                               type);
    }
}

void RandomSetUp::makeInterface()
{
    Boundary* first = oneOf(m_physics.boundaries());
    Boundary* second = oneOf(m_physics.boundaries());
    const InterfaceType type{static_cast<int>(next() % 5)};
    switch (next() % 3) {
    case 0:
        m_physics.createTranslationallyPeriodicInterface(newName("shifted"), first, second, {1, 0, 0}, type,
                                                         someModel());
        return;
    case 1:
        m_physics.createRotationallyPeriodicInterface(newName("turned"), first, second, 0, {0, 0, 0}, {1, 0, 0}, type,
                                                      someModel());
        return;
    default:
        m_physics.createInterface(newName("interface"), first, second, type, someModel());
    }
}

void RandomSetUp::makeSettings()
{
    Volume* volume = oneOf(m_physics.volumes());
    Boundary* boundary = oneOf(m_physics.boundaries());
    Interface* interface = oneOf(m_physics.interfaces());
    switch (next() % 5) {
    case 0:
        if (volume != nullptr)
            volume->settings();
        return;
    case 1:
        if (volume != nullptr)
            volume->internalSettings();
        return;
    case 2:
        if (interface != nullptr)
            interface->settings();
        return;
    case 3: // also in a model that has nothing to do with the patch
        if (Model* model = oneOf(m_physics.models()); model != nullptr && boundary != nullptr)
            model->settings(oneOf(boundary->patches()), SettingsType::VolumeSettings);
        return;
    default:
        if (boundary != nullptr) {
            const std::vector<BoundaryPatch*> patches = boundary->patches();
            oneOf(patches)->boundarySettings();
            oneOf(patches)->shellSettings();
        }
    }
}

void RandomSetUp::makeBundle()
{
    Settings* settings = oneOf(m_physics.settings());
    if (settings == nullptr)
        return;
    const std::vector<ThreadBundle*> bundles = settings->threadBundles();
    if (!bundles.empty() && next() % 4 == 0) {
        settings->deleteThreadBundle(oneOf(bundles)->index());
        return;
    }
    const int index = bundles.empty() ? static_cast<int>(next() % 3) : bundles.back()->index() + 2;
    const ThreadType type{static_cast<int>(next() % 31)};
    ThreadBundle* bundle = settings->createThreadBundle(index, type, ++m_lastNumber, {3, static_cast<int>(next() % 5)});
    if (next() % 2 == 0)
        bundle->setZoneIds({1000 + ++m_lastNumber, -1000 - m_lastNumber});
}

void RandomSetUp::changeVolume(Volume* volume)
{
    if (volume == nullptr)
        return;
    volume->relocate(bodies(), next() % 2 == 0);
    if (next() % 2 == 0)
        volume->setType(VolumeType(static_cast<int>(next() % 3)));
    if (next() % 2 == 0)
        volume->setModel(oneOf(m_physics.models()));
}

void RandomSetUp::changeBoundary(Boundary* boundary)
{
    if (boundary == nullptr)
        return;
    boundary->setShellModel(someModel());
    if (next() % 2 == 0)
        boundary->setBoundaryType(BoundaryType::Wall);
    boundary->setShellType(ShellType::HeatConduction);
    if (next() % 2 == 0)
        boundary->addTag(BoundaryTag::Interface);
    if (next() % 2 == 0)
        boundary->relocate(faces(), next() % 2 == 0);
}

void RandomSetUp::changeInterface(Interface* interface)
{
    if (interface == nullptr)
        return;
    interface->setType(InterfaceType(static_cast<int>(next() % 5)));
    interface->setMeshConnectivity(MeshConnectivity::NonConformal);
    interface->setIsMapped(next() % 2 == 0);
    interface->setIsStatic(next() % 2 == 0);
    interface->relocate(interface->boundary(Side::Second), oneOf(m_physics.boundaries()), next() % 2 == 0);
    interface->setIsMeshValid(next() % 2 == 0);
    if (next() % 2 == 0)
        interface->setModel(oneOf(m_physics.models()));
}

void RandomSetUp::changeMask()
{
    std::vector<gtm::Body*> bodies;
    for (const char* id : {"left", "right", "far side", "loose"})
        if (next() % 3 == 0)
            bodies.push_back(m_geometry.body(id));
    m_physics.setMaskedBodies(bodies);
}

void RandomSetUp::changeGroups()
{
    std::vector<Volume*> volumes;
    for (Volume* volume : m_physics.volumes())
        if (next() % 3 == 0)
            volumes.push_back(volume);
    std::sort(volumes.begin(), volumes.end(), [](const Volume* l, const Volume* r) { return l->id() < r->id(); });
    if (next() % 3 == 0)
        m_physics.activateGroup(oneOf(m_physics.activationGroups()));
    else
        m_physics.deactivateVolumes(volumes);
    m_physics.setEnforceRestrictions(next() % 2 == 0);
}

void RandomSetUp::endSomething()
{
    switch (next() % 6) {
    case 0:
        if (Volume* volume = oneOf(m_physics.volumes()))
            volume->destroy();
        return;
    case 1:
        if (Model* model = oneOf(m_physics.models()))
            model->destroy();
        return;
    case 2:
    case 3:
        if (Boundary* boundary = oneOf(m_physics.boundaries()))
            boundary->destroy();
        return;
    default:
        if (Interface* interface = oneOf(m_physics.interfaces()))
            interface->destroy();
    }
}

} // namespace physics
