#include "tests/physics/History.h"

#include "gtm/LocationModel.h"
#include "physics/Boundary.h"
#include "physics/BoundaryPatch.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/TypeNames.h"
#include "physics/Volume.h"
#include "tests/physics/Comparison.h"

#include <algorithm>
#include <iterator>
#include <ostream>
#include <set>
#include <sstream>
#include <utility>

using namespace physics;
using reference::Id;

namespace {

/// rotor: b0 |f1| b1 (with the baffle f4 inside), stator: b2, which touches b1 in f2; b3 in no part.
contract::TopologyDescription description()
{
    contract::TopologyDescription topology;
    topology.parts = {"rotor", "stator", "spare"};
    topology.bodies = {{"b0", "rotor", {2, 1}}, {"b1", "rotor", {3}}, {"b2", "stator", {3, 4}}, {"b3", "", {}}};
    topology.faces = {
        {"f0", "b0", "", {{1, 0}}, {}},
        {"f1", "b0", "b1", {{2, 0}, {5, 1}}, {{4, 0}}},
        {"f2", "b1", "b2", {{5, 0}}, {}},
        {"f3", "b2", "", {{6, 0}}, {}},
        {"f4", "b1", "b1", {{6, 0}, {1, 1}}, {{7, 0}}},
        {"f5", "b3", "", {}, {}},
    };
    return topology;
}

const std::vector<std::string> names = {"a", "b", "c"};
const std::string& nameAt(unsigned choice) { return names[choice % names.size()]; }
VolumeType volumeTypeAt(unsigned choice) { return VolumeType(static_cast<int>(choice % 3)); }
BoundaryType boundaryTypeAt(unsigned choice) { return BoundaryType(static_cast<int>(choice % 18)); }
InterfaceType interfaceTypeAt(unsigned choice) { return InterfaceType(static_cast<int>(choice % 5)); }
int threadIdAt(unsigned choice) { return static_cast<int>(choice % 6) - 1; }
int zoneAt(unsigned choice) { return static_cast<int>(choice % 9) - 2; }

/// A subset of the numbers below a limit, by the bits of the choice.
std::vector<int> subset(unsigned choice, std::size_t limit)
{
    std::vector<int> numbers;
    for (std::size_t i = 0; i < limit; ++i)
        if ((choice >> i & 1U) != 0)
            numbers.push_back(static_cast<int>(i));
    return numbers;
}

/// The key of one of the entries, or 0 when there is none.
template <class Record>
Id pick(const std::map<Id, Record>& records, unsigned choice)
{
    if (records.empty())
        return 0;
    return std::next(records.begin(), choice % records.size())->first;
}

template <class T>
Id idOf(const T* object)
{
    return object == nullptr ? 0 : object->id();
}

} // namespace

/// Another set-up over the same location model. What it holds draws the last ids before the history.
struct History::Stranger {
    explicit Stranger(const gtm::Model* locationModel)
        : physics(locationModel, false),
          model(physics.createModel()),
          volume(physics.createVolume("stranger", std::string("b0"), VolumeType::Fluid)),
          boundary(volume->createBoundary("stranger", std::string("f0"))),
          interface(physics.createInterface("stranger", boundary, boundary, InterfaceType::Wall)),
          settings(volume->settings())
    {}

    reference::Counters counters() const
    {
        return {model->id(),   volume->id(), boundary->id(), interface->id(), boundary->patch(interface)->id(),
                settings->id()};
    }

    Physics physics;
    Model* model;
    Volume* volume;
    Boundary* boundary;
    Interface* interface;
    Settings* settings;
};

History::History()
    : m_model(contract::makeContractModel(description())),
      m_stranger(std::make_unique<Stranger>(m_model->model())),
      m_physics(std::make_unique<Physics>(m_model->model(), false)),
      m_before(m_stranger->counters()),
      m_reference(description(), m_before)
{
    begin();
}

History::~History() = default;

/// Something of everything, so that already the first steps meet objects that know each other.
void History::begin()
{
    createModel({});
    createModel({});
    createVolume({0, 0, 0b0011, 1, 1});
    createVolume({0, 1, 0b0100, 0, 4});
    createDefaultVolume({0, 2, 0, 1, 0});
    for (const unsigned owner : {0U, 1U, 2U})
        createBoundary({0, owner, 0b001110U >> owner, 7, owner});
    createDefaultBoundary({0, 0, 0, 0, 0});
    createInterface({0, 0, 0, 1, 0});
    createInterface({0, 1, 2, 3, 1});
    setShellModel({0, 0, 1, 0, 0});
    setShellModel({0, 3, 4, 0, 0});
    for (const unsigned which : {0U, 1U, 2U, 3U}) {
        askForVolumeSettings({0, which, 0, 0, 0});
        askForInternalSettings({0, which, 0, 0, 0});
        askForInterfaceSettings({0, which, 0, 0, 0});
        askForPatchSettings({0, which, 0, 0, 0});
        askForPatchSettings({0, which, 1, 0, 0});
    }
    for (const unsigned which : {0U, 3U, 5U, 6U, 8U, 10U, 12U})
        createThreadBundle({0, which, 1, which, 1});
    deactivate({0, 1, 1, 0, 0});
}

