#include "apps/diff/Description.h"

#include "apps/CaseBuilder.h"
#include "apps/Joined.h"
#include "apps/PeriodicText.h"
#include "gtm/Body.h"
#include "gtm/Boundary.h"
#include "gtm/Interior.h"
#include "gtm/Location.h"
#include "gtm/Region.h"
#include "physics/Boundary.h"
#include "physics/BoundaryPatch.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Physics.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/TypeNames.h"
#include "physics/Volume.h"
#include "support/InQuotes.h"

#include <algorithm>
#include <cstddef>
#include <unordered_map>
#include <utility>

namespace physics::apps {
namespace {

using gtm::support::inQuotes;

/// An aspect that says the same to people as it does to the comparison.
Fact plain(std::string aspect, const std::string& text) { return {std::move(aspect), text, text}; }

template <class E>
Fact typeFact(E type)
{
    return plain("type", displayName(type));
}

Fact flag(std::string aspect, bool isSet) { return plain(std::move(aspect), isSet ? "yes" : "no"); }

std::string orNone(const std::string& list) { return list == "-" ? "none" : list; }

/// The order in a list of regions is that of the caller and says nothing.
Fact locationFact(bool isDefault, const gtm::Location* location)
{
    if (isDefault || location == nullptr) {
        return plain("location", "what is left over");
    }
    if (location->isImplicit()) {
        return plain("location", inQuotes(location->locationString(false)));
    }
    const gtm::Regions regions = location->components();
    std::vector<std::string> ids;
    for (const gtm::Region* region : regions.regions()) {
        ids.push_back(inQuotes(region->id()));
    }
    std::sort(ids.begin(), ids.end());
    return plain("location", ids.empty() ? "no regions" : "the list " + joined(ids));
}

class Describer {
public:
    Describer(const BuiltCase& built, const DescriptionRules& rules) : m_physics(*built.physics), m_rules(rules)
    {
        for (const Model* model : m_physics.models()) {
            m_modelNames.emplace(model, nameOf(*model, m_modelNames.size() + 1, built));
        }
    }

    std::vector<Description> describe();

private:
    /// How the comparison and people call an object. The key is empty for none.
    struct Called {
        std::string key;
        std::string text;
    };

    Called call(const std::string& kind, const Region* region) const;
    Called call(const Model* model) const;
    std::string nameOf(const Model& model, std::size_t place, const BuiltCase& built) const;

    /// What settings belong to: an object, or a piece of it.
    Called call(const Settings& settings) const;
    Called callPatch(const Settings& settings) const;

    Fact modelFact(const Model* model) const;
    Fact shellFact(const Boundary& boundary) const;
    Fact periodicityFact(const Interface& interface) const;

    void add(const std::string& kind, const Region& region, std::vector<Fact> facts);
    void addSetUp();
    void addModels();
    void addDomains();
    void addVolumes();
    void addBoundaries();
    void addInterfaces();
    void addGroups();
    void addThreads();

