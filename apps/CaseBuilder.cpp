#include "apps/CaseBuilder.h"

#include "apps/CaseFile.h"
#include "apps/Progress.h"
#include "gtm/Body.h"
#include "gtm/Face.h"
#include "gtm/FaceUse.h"
#include "gtm/Part.h"
#include "gtm/Topology.h"
#include "locationmodel/LocationModel.h"
#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Physics.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/TypeNames.h"
#include "physics/Volume.h"
#include "support/InQuotes.h"
#include "support/NearestName.h"

#include <array>
#include <cstddef>
#include <optional>
#include <utility>
#include <variant>

namespace physics::apps {
namespace {

using gtm::support::inQuotes;

/// The ids of all regions of a kind; `gtm::Region` stands for every kind.
template <class R>
std::vector<std::string> idsOf(const gtm::bundled::LocationModel& model)
{
    std::vector<std::string> ids;
    const auto add = [&ids](const auto& regions) {
        for (const gtm::Region* region : regions) {
            if (dynamic_cast<const R*>(region) != nullptr) {
                ids.push_back(region->id());
            }
        }
    };
    add(model.parts());
    add(model.bodies());
    add(model.faces());
    add(model.faceUses());
    return ids;
}

class Builder {
public:
    Builder(const CaseFile& file, const gtm::bundled::LocationModel& model, BuiltCase& built, Progress* progress)
        : m_file(file), m_model(model), m_physics(*built.physics), m_built(built), m_progress(progress)
    {}

    void build();

private:
    /// Solver threads that wait until every object exists.
    struct Request {
        Settings* settings;
        const std::vector<CaseFile::Thread>* threads;
    };

    void mask();
    void buildModel(const CaseFile::Model& wanted);
    void buildVolume(const CaseFile::Volume& wanted);
    void buildBoundary(const CaseFile::Boundary& wanted, Volume& volume, const std::string& volumeName);
    void buildShell(const CaseFile::Shell& wanted, Boundary& boundary);
    void buildInterface(const CaseFile::Interface& wanted);
    Interface* createInterface(const CaseFile::Interface& wanted, Boundary* first, Boundary* second);
    void buildThreads();
    void takeZones(const CaseFile::Thread& wanted, ThreadBundle& bundle);
    void deactivate(const CaseFile::Group& group);

    /// Calls `create` with the location in the form in which it was given. Null when a region is unknown, or
    /// when `create` gives null; then the location model is asked for the reason.
    template <class Create>
    auto place(const CaseFile::Location& location, const std::string& path, const std::string& what, Create create)
        -> decltype(create(std::string()));

    /// The regions with these ids; nothing when one is unknown.
    template <class R>
    std::optional<std::vector<R*>> find(const std::vector<std::string>& ids, const std::string& path,
                                        const std::string& what);

    Model* modelCalled(const std::string& name) const;
    void step();
    void refuse(std::string path, std::string sentence);
    void refuseByLocationModel(const std::string& path, const std::string& what);