void History::take(const Step& step)
{
    (this->*operationOf(step).change)(step);
    forgetEnded();
    Comparison(*m_physics, m_reference, m_before, m_ended, m_bundles).check();
}

void History::forgetEnded()
{
    std::erase_if(m_bundles, [this](const auto& bundle) { return m_reference.bundles.count(bundle.second) == 0; });
    for (auto entry = m_interfaces.begin(); entry != m_interfaces.end();) {
        if (m_reference.interfaces.count(entry->first) == 0) {
            m_ended.push_back(entry->second);
            entry = m_interfaces.erase(entry);
        } else {
            ++entry;
        }
    }
}

const std::vector<History::Operation>& History::operations()
{
    static const std::vector<Operation> all = {
        {"createModel", 3, &History::createModel},
        {"destroyModel", 2, &History::destroyModel},
        {"changeDomain", 1, &History::changeDomain},
        {"createVolume", 8, &History::createVolume},
        {"createDefaultVolume", 3, &History::createDefaultVolume},
        {"renameVolume", 3, &History::renameVolume},
        {"retypeVolume", 2, &History::retypeVolume},
        {"relocateVolume", 2, &History::relocateVolume},
        {"moveVolume", 4, &History::moveVolume},
        {"destroyVolume", 4, &History::destroyVolume},
        {"createBoundary", 12, &History::createBoundary},
        {"createDefaultBoundary", 4, &History::createDefaultBoundary},
        {"renameBoundary", 3, &History::renameBoundary},
        {"retypeBoundary", 2, &History::retypeBoundary},
        {"relocateBoundary", 2, &History::relocateBoundary},
        {"setShellModel", 6, &History::setShellModel},
        {"setShellType", 1, &History::setShellType},
        {"tagBoundary", 1, &History::tagBoundary},
        {"destroyBoundary", 4, &History::destroyBoundary},
        {"createInterface", 10, &History::createInterface},
        {"createPeriodicInterface", 2, &History::createPeriodicInterface},
        {"renameInterface", 3, &History::renameInterface},
        {"changeInterface", 1, &History::changeInterface},
        {"relocateInterface", 6, &History::relocateInterface},
        {"moveInterface", 3, &History::moveInterface},
        {"destroyInterface", 4, &History::destroyInterface},
        {"touchEndedInterface", 2, &History::touchEndedInterface},
        {"askForVolumeSettings", 4, &History::askForVolumeSettings},
        {"askForInternalSettings", 3, &History::askForInternalSettings},
        {"askForInterfaceSettings", 3, &History::askForInterfaceSettings},
        {"askForPatchSettings", 4, &History::askForPatchSettings},
        {"askAnyModelForPatchSettings", 4, &History::askAnyModelForPatchSettings},
        {"createThreadBundle", 14, &History::createThreadBundle},
        {"deleteThreadBundle", 3, &History::deleteThreadBundle},
        {"changeThreadBundle", 1, &History::changeThreadBundle},
        {"setThreadId", 4, &History::setThreadId},
        {"setZoneIds", 6, &History::setZoneIds},
        {"deactivate", 3, &History::deactivate},
        {"activateGroup", 2, &History::activateGroup},
        {"activate", 2, &History::activate},
        {"activateOne", 2, &History::activateOne},
        {"mask", 2, &History::mask},
        {"maskPart", 1, &History::maskPart},
        {"removeRegions", 1, &History::removeRegions},
        {"refuseNothingAndForeign", 2, &History::refuseNothingAndForeign},
        {"saveAndRestore", 4, &History::saveAndRestore},
        {"clear", 1, &History::clear},
    };
    return all;
}

unsigned History::noOfOperations()
{
    unsigned total = 0;
    for (const Operation& operation : operations())
        total += operation.weight;
    return total;
}

const History::Operation& History::operationOf(const Step& step)
{
    unsigned rest = step.operation % noOfOperations();
    for (const Operation& operation : operations()) {
        if (rest < operation.weight)
            return operation;
        rest -= operation.weight;
    }
    return operations().front();
}

std::ostream& operator<<(std::ostream& out, const Step& step)
{
    return out << History::operationOf(step).name << "(" << step.a << ", " << step.b << ", " << step.c << ", " << step.d
               << ")";
}

// ---- From ids to objects

Model* History::model(Id id) const { return m_physics->findModelById(id); }
Volume* History::volume(Id id) const { return m_physics->findVolumeById(id); }
Boundary* History::boundary(Id id) const { return m_physics->findBoundaryById(id); }
Interface* History::interface(Id id) const { return m_physics->findInterfaceById(id); }

std::vector<gtm::Region*> History::bodyRegions(const std::vector<int>& bodies) const
{
    std::vector<gtm::Region*> regions;
    for (gtm::Body* body : this->bodies(bodies))
        regions.push_back(body);
    return regions;
}

std::vector<gtm::Region*> History::faceRegions(const std::vector<int>& faces) const
{
    std::vector<gtm::Region*> regions;
    for (const int face : faces)
        regions.push_back(m_model->face(m_reference.topology.faces[static_cast<std::size_t>(face)].id));
    return regions;
}

std::vector<gtm::Body*> History::bodies(const std::vector<int>& bodies) const
{
    std::vector<gtm::Body*> found;
    for (const int body : bodies)
        found.push_back(
            m_model->model()->topology()->findBodyById(m_reference.topology.bodies[static_cast<std::size_t>(body)].id));
    return found;
}