    const Physics& m_physics;
    const DescriptionRules& m_rules;
    std::unordered_map<const Model*, std::string> m_modelNames;
    std::vector<Description> m_result;
};

std::vector<Description> Describer::describe()
{
    addSetUp();
    addModels();
    addDomains();
    addVolumes();
    addBoundaries();
    addInterfaces();
    addGroups();
    addThreads();
    return std::move(m_result);
}

Describer::Called Describer::call(const std::string& kind, const Region* region) const
{
    if (region == nullptr) {
        return {"", "none"};
    }
    const std::string key = m_rules.matching == Matching::Ids ? std::to_string(region->id()) : region->fullName();
    return {kind + " " + key, kind + " " + inQuotes(region->fullName())};
}

std::string Describer::nameOf(const Model& model, std::size_t place, const BuiltCase& built) const
{
    if (m_rules.matching == Matching::Ids) {
        return std::to_string(model.id());
    }
    return m_rules.hasModelNames ? built.modelNames.at(model.id()) : std::to_string(place);
}

Describer::Called Describer::call(const Model* model) const
{
    if (model == nullptr) {
        return {"", "none"};
    }
    const std::string& name = m_modelNames.at(model);
    return {"model " + name, "model " + (m_rules.hasModelNames ? inQuotes(name) : name)};
}

Describer::Called Describer::callPatch(const Settings& settings) const
{
    Called called = call("boundary", settings.boundary());
    if (settings.type() == SettingsType::ShellSettings) {
        called = {"shell of " + called.key, "the shell of " + called.text};
    } else if (settings.type() == SettingsType::InterfaceSettings) {
        called = {"interface side of " + called.key, "the interface side of " + called.text};
    }
    if (settings.interface() != nullptr) {
        const Called interface = call("interface", settings.interface());
        called = {called.key + " in " + interface.key, called.text + " in " + interface.text};
    }
    return called;
}

Describer::Called Describer::call(const Settings& settings) const
{
    switch (settings.topologyType()) {
    case TopologyType::Volume:
        return call("volume", settings.volume());
    case TopologyType::Internal: {
        const Called volume = call("volume", settings.volume());
        return {"internal faces of " + volume.key, "the internal faces of " + volume.text};
    }
    case TopologyType::Interface:
        return call("interface", settings.interface());
    case TopologyType::Boundary:
        break;
    }
    return callPatch(settings);
}

Fact Describer::modelFact(const Model* model) const
{
    const Called called = call(model);
    return {"model", called.key, called.text};
}

/// The type of a shell outlives its model, for the next one.
Fact Describer::shellFact(const Boundary& boundary) const
{
    const Called model = call(boundary.shellModel());
    const std::string type = displayName(boundary.shellType());
    if (boundary.shellModel() != nullptr) {
        return {"shell", type + " " + model.key, type + " in " + model.text};
    }
    return {"shell", type, boundary.shellType() == ShellType::Unset ? "none" : "none (but of type " + type + ")"};
}

Fact Describer::periodicityFact(const Interface& interface) const
{
    return plain("periodicity",
                 m_rules.hasPeriodicValues ? orNone(periodicText(interface)) : displayName(interface.periodicity()));
}

void Describer::add(const std::string& kind, const Region& region, std::vector<Fact> facts)
{
    facts.insert(facts.begin(), plain("name", inQuotes(region.name())));
    const Called called = call(kind, &region);
    m_result.push_back({kind, called.key, region.fullName(), "", called.text, std::move(facts)});
}

void Describer::addSetUp()
{
    std::vector<std::string> masked;
    for (const gtm::Body* body : m_physics.maskedBodies()) {
        masked.push_back(inQuotes(body->id()));
    }
    std::sort(masked.begin(), masked.end());
    m_result.push_back({"set-up",
                        "set-up",
                        "",
                        "",
                        "the set-up",
                        {flag("enforcement of restrictions", m_physics.enforceRestrictions()),
                         plain("masked bodies", orNone(joined(masked)))}});
}

void Describer::addModels()
{
    for (const Model* model : m_physics.models()) {
        const Called called = call(model);
        m_result.push_back({"model", called.key, m_modelNames.at(model), "", called.text, {}});
    }
}

void Describer::addDomains()
{
    for (const Model* model : m_physics.models()) {
        const Called called = call(model);
        for (const int id : model->domainIds()) {
            m_result.push_back({"domain",
                                std::to_string(id) + " of " + called.key,
                                std::to_string(id),
                                called.text,
                                "domain " + std::to_string(id) + " of " + called.text,
                                {plain("name", inQuotes(model->domainName(id))), typeFact(model->domainType(id))}});
        }
    }
}

void Describer::addVolumes()
{
    for (const Volume* volume : m_physics.volumes()) {
        add("volume", *volume,
            {typeFact(volume->type()), modelFact(volume->model()),
             locationFact(volume->isDefaultVolume(), volume->location())});
    }
}

void Describer::addBoundaries()
{
    for (const Boundary* boundary : m_physics.boundaries()) {
        const Called volume = call("volume", boundary->volume());
        std::vector<std::string> tags;
        for (const BoundaryTag tag : boundary->tags()) {
            tags.push_back(displayName(tag));
        }
        add("boundary", *boundary,
            {typeFact(boundary->type()), Fact{"volume", volume.key, volume.text},
             locationFact(boundary->isDefaultBoundary(), boundary->location()), shellFact(*boundary),
             plain("tags", orNone(joined(tags)))});
    }
}

void Describer::addInterfaces()
{
    for (const Interface* interface : m_physics.interfaces()) {
        const Called first = call("boundary", interface->boundary(Side::First));
        const Called second = call("boundary", interface->boundary(Side::Second));
        add("interface", *interface,
            {typeFact(interface->type()), modelFact(interface->model()), Fact{"first side", first.key, first.text},
             Fact{"second side", second.key, second.text}, periodicityFact(*interface),
             plain("mesh connectivity", displayName(interface->meshConnectivity())),
             flag("mark \"mapped\"", interface->isMapped()), flag("mark \"static\"", interface->isStatic()),
             flag("mark \"mesh valid\"", interface->isMeshValid())});
    }
}

void Describer::addGroups()
{
    for (const int group : m_physics.activationGroups()) {
        std::vector<std::string> keys;
        std::vector<std::string> names;
        for (const Volume* volume : m_physics.activationGroupVolumes(group)) {
            keys.push_back(call("volume", volume).key);
            names.push_back(inQuotes(volume->name()));
        }
        std::sort(keys.begin(), keys.end());
        std::sort(names.begin(), names.end());
        const std::string number = std::to_string(group);
        m_result.push_back({"group",
                            "group " + number,
                            number,
                            "",
                            "group " + number,
                            {Fact{"volumes", joined(keys), orNone(joined(names))}}});
    }
}

void Describer::addThreads()
{
    for (const ThreadBundle* thread : m_physics.threadBundles()) {
        const Called settings = call(*thread->settings());
        const std::string index = std::to_string(thread->index());
        m_result.push_back(
            {"solver thread",
             index + " of " + settings.key,
             index,
             settings.text,
             "solver thread " + index + " of " + settings.text,
             {plain("thread id", std::to_string(thread->threadId())), typeFact(thread->threadType()),
              plain("domains", orNone(joined(thread->domainIds()))),
              plain("zones", thread->hasOwnZones() ? joined(thread->zoneIds()) : "those of the geometry")}});
    }
}

} // namespace

std::vector<Description> describe(const BuiltCase& built, const DescriptionRules& rules)
{
    return Describer(built, rules).describe();
}

bool allModelsHaveNames(const BuiltCase& built)
{
    const std::vector<Model*> models = built.physics->models();
    return std::all_of(models.begin(), models.end(),
                       [&built](const Model* model) { return built.modelNames.count(model->id()) == 1; });
}

} // namespace physics::apps
