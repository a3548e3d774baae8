#include "apps/CaseListing.h"

#include "apps/CaseBuilder.h"
#include "apps/Joined.h"
#include "apps/Output.h"
#include "apps/PeriodicText.h"
#include "apps/Table.h"
#include "gtm/Body.h"
#include "gtm/Boundary.h"
#include "gtm/FaceUse.h"
#include "gtm/Interface.h"
#include "gtm/Interior.h"
#include "gtm/Part.h"
#include "locationmodel/Explain.h"
#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Physics.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/TypeNames.h"
#include "physics/Volume.h"

#include <ostream>
#include <string>
#include <vector>

namespace physics::apps {
namespace {

template <class T>
std::string joinedIds(const std::vector<T*>& regions)
{
    std::vector<std::string> ids;
    for (const T* region : regions) {
        ids.push_back(region->id());
    }
    return joined(ids);
}

template <class T>
std::string joinedNames(const std::vector<T*>& objects)
{
    std::vector<std::string> names;
    for (const T* object : objects) {
        names.push_back(object->name());
    }
    return joined(names);
}

std::string textOf(const BuiltCase& built, const Model* model)
{
    if (model == nullptr) {
        return "-";
    }
    const auto name = built.modelNames.find(model->id());
    return name == built.modelNames.end() ? std::to_string(model->id()) : name->second;
}

void listModels(const BuiltCase& built, Output& output)
{
    Table table({"id", "name", "domains"});
    for (const Model* model : built.physics->models()) {
        std::vector<std::string> domains;
        for (const int id : model->domainIds()) {
            domains.push_back(std::to_string(id) + " " + model->domainName(id) + " (" +
                              displayName(model->domainType(id)) + ")");
        }
        table.add({std::to_string(model->id()), textOf(built, model), joined(domains)});
    }
    table.print("models", output);
}

void listVolumes(const BuiltCase& built, Output& output)
{
    Table table({"id", "name", "type", "model", "bodies", "state"});
    for (const Volume* volume : built.physics->volumes()) {
        table.add({std::to_string(volume->id()), volume->name(), displayName(volume->type()),
                   textOf(built, volume->model()), joinedIds(volume->bodies()), displayName(volume->state())});
    }
    table.print("volumes", output);
}

std::string tagsOf(const Boundary& boundary)
{
    std::vector<std::string> tags;
    for (const BoundaryTag tag : boundary.tags()) {
        tags.push_back(displayName(tag));
    }
    return joined(tags);
}

std::string shellOf(const BuiltCase& built, const Boundary& boundary)
{
    return boundary.shellModel() == nullptr
               ? "-"
               : displayName(boundary.shellType()) + " in " + textOf(built, boundary.shellModel());
}

void listBoundaries(const BuiltCase& built, Output& output)
{
    Table table({"id", "name", "type", "face uses", "shell", "tags", "state"});
    for (const Boundary* boundary : built.physics->boundaries()) {
        table.add({std::to_string(boundary->id()), boundary->fullName(), displayName(boundary->type()),
                   std::to_string(boundary->faceUses().size()), shellOf(built, *boundary), tagsOf(*boundary),
                   displayName(boundary->state())});
    }
    table.print("boundaries", output);
}

std::string marksOf(const Interface& interface)
{
    std::vector<std::string> marks;
    for (const auto& [isSet, mark] :
         {std::pair(interface.isMapped(), "mapped"), std::pair(interface.isStatic(), "static"),
          std::pair(interface.isMeshValid(), "mesh valid")}) {
        if (isSet) {
            marks.emplace_back(mark);
        }
    }
    return joined(marks);
}

void listInterfaces(const BuiltCase& built, Output& output)
{
    Table table({"id", "name", "type", "model", "first side", "second side", "periodicity", "connectivity", "mesh",
                 "marks", "state"});
    for (const Interface* interface : built.physics->interfaces()) {
        table.add({std::to_string(interface->id()), interface->name(), displayName(interface->type()),
                   textOf(built, interface->model()), interface->boundary(Side::First)->fullName(),
                   interface->boundary(Side::Second)->fullName(), periodicText(*interface),
                   displayName(interface->connectivity()), displayName(interface->meshConnectivity()),
                   marksOf(*interface), displayName(interface->state())});
    }
    table.print("interfaces", output);
}

/// What settings belong to, so that those of a shell and of the internal faces can be told from others.
std::string ownerOf(const Settings& settings)
{
    if (settings.topologyType() == TopologyType::Internal) {
        return settings.volume()->name() + " (internal faces)";
    }
    if (settings.boundaryPatch() != nullptr) {
        return settings.volume()->name() + "::" + settings.name() +
               (settings.type() == SettingsType::ShellSettings ? " (shell)" : "");
    }
    return settings.name();
}

void listThreads(const BuiltCase& built, Output& output)
{
    Table table({"id", "type", "solver type", "of", "index", "domains", "zones"});
    for (const ThreadBundle* thread : built.physics->threadBundles()) {
        table.add({std::to_string(thread->threadId()), displayName(thread->threadType()),
                   std::to_string(thread->solverThreadType()), ownerOf(*thread->settings()),
                   std::to_string(thread->index()), joined(thread->domainIds()), joined(thread->zoneIds())});
    }
    table.print("solver threads", output);
}

void listWhatIsOut(const BuiltCase& built, Output& output)
{
    Table mask({"masked parts", "masked bodies"});
    if (!built.physics->maskedBodies().empty()) {
        mask.add({joinedIds(built.physics->maskedParts()), joinedIds(built.physics->maskedBodies())});
    }
    mask.print("mask", output);
    Table groups({"group", "volumes"});
    for (const int group : built.physics->activationGroups()) {
        groups.add({std::to_string(group), joinedNames(built.physics->activationGroupVolumes(group))});
    }
    groups.print("deactivated", output);
}

void listWhatIsNotValid(const BuiltCase& built, Output& output)
{
    Table table({"name", "state", "reason"});
    const auto add = [&table](const Region& region, const auto& entity) {
        if (region.state() != State::Valid) {
            table.add({region.fullName(), displayName(region.state()), gtm::bundled::explain(entity)});
        }
    };
    for (const Volume* volume : built.physics->volumes()) {
        add(*volume, *volume->interior());
    }
    for (const Boundary* boundary : built.physics->boundaries()) {
        add(*boundary, *boundary->boundary());
    }
    for (const Interface* interface : built.physics->interfaces()) {
        add(*interface, *interface->interface());
    }
    table.print("not valid", output);
}

void listTotals(const BuiltCase& built, Output& output)
{
    output.out() << "made " << counted(built.physics->models().size(), "model") << ", "
                 << counted(built.physics->volumes().size(), "volume") << ", "
                 << counted(built.physics->boundaries().size(), "boundary", "boundaries") << ", "
                 << counted(built.physics->interfaces().size(), "interface") << ", "
                 << counted(built.physics->threadBundles().size(), "solver thread") << "; refused "
                 << counted(built.refusals.size(), "thing") << '\n';
}

} // namespace

void listCase(const BuiltCase& built, Output& output)
{
    listModels(built, output);
    listVolumes(built, output);
    listBoundaries(built, output);
    listInterfaces(built, output);
    listThreads(built, output);
    listWhatIsOut(built, output);
    listWhatIsNotValid(built, output);
    listTotals(built, output);
}

} // namespace physics::apps