std::vector<Volume*> History::volumes(const std::vector<Id>& ids) const
{
    std::vector<Volume*> found;
    for (const Id id : ids)
        found.push_back(volume(id));
    return found;
}

/// Up to four, repeats included.
std::vector<Id> History::pickVolumes(const Step& step) const
{
    std::vector<Id> ids;
    const unsigned choices[] = {step.b, step.c, step.d, step.b + step.c};
    for (unsigned i = 0; i < step.a % 5 && !m_reference.volumes.empty(); ++i)
        ids.push_back(pick(m_reference.volumes, choices[i]));
    return ids;
}

/// A model, or 0 for the primary one.
Id History::pickModel(unsigned choice) const { return choice % 3 == 0 ? 0 : pick(m_reference.models, choice / 3); }

ThreadBundle* History::pickBundle(unsigned choice) const
{
    const Id key = pick(m_reference.bundles, choice);
    for (const auto& [bundle, keyOfBundle] : m_bundles)
        if (keyOfBundle == key)
            return const_cast<ThreadBundle*>(bundle);
    return nullptr;
}

// ---- Models and domains

void History::createModel(const Step&)
{
    const Id expected = m_reference.createModel();
    agree("the new model", idOf(m_physics->createModel()), expected);
}

void History::destroyModel(const Step& step)
{
    const Id id = pick(m_reference.models, step.a);
    if (id == 0) {
        const Id expected = m_reference.primaryModel();
        agree("the primary model", idOf(m_physics->primaryModel()), expected);
        return;
    }
    m_reference.destroyModel(id);
    model(id)->destroy();
}

void History::changeDomain(const Step& step)
{
    const Id id = pick(m_reference.models, step.a);
    if (id == 0)
        return;
    auto& domains = m_reference.models.at(id).domains;
    const int domain = static_cast<int>(step.b % 4) - 1;
    if (step.c % 3 == 0) {
        agree("the removal of a domain", model(id)->removeDomain(domain), domains.erase(domain) > 0);
    } else {
        domains[domain] = {DomainType(static_cast<int>(step.c % 3)), nameAt(step.d)};
        model(id)->addDomain(domain, domains[domain].type, nameAt(step.d));
    }
}

// ---- Volumes

void History::createVolume(const Step& step)
{
    const std::vector<int> where = subset(step.b, m_reference.topology.bodies.size());
    const Id owner = pickModel(step.d);
    const Id expected = m_reference.createVolume(nameAt(step.a), where, volumeTypeAt(step.c), owner);
    const Volume* made =
        m_physics->createVolume(nameAt(step.a), bodyRegions(where), volumeTypeAt(step.c), model(owner));
    agree("the new volume", idOf(made), expected);
}

void History::createDefaultVolume(const Step& step)
{
    const Id owner = pickModel(step.d);
    const Id expected = m_reference.createDefaultVolume(nameAt(step.a), volumeTypeAt(step.c), owner);
    const Volume* made = m_physics->createDefaultVolume(nameAt(step.a), volumeTypeAt(step.c), model(owner));
    agree("the new default volume", idOf(made), expected);
}

void History::renameVolume(const Step& step)
{
    const Id id = pick(m_reference.volumes, step.a);
    if (id == 0)
        return;
    m_reference.interiors.at(m_reference.volumes.at(id).interior).name = nameAt(step.b);
    agree("the new name", volume(id)->rename(nameAt(step.b)), nameAt(step.b));
}

bool History::mayHaveType(Id id, BoundaryType type) const
{
    const reference::Boundary& record = m_reference.boundaries.at(id);
    const VolumeType ofVolume = m_reference.volumes.at(record.volume).type;
    if (!m_physics->isAllowedBoundaryType(ofVolume, type))
        return false;
    for (const auto& [joined, patch] : record.patches)
        if (!m_physics->isAllowedBoundaryType(m_reference.interfaces.at(joined).type, ofVolume, type))
            return false;
    return true;
}

void History::retypeVolume(const Step& step)
{
    const Id id = pick(m_reference.volumes, step.a);
    if (id == 0)
        return;
    const VolumeType type = volumeTypeAt(step.b);
    m_reference.volumes.at(id).type = type;
    for (const auto& [name, listed] : m_reference.volumes.at(id).boundariesByName) {
        BoundaryType& ofBoundary = m_reference.boundaries.at(listed).type;
        if (!m_physics->isAllowedBoundaryType(type, ofBoundary) &&
            mayHaveType(listed, m_physics->defaultBoundaryType(type)))
            ofBoundary = m_physics->defaultBoundaryType(type);
    }
    volume(id)->setType(type);
}