    const CaseFile& m_file;
    const gtm::bundled::LocationModel& m_model;
    Physics& m_physics;
    BuiltCase& m_built;
    Progress* m_progress;
    std::map<std::string, Model*> m_models;
    std::map<std::string, Volume*> m_volumes;
    std::map<std::string, Boundary*> m_boundaries;
    std::vector<Request> m_requests;
};

void Builder::build()
{
    mask();
    for (const CaseFile::Model& model : m_file.models) {
        buildModel(model);
    }
    for (const CaseFile::Volume& volume : m_file.volumes) {
        buildVolume(volume);
    }
    for (const CaseFile::Interface& interface : m_file.interfaces) {
        buildInterface(interface);
    }
    buildThreads();
    for (const CaseFile::Group& group : m_file.deactivated) {
        deactivate(group);
    }
}

void Builder::step()
{
    if (m_progress != nullptr) {
        m_progress->step();
    }
}

void Builder::refuse(std::string path, std::string sentence)
{
    m_built.refusals.push_back({std::move(path), std::move(sentence)});
}

void Builder::refuseByLocationModel(const std::string& path, const std::string& what)
{
    const State state = static_cast<State>(m_model.lastRefusedState());
    refuse(path, what + " is refused (" + displayName(state) + "): " + m_model.lastRefusal());
}

template <class R>
std::optional<std::vector<R*>> Builder::find(const std::vector<std::string>& ids, const std::string& path,
                                             const std::string& what)
{
    std::vector<R*> found;
    for (std::size_t i = 0; i < ids.size(); ++i) {
        if (auto* region = dynamic_cast<R*>(m_model.topology()->findRegionById(ids[i]))) {
            found.push_back(region);
        } else {
            refuse(path + "/" + std::to_string(i), "the geometry has no " + what + " " + inQuotes(ids[i]) +
                                                       gtm::support::hintForName(ids[i], idsOf<R>(m_model)));
        }
    }
    return found.size() == ids.size() ? std::optional(found) : std::nullopt;
}

template <class Create>
auto Builder::place(const CaseFile::Location& location, const std::string& path, const std::string& what, Create create)
    -> decltype(create(std::string()))
{
    decltype(create(std::string())) made = nullptr;
    if (const auto* text = std::get_if<std::string>(&location)) {
        made = create(*text);
    } else {
        const auto regions = find<gtm::Region>(std::get<std::vector<std::string>>(location), path, "region");
        if (!regions) {
            return nullptr;
        }
        made = create(*regions);
    }
    if (made == nullptr) {
        refuseByLocationModel(path, what);
    }
    return made;
}

void Builder::mask()
{
    if (const auto parts = find<gtm::Part>(m_file.maskedParts, "/masked/parts", "part")) {
        m_physics.maskParts(*parts);
    }
    if (const auto bodies = find<gtm::Body>(m_file.maskedBodies, "/masked/bodies", "body")) {
        m_physics.maskBodies(*bodies);
    }
}

void Builder::buildModel(const CaseFile::Model& wanted)
{
    Model* model = m_physics.createModel();
    m_models.emplace(wanted.name, model);
    m_built.modelNames.emplace(model->id(), wanted.name);
    if (!wanted.domains) {
        return;
    }
    for (const int id : model->domainIds()) {
        model->removeDomain(id);
    }
    for (const CaseFile::Domain& domain : *wanted.domains) {
        model->addDomain(domain.id, domain.type, domain.name);
    }
}

Model* Builder::modelCalled(const std::string& name) const
{
    return name.empty() ? m_physics.primaryModel() : m_models.at(name);
}

void Builder::buildVolume(const CaseFile::Volume& wanted)
{
    step();
    const std::string what = "the volume " + inQuotes(wanted.name);
    Model* model = modelCalled(wanted.model);
    Volume* volume = nullptr;
    if (wanted.location) {
        volume = place(*wanted.location, wanted.path + "/location", what, [&](const auto& where) {
            return m_physics.createVolume(wanted.name, where, wanted.type, model);
        });
    } else {
        volume = m_physics.createDefaultVolume(wanted.name, wanted.type, model);
    }
    if (volume == nullptr) {
        return;
    }
    m_volumes.emplace(wanted.name, volume);
    for (const CaseFile::Boundary& boundary : wanted.boundaries) {
        buildBoundary(boundary, *volume, wanted.name);
    }
    if (!wanted.threads.empty()) {
        m_requests.push_back({volume->settings(), &wanted.threads});
    }
    if (!wanted.internalThreads.empty()) {
        m_requests.push_back({volume->internalSettings(), &wanted.internalThreads});
    }
}

void Builder::buildBoundary(const CaseFile::Boundary& wanted, Volume& volume, const std::string& volumeName)
{
    step();
    const std::string fullName = volumeName + "::" + wanted.name;
    Boundary* boundary = nullptr;
    if (wanted.location) {
        boundary = place(*wanted.location, wanted.path + "/location", "the boundary " + inQuotes(fullName),
                         [&](const auto& where) { return volume.createBoundary(wanted.name, where, wanted.type); });
    } else {
        boundary = volume.createDefaultBoundary(wanted.name, wanted.type);
    }
    if (boundary == nullptr) {
        return;
    }
    m_boundaries.emplace(fullName, boundary);
    for (const BoundaryTag tag : wanted.tags) {
        boundary->addTag(tag);
    }
    if (!wanted.threads.empty()) {
        m_requests.push_back({boundary->boundarySettings(nullptr), &wanted.threads});
    }
    if (wanted.shell) {
        buildShell(*wanted.shell, *boundary);
    }
}

void Builder::buildShell(const CaseFile::Shell& wanted, Boundary& boundary)
{
    boundary.setShellModel(modelCalled(wanted.model));
    if (!boundary.setShellType(wanted.type)) {
        boundary.setShellModel(nullptr);
        refuse(wanted.path + "/type", "the shell is refused: a boundary of type " + displayName(boundary.type()) +
                                          " cannot carry a shell of type " + displayName(wanted.type) + ".");
        return;
    }
    if (!wanted.threads.empty()) {
        m_requests.push_back({boundary.shellSettings(nullptr), &wanted.threads});
    }
}

void Builder::buildInterface(const CaseFile::Interface& wanted)
{
    step();
    std::array<Boundary*, 2> boundaries{};
    for (std::size_t i = 0; i < boundaries.size(); ++i) {
        const auto found = m_boundaries.find(wanted.sides[i].boundary);
        if (found == m_boundaries.end()) {
            refuse(wanted.sides[i].path, "the interface " + inQuotes(wanted.name) + " is refused: the boundary " +
                                             inQuotes(wanted.sides[i].boundary) + " was refused before.");
            return;
        }
        boundaries[i] = found->second;
    }
    Interface* interface = createInterface(wanted, boundaries[0], boundaries[1]);
    if (interface == nullptr) {
        refuseByLocationModel(wanted.path, "the interface " + inQuotes(wanted.name));
        return;
    }
    interface->setMeshConnectivity(wanted.meshConnectivity);
    interface->setIsMapped(wanted.isMapped);
    interface->setIsStatic(wanted.isStatic);
    interface->setIsMeshValid(wanted.isMeshValid);
    if (!wanted.threads.empty()) {
        m_requests.push_back({interface->settings(), &wanted.threads});
    }
    for (std::size_t i = 0; i < boundaries.size(); ++i) {
        if (!wanted.sides[i].threads.empty()) {
            m_requests.push_back({boundaries[i]->boundarySettings(interface), &wanted.sides[i].threads});
        }
        if (!wanted.sides[i].shellThreads.empty()) {
            m_requests.push_back({boundaries[i]->shellSettings(interface), &wanted.sides[i].shellThreads});
        }
    }
}

Interface* Builder::createInterface(const CaseFile::Interface& wanted, Boundary* first, Boundary* second)
{
    Model* model = modelCalled(wanted.model);
    if (wanted.translation) {
        return m_physics.createTranslationallyPeriodicInterface(wanted.name, first, second, *wanted.translation,
                                                                wanted.type, model);
    }
    if (wanted.rotation) {
        return m_physics.createRotationallyPeriodicInterface(wanted.name, first, second, wanted.rotation->angle,
                                                             wanted.rotation->origin, wanted.rotation->direction,
                                                             wanted.type, model);
    }
    return m_physics.createInterface(wanted.name, first, second, wanted.type, model);
}

/// A new thread inherits zones and so may hold for a moment what the file gives to another: hence zones are
/// taken once when their thread is made, and what was lost by then once more when all threads exist.
void Builder::buildThreads()
{
    for (const auto& [settings, threads] : m_requests) {
        for (const CaseFile::Thread& thread : *threads) {
            ThreadBundle* bundle =
                settings->createThreadBundle(thread.index, thread.type, thread.threadId, thread.domains);
            if (!thread.zones.empty()) {
                bundle->setZoneIds(thread.zones);
            }
        }
    }
    for (const auto& [settings, threads] : m_requests) {
        for (const CaseFile::Thread& thread : *threads) {
            takeZones(thread, *settings->threadBundle(thread.index));
        }
    }
}

void Builder::takeZones(const CaseFile::Thread& wanted, ThreadBundle& bundle)
{
    if (wanted.zones.empty() || bundle.setZoneIds(wanted.zones) || bundle.hasOwnZones()) {
        return;
    }
    for (std::size_t i = 0; i < wanted.zones.size(); ++i) {
        const ThreadBundle* owner = m_physics.findThreadBundleByZoneId(wanted.zones[i]);
        if (owner != nullptr && owner != &bundle) {
            refuse(wanted.path + "/zones/" + std::to_string(i),
                   "the zones of thread " + std::to_string(wanted.threadId) + " are refused: zone " +
                       std::to_string(wanted.zones[i]) + " is that of thread " + std::to_string(owner->threadId()) +
                       ", " + inQuotes(owner->settings()->name()) + ".");
        }
    }
}

void Builder::deactivate(const CaseFile::Group& group)
{
    std::vector<Volume*> volumes;
    for (std::size_t i = 0; i < group.volumes.size(); ++i) {
        const auto found = m_volumes.find(group.volumes[i]);
        if (found == m_volumes.end()) {
            refuse(group.path + "/" + std::to_string(i),
                   "the group is refused: the volume " + inQuotes(group.volumes[i]) + " was refused before.");
            return;
        }
        volumes.push_back(found->second);
    }
    m_physics.deactivateVolumes(volumes);
}

} // namespace

BuiltCase::BuiltCase() = default;
BuiltCase::BuiltCase(BuiltCase&&) noexcept = default;
BuiltCase& BuiltCase::operator=(BuiltCase&&) noexcept = default;
BuiltCase::~BuiltCase() = default;

std::size_t noOfSteps(const CaseFile& file)
{
    std::size_t steps = file.volumes.size() + file.interfaces.size();
    for (const CaseFile::Volume& volume : file.volumes) {
        steps += volume.boundaries.size();
    }
    return steps;
}

BuiltCase buildCase(const CaseFile& file, const gtm::bundled::LocationModel& model, Progress* progress)
{
    BuiltCase built;
    built.physics = std::make_unique<Physics>(&model, file.enforceRestrictions);
    Builder(file, model, built, progress).build();
    return built;
}

} // namespace physics::apps