void History::relocateVolume(const Step& step)
{
    const Id id = pick(m_reference.volumes, step.a);
    if (id == 0 || m_reference.volumes.at(id).isDefault)
        return;
    std::vector<int>& where = m_reference.interiors.at(m_reference.volumes.at(id).interior).bodies;
    if (step.c % 2 == 0) {
        const std::vector<int> wanted = subset(step.b, m_reference.topology.bodies.size());
        const bool isEnforced = step.d % 3 == 0;
        const bool isValid = volume(id)->relocate(bodyRegions(wanted), isEnforced);
        if (!isValid && isEnforced)
            return; // and nothing has changed
        where = wanted;
        const State state = volume(id)->state(); // whether boundaries cover the surface is no matter of its place
        agree("the relocation", isValid, state == State::Valid || state == State::Incomplete);
    } else {
        const std::vector<int> removed = subset(step.b, m_reference.topology.bodies.size());
        const bool hasChanged = std::erase_if(where, [&](int body) {
                                    return std::find(removed.begin(), removed.end(), body) != removed.end();
                                }) > 0;
        agree("the removal of bodies", volume(id)->remove(bodyRegions(removed)), hasChanged);
    }
}

void History::moveVolume(const Step& step)
{
    const Id id = pick(m_reference.volumes, step.a);
    const Id to = pick(m_reference.models, step.b);
    if (id == 0 || to == 0)
        return;
    m_reference.setVolumeModel(id, to);
    agree("the move of a volume", volume(id)->setModel(model(to)), true);
}

void History::destroyVolume(const Step& step)
{
    const Id id = pick(m_reference.volumes, step.a);
    if (id == 0)
        return;
    // An older default volume would be left on an interior that is switched off, and location models may
    // differ in what such an interior stands for.
    const auto isOlder = [id](const auto& other) { return other.first != id && other.second.isDefault; };
    if (id == m_reference.defaultVolume && std::any_of(m_reference.volumes.begin(), m_reference.volumes.end(), isOlder))
        return;
    Volume* ended = volume(id);
    m_reference.destroyVolume(id);
    ended->destroy();
}

// ---- Boundaries

void History::createBoundary(const Step& step)
{
    const Id owner = pick(m_reference.volumes, step.d);
    if (owner == 0)
        return;
    const std::vector<int> where = subset(step.b, m_reference.topology.faces.size());
    const Id expected = m_reference.createBoundary(owner, nameAt(step.a), where, boundaryTypeAt(step.c));
    const Boundary* made = volume(owner)->createBoundary(nameAt(step.a), faceRegions(where), boundaryTypeAt(step.c));
    agree("the new boundary", idOf(made), expected);
}

void History::createDefaultBoundary(const Step& step)
{
    const Id owner = pick(m_reference.volumes, step.d);
    if (owner == 0)
        return;
    // Two default volumes share one default boundary of the location model: when one of theirs ends, the
    // other would be left on it switched off, where location models may differ.
    const Id surface = m_reference.defaultSurfaces.at(m_reference.volumes.at(owner).interior);
    for (const auto& [id, other] : m_reference.boundaries)
        if (other.surface == surface && other.volume != owner)
            return;
    const BoundaryType type = m_physics->defaultBoundaryType(m_reference.volumes.at(owner).type);
    const Id expected = m_reference.createDefaultBoundary(owner, nameAt(step.a), type);
    agree("the new default boundary", idOf(volume(owner)->createDefaultBoundary(nameAt(step.a))), expected);
}

void History::renameBoundary(const Step& step)
{
    const Id id = pick(m_reference.boundaries, step.a);
    if (id == 0)
        return;
    m_reference.surfaces.at(m_reference.boundaries.at(id).surface).name = nameAt(step.b);
    agree("the new name", boundary(id)->rename(nameAt(step.b)), nameAt(step.b));
}

void History::retypeBoundary(const Step& step)
{
    const Id id = pick(m_reference.boundaries, step.a);
    if (id == 0)
        return;
    const BoundaryType type = boundaryTypeAt(step.b);
    const bool isAllowed = mayHaveType(id, type);
    if (isAllowed)
        m_reference.boundaries.at(id).type = type;
    agree("the change of type", boundary(id)->setBoundaryType(type), isAllowed);
}

void History::relocateBoundary(const Step& step)
{
    const Id id = pick(m_reference.boundaries, step.a);
    if (id == 0)
        return;
    reference::Surface& surface = m_reference.surfaces.at(m_reference.boundaries.at(id).surface);
    if (surface.isDefault)
        return;
    const std::vector<int> faces = subset(step.b, m_reference.topology.faces.size());
    const bool isEnforced = step.d % 3 == 0;
    const bool isValid = boundary(id)->relocate(faceRegions(faces), isEnforced);
    if (!isValid && isEnforced)
        return; // and nothing has changed
    surface.faces = faces;
    agree("the relocation", isValid, boundary(id)->state() == State::Valid);
}

void History::setShellModel(const Step& step)
{
    const Id id = pick(m_reference.boundaries, step.a);
    if (id == 0)
        return;
    const Id to = pickModel(step.b);
    m_reference.setShellModel(id, to);
    boundary(id)->setShellModel(model(to));
}

void History::setShellType(const Step& step)
{
    const Id id = pick(m_reference.boundaries, step.a);
    if (id == 0)
        return;
    reference::Boundary& record = m_reference.boundaries.at(id);
    const bool isAllowed =
        record.shellModel != 0 && m_physics->isAllowedShellType(record.type, ShellType::HeatConduction);
    if (isAllowed)
        record.shellType = ShellType::HeatConduction;
    agree("the change of shell type", boundary(id)->setShellType(ShellType::HeatConduction), isAllowed);
}

void History::tagBoundary(const Step& step)
{
    const Id id = pick(m_reference.boundaries, step.a);
    if (id == 0)
        return;
    if (step.b % 2 == 0) {
        m_reference.boundaries.at(id).tags.insert(BoundaryTag::Interface);
        boundary(id)->addTag(BoundaryTag::Interface);
    } else {
        m_reference.boundaries.at(id).tags.erase(BoundaryTag::Interface);
        boundary(id)->removeTag(BoundaryTag::Interface);
    }
}

void History::destroyBoundary(const Step& step)
{
    const Id id = pick(m_reference.boundaries, step.a);
    if (id == 0)
        return;
    Boundary* ended = boundary(id);
    m_reference.destroyBoundary(id);
    agree("the end of a boundary", ended->destroy(), true);
}

// ---- Interfaces

void History::interfaceWasMade(Interface* made, Id id)
{
    agree("the new interface", idOf(made), id);
    m_interfaces[id] = made;
}

void History::createInterface(const Step& step)
{
    const Id first = pick(m_reference.boundaries, step.b);
    const Id second = pick(m_reference.boundaries, step.c);
    if (first == 0)
        return;
    const Id owner = pickModel(step.d);
    const InterfaceType type = interfaceTypeAt(step.a / 3);
    const Id id = m_reference.createInterface(nameAt(step.a), first, second, type, owner);
    interfaceWasMade(m_physics->createInterface(nameAt(step.a), boundary(first), boundary(second), type, model(owner)),
                     id);
}

void History::createPeriodicInterface(const Step& step)
{
    const Id first = pick(m_reference.boundaries, step.b);
    const Id second = pick(m_reference.boundaries, step.c);
    if (first == 0)
        return;
    const Id id = m_reference.createInterface(nameAt(step.a), first, second, InterfaceType::Interior, 0);
    reference::Interface& record = m_reference.interfaces.at(id);
    Boundary* const onFirst = boundary(first);
    Boundary* const onSecond = boundary(second);
    if (step.d % 2 == 0) {
        record.periodicity = Periodicity::TranslationallyPeriodic;
        record.offset = {1, 2, 3};
        interfaceWasMade(m_physics->createTranslationallyPeriodicInterface(record.name, onFirst, onSecond,
                                                                           record.offset, record.type),
                         id);
    } else {
        record.periodicity = Periodicity::RotationallyPeriodic;
        record.angle = step.d;
        record.direction = {0, 0, 1};
        interfaceWasMade(m_physics->createRotationallyPeriodicInterface(record.name, onFirst, onSecond, record.angle,
                                                                        record.origin, record.direction, record.type),
                         id);
    }
}

void History::renameInterface(const Step& step)
{
    const Id id = pick(m_reference.interfaces, step.a);
    if (id == 0)
        return;
    m_reference.interfaces.at(id).name = nameAt(step.b);
    agree("the new name", interface(id)->rename(nameAt(step.b)), nameAt(step.b));
}

void History::changeInterface(const Step& step)
{
    const Id id = pick(m_reference.interfaces, step.a);
    if (id == 0)
        return;
    reference::Interface& record = m_reference.interfaces.at(id);
    record.type = interfaceTypeAt(step.b);
    interface(id)->setType(record.type);
    record.isMeshValid = step.c % 2 == 0;
    interface(id)->setIsMeshValid(record.isMeshValid);
    record.isMapped = step.c % 4 < 2;
    interface(id)->setIsMapped(record.isMapped);
    record.isStatic = step.c % 8 < 4;
    interface(id)->setIsStatic(record.isStatic);
    record.meshConnectivity = MeshConnectivity(static_cast<int>(step.c % 2));
    interface(id)->setMeshConnectivity(record.meshConnectivity);
    record.periodicity = Periodicity(static_cast<int>(step.d % 3));
    switch (record.periodicity) {
    case Periodicity::NonPeriodic:
        interface(id)->setNonPeriodic();
        break;
    case Periodicity::TranslationallyPeriodic:
        record.offset = {double(step.d), 0, 1};
        interface(id)->setTranslationalPeriodicity(record.offset);
        break;
    case Periodicity::RotationallyPeriodic:
        record.angle = step.d;
        record.origin = {1, 1, 1};
        record.direction = {0, 1, 0};
        interface(id)->setRotationalPeriodicity(record.angle, record.origin, record.direction);
        break;
    }
}

void History::relocateInterface(const Step& step)
{
    const Id id = pick(m_reference.interfaces, step.a);
    if (id == 0)
        return;
    const reference::Interface& record = m_reference.interfaces.at(id);
    const auto side = [&](unsigned choice) {
        if (choice % 4 == 0)
            return record.first;
        return choice % 4 == 1 ? record.second : pick(m_reference.boundaries, choice / 4);
    };
    const Id first = side(step.b);
    const Id second = side(step.c);
    const bool isEnforced = step.d % 3 == 0;
    const bool isValid = interface(id)->relocate(boundary(first), boundary(second), isEnforced);
    if (!isValid && isEnforced)
        return; // and nothing has changed
    m_reference.relocateInterface(id, first, second);
    agree("the relocation", isValid, interface(id)->state() == State::Valid);
}

void History::moveInterface(const Step& step)
{
    const Id id = pick(m_reference.interfaces, step.a);
    const Id to = pick(m_reference.models, step.b);
    if (id == 0 || to == 0)
        return;
    m_reference.setInterfaceModel(id, to);
    agree("the move of an interface", interface(id)->setModel(model(to)), true);
}

void History::destroyInterface(const Step& step)
{
    const Id id = pick(m_reference.interfaces, step.a);
    if (id == 0)
        return;
    Interface* ended = interface(id);
    m_reference.destroyInterface(id);
    ended->destroy();
}

void History::touchEndedInterface(const Step& step)
{
    if (m_ended.empty())
        return;
    Interface* ended = m_ended[step.a % m_ended.size()];
    ended->destroy();
    agree("the renaming of an ended interface", ended->rename("late"), "");
    agree("the move of an ended interface", ended->setModel(model(pick(m_reference.models, step.b))), false);
    Boundary* late = boundary(pick(m_reference.boundaries, step.c));
    agree("the relocation of an ended interface", ended->relocate(late, late, false), false);
    agree("the other boundary of an ended interface", idOf(ended->otherBoundary(late)), 0);
    agree("the connectivity of an ended interface", ended->connectivity(), Connectivity::None);
}

// ---- Settings and thread bundles

void History::askForVolumeSettings(const Step& step)
{
    const Id id = pick(m_reference.volumes, step.a);
    if (id == 0)
        return;
    const Id owner = m_reference.volumes.at(id).model;
    const Id expected = owner == 0 ? 0 : m_reference.settingsOfVolume(owner, id);
    agree("the settings of a volume", idOf(volume(id)->settings()), expected);
    const Id asked = pick(m_reference.models, step.b);
    if (asked != 0) {
        const Id there = m_reference.settingsOfVolume(asked, id);
        agree("the settings of a volume in some model", idOf(model(asked)->settings(volume(id))), there);
    }
}

void History::askForInternalSettings(const Step& step)
{
    const Id id = pick(m_reference.volumes, step.a);
    if (id == 0)
        return;
    const Id owner = m_reference.volumes.at(id).model;
    const Id expected = owner == 0 ? 0 : m_reference.internalSettings(owner, id);
    agree("the internal settings of a volume", idOf(volume(id)->internalSettings()), expected);
}

void History::askForInterfaceSettings(const Step& step)
{
    const Id id = pick(m_reference.interfaces, step.a);
    if (id == 0)
        return;
    const Id owner = m_reference.interfaces.at(id).model;
    const Id expected = owner == 0 ? 0 : m_reference.settingsOfInterface(owner, id);
    agree("the settings of an interface", idOf(interface(id)->settings()), expected);
}

void History::askForPatchSettings(const Step& step)
{
    const Id id = pick(m_reference.boundaries, step.a);
    if (id == 0)
        return;
    const auto kind = SettingsType(static_cast<int>(step.b % 4));
    for (const Id patch : m_reference.patchesOf(id)) {
        const Id owner = m_reference.modelOfPatch(patch, kind);
        const Id expected = owner == 0 ? 0 : m_reference.settingsOfPatch(owner, patch, kind);
        const Interface* joined = interface(m_reference.patches.at(patch).interface);
        agree("the settings of a patch", idOf(boundary(id)->settings(kind, joined)), expected);
    }
}

void History::askAnyModelForPatchSettings(const Step& step)
{
    const Id patch = pick(m_reference.patches, step.a);
    const Id asked = pick(m_reference.models, step.b);
    if (patch == 0 || asked == 0)
        return;
    const auto kind = SettingsType(static_cast<int>(step.c % 4));
    const Id expected = m_reference.settingsOfPatch(asked, patch, kind);
    const reference::Patch& record = m_reference.patches.at(patch);
    const BoundaryPatch* asFound = boundary(record.boundary)->patch(interface(record.interface));
    agree("what a model keeps for a patch", idOf(model(asked)->settings(asFound, kind)), expected);
}

void History::createThreadBundle(const Step& step)
{
    const Id id = pick(m_reference.settings, step.a);
    if (id == 0)
        return;
    const int index = static_cast<int>(step.b % 3) - 1;
    const auto type = ThreadType(static_cast<int>(step.c % 5));
    const std::vector<int> domains = subset(step.d, 3);
    const Id key =
        m_reference.createThreadBundle(id, index, type, threadIdAt(step.c), {domains.begin(), domains.end()});
    const ThreadBundle* made =
        m_physics->findSettingsById(id)->createThreadBundle(index, type, threadIdAt(step.c), domains);
    agree("the success of a new bundle", made != nullptr, key != 0);
    if (made != nullptr)
        m_bundles[made] = key;
}

void History::deleteThreadBundle(const Step& step)
{
    const Id id = pick(m_reference.settings, step.a);
    if (id == 0)
        return;
    const int index = static_cast<int>(step.b % 3) - 1;
    const bool isThere = m_reference.deleteThreadBundle(id, index);
    agree("the end of a bundle", m_physics->findSettingsById(id)->deleteThreadBundle(index), isThere);
}

void History::changeThreadBundle(const Step& step)
{
    ThreadBundle* bundle = pickBundle(step.a);
    if (bundle == nullptr)
        return;
    reference::Bundle& record = m_reference.bundles.at(m_bundles.at(bundle));
    record.type = ThreadType(static_cast<int>(step.b % 31));
    bundle->setThreadType(record.type);
    const int domain = static_cast<int>(step.c % 4);
    if (step.d % 2 == 0)
        agree("a new domain", bundle->addDomainId(domain), record.domains.insert(domain).second);
    else
        agree("a removed domain", bundle->removeDomainId(domain), record.domains.erase(domain) > 0);
    const int slot = static_cast<int>(step.b % 3);
    void* handle = step.c % 3 == 0 ? nullptr : &record;
    if (handle != nullptr)
        record.threads[slot] = handle;
    else
        record.threads.erase(slot);
    bundle->registerThread(slot, handle);
    if (step.d % 5 == 0) {
        record.domains = {domain, 7};
        bundle->setDomainIds({7, domain, 7});
    }
    if (step.d % 7 == 0) {
        record.threads.clear();
        bundle->clearThreads();
    }
}

void History::setThreadId(const Step& step)
{
    ThreadBundle* bundle = pickBundle(step.a);
    if (bundle == nullptr)
        return;
    m_reference.bundles.at(m_bundles.at(bundle)).threadId = threadIdAt(step.b);
    bundle->setThreadId(threadIdAt(step.b));
}

void History::setZoneIds(const Step& step)
{
    ThreadBundle* bundle = pickBundle(step.a);
    if (bundle == nullptr)
        return;
    std::vector<int> zones;
    const unsigned choices[] = {step.b, step.c, step.b * step.c};
    for (unsigned i = 0; i < step.d % 4; ++i)
        zones.push_back(zoneAt(choices[i]));
    const bool isFree = m_reference.setZoneIds(m_bundles.at(bundle), zones);
    agree("the change of zones", bundle->setZoneIds(zones), isFree);
}

// ---- The whole set-up

void History::deactivate(const Step& step)
{
    const std::vector<Id> ids = pickVolumes(step);
    const int expected = m_reference.deactivate(ids);
    agree("the new group", m_physics->deactivateVolumes(volumes(ids)), expected);
}

void History::activateGroup(const Step& step)
{
    const int number = static_cast<int>(step.a % 5);
    const bool isThere = m_reference.activateGroup(number);
    agree("the end of a group", m_physics->activateGroup(number), isThere);
}

void History::activate(const Step& step)
{
    const std::vector<Id> ids = pickVolumes(step);
    const bool areInactive = m_reference.activate(ids);
    agree("the activation of volumes", m_physics->activateVolumes(volumes(ids)), areInactive);
}

void History::activateOne(const Step& step)
{
    const Id id = pick(m_reference.volumes, step.a);
    if (id == 0)
        return;
    const int group = m_reference.volumes.at(id).group;
    if (step.b % 2 == 0) {
        if (group == -1)
            m_reference.deactivate({id});
        agree("the deactivation of a volume", volume(id)->deactivate(), group == -1);
    } else {
        agree("the activation of a volume", volume(id)->activate(), m_reference.activateGroup(group));
    }
}

void History::mask(const Step& step)
{
    const std::vector<int> chosen = subset(step.a, m_reference.topology.bodies.size());
    switch (step.b % 3) {
    case 0:
        m_reference.masked.insert(chosen.begin(), chosen.end());
        m_physics->maskBodies(bodies(chosen));
        break;
    case 1:
        for (const int body : chosen)
            m_reference.masked.erase(body);
        m_physics->unmaskBodies(bodies(chosen));
        break;
    default:
        m_reference.masked = {chosen.begin(), chosen.end()};
        m_physics->setMaskedBodies(bodies(chosen));
    }
}

void History::maskPart(const Step& step)
{
    const std::vector<gtm::Part*> parts = m_model->model()->topology()->parts();
    gtm::Part* part = parts[step.a % parts.size()];
    if (step.b % 3 == 2)
        m_reference.masked.clear();
    for (std::size_t body = 0; body < m_reference.topology.bodies.size(); ++body) {
        if (m_reference.topology.bodies[body].part != part->id())
            continue;
        if (step.b % 3 == 1)
            m_reference.masked.erase(static_cast<int>(body));
        else
            m_reference.masked.insert(static_cast<int>(body));
    }
    if (step.b % 3 == 0)
        m_physics->maskParts({part});
    else if (step.b % 3 == 1)
        m_physics->unmaskParts({part});
    else
        m_physics->setMaskedParts({part});
}

void History::removeRegions(const Step& step)
{
    const std::vector<int> faces = subset(step.a, m_reference.topology.faces.size());
    const bool hasChanged = m_reference.removeRegions({}, {faces.begin(), faces.end()});
    agree("the removal of faces", m_physics->removeRegions(faceRegions(faces)), hasChanged);
}

void History::refuseNothingAndForeign(const Step& step)
{
    const Stranger& stranger = *m_stranger;
    agree("a volume in a foreign model",
          idOf(m_physics->createVolume("x", std::string("b0"), VolumeType::Fluid, stranger.model)), 0);
    agree("a default volume in a foreign model",
          idOf(m_physics->createDefaultVolume("x", VolumeType::Fluid, stranger.model)), 0);
    agree("the deactivation of a foreign volume", m_physics->deactivateVolumes({stranger.volume}), -1);
    agree("the deactivation of nothing", m_physics->deactivateVolumes({nullptr}), -1);
    agree("the activation of a foreign volume", m_physics->activateVolumes({stranger.volume}), false);
    if (Boundary* own = boundary(pick(m_reference.boundaries, step.a))) {
        agree("an interface with a foreign boundary",
              idOf(m_physics->createInterface("x", own, stranger.boundary, InterfaceType::Wall)), 0);
        agree("an interface with nothing", idOf(m_physics->createInterface("x", nullptr, own, InterfaceType::Wall)), 0);
        agree("an interface in a foreign model",
              idOf(m_physics->createInterface("x", own, own, InterfaceType::Wall, stranger.model)), 0);
        own->setShellModel(stranger.model);
        agree("the patch for a foreign interface", idOf(own->patch(stranger.interface)), 0);
        if (Interface* joined = interface(pick(m_reference.interfaces, step.b))) {
            agree("the move to a foreign model", joined->setModel(stranger.model), false);
            agree("the move to no model", joined->setModel(nullptr), false);
            agree("the relocation to a foreign boundary", joined->relocate(own, stranger.boundary, false), false);
            agree("the relocation to nothing", joined->relocate(nullptr, own, false), false);
        }
    }
    if (Volume* own = volume(pick(m_reference.volumes, step.c))) {
        agree("the move to a foreign model", own->setModel(stranger.model), false);
        agree("the move to no model", own->setModel(nullptr), false);
    }
    if (Model* own = model(pick(m_reference.models, step.d))) {
        agree("the settings of a foreign volume", idOf(own->settings(stranger.volume)), 0);
        agree("the settings of a foreign interface", idOf(own->settings(stranger.interface)), 0);
        const BoundaryPatch* foreign = stranger.boundary->patch(nullptr);
        agree("the settings of a foreign patch", idOf(own->settings(foreign, SettingsType::VolumeSettings)), 0);
        agree("the settings of no patch", idOf(own->settings(nullptr, SettingsType(3))), 0);
    }
}

std::string History::keptOf(const Physics& physics) const
{
    std::ostringstream text;
    const auto list = [&text](const auto& regions) {
        for (const gtm::Region* region : regions)
            text << ' ' << region->id();
        text << '\n';
    };
    for (const Model* model : physics.models()) {
        text << "model " << model->id() << '\n';
        model->dumpDomains(text, "  ");
    }
    for (const auto& [id, record] : m_reference.volumes) {
        const Volume* volume = physics.findVolumeById(id);
        text << "volume " << idOf(volume) << ' ' << volume->name() << ' ' << displayName(volume->type()) << ' '
             << idOf(volume->model()) << ' ' << volume->activationGroup() << ' ' << volume->isDefaultVolume() << ' '
             << idOf(volume->defaultBoundary()) << " on";
        list(volume->bodies());
    }
    for (const auto& [id, record] : m_reference.boundaries) {
        const Boundary* boundary = physics.findBoundaryById(id);
        text << "boundary " << idOf(boundary) << ' ' << boundary->fullName() << ' ' << displayName(boundary->type())
             << ' ' << displayName(boundary->shellType()) << ' ' << idOf(boundary->shellModel()) << ' '
             << idOf(boundary->volume()) << ' ' << boundary->tags().size() << " patches";
        for (const BoundaryPatch* patch : boundary->patches())
            text << ' ' << patch->id() << ' ' << patch->name() << ',';
        text << " on";
        list(boundary->faceUses());
    }
    for (const auto& [id, record] : m_reference.interfaces) {
        const Interface* interface = physics.findInterfaceById(id);
        text << "interface " << idOf(interface) << ' ' << interface->name() << ' ' << displayName(interface->type())
             << ' ' << displayName(interface->periodicity()) << ' ' << displayName(interface->meshConnectivity()) << ' '
             << interface->isMapped() << interface->isStatic() << interface->isMeshValid() << ' '
             << idOf(interface->model()) << ' ' << idOf(interface->boundary(Side::First)) << ' '
             << idOf(interface->boundary(Side::Second)) << '\n';
    }
    for (const Settings* settings : physics.settings()) {
        text << "settings " << settings->id() << ' ' << displayName(settings->type()) << ' ' << idOf(settings->model())
             << ' ' << settings->name() << '\n';
        for (const ThreadBundle* bundle : settings->threadBundles())
            bundle->dump(text, "  ");
    }
    return text.str();
}

/// The copy must hold everything, also what equal names keep out of the lists, and its text must lead to itself. It
/// stays until the next one begins, because its end may draw ids, which restoring takes back.
void History::saveAndRestore(const Step&)
{
    const std::string text = m_physics->serialise();
    m_copy = std::make_unique<Physics>(m_model->model(), false);
    agree("what is against the saved text", m_copy->checkSerialised(text), std::vector<std::string>());
    agree("the restoring", m_copy->restore(text), true);
    agree("what was restored", keptOf(*m_copy), keptOf(*m_physics));
    const std::string again = m_copy->serialise();
    agree("the second restoring", m_copy->restore(again), true);
    agree("the text of what was restored twice", m_copy->serialise(), again);
}

void History::clear(const Step&)
{
    m_reference.clear();
    m_physics->clear();
}
