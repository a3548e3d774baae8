#include "tests/physics/saved/Answers.h"

#include "gtm/LocationModel.h"
#include "physics/Boundary.h"
#include "physics/BoundaryPatch.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Physics.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/Volume.h"

#include <sstream>
#include <type_traits>
#include <utility>
#include <vector>

namespace physics {
namespace {

/// Writes one line for each answer.
class Answers {
public:
    template <class T>
    void add(const char* question, const T& answer)
    {
        m_text << "    " << question << ": ";
        put(answer);
        m_text << '\n';
    }

    void begin(const char* noun, int id) { m_text << noun << ' ' << id << '\n'; }
    void append(const std::string& text) { m_text << text; }
    std::string text() const { return m_text.str(); }

private:
    void put(const std::string& text) { m_text << '"' << text << '"'; }

    /// Objects and regions by their ids.
    template <class Object>
    void put(Object* object)
    {
        if (object == nullptr)
            m_text << "none";
        else
            m_text << object->id();
    }

    template <class Number>
    std::enable_if_t<std::is_arithmetic_v<Number> || std::is_enum_v<Number>> put(Number value)
    {
        m_text << static_cast<int>(value);
    }

    template <class T>
    void put(const std::vector<T>& values)
    {
        for (const T& value : values) {
            put(value);
            m_text << ", ";
        }
    }

    std::ostringstream m_text;
};

void addRegion(Answers& answers, const Region& region)
{
    answers.add("name", region.name());
    answers.add("full name", region.fullName());
    answers.add("state", region.state());
    answers.add("is active", region.isActive());
    answers.add("is empty", region.isEmpty());
    answers.add("validate", region.validate(false));
    answers.add("validate without warnings", region.validate(true));
}

void addLocation(Answers& answers, const gtm::Location* location)
{
    answers.add("is located", location != nullptr);
    if (location == nullptr)
        return;
    answers.add("is implicit", location->isImplicit());
    answers.add("location", location->locationString(false));
    answers.add("resolved location", location->locationString(true));
}

void addModel(Answers& answers, const Model& model)
{
    answers.begin("model", model.id());
    answers.add("volumes", model.volumes());
    answers.add("boundaries", model.boundaries());
    answers.add("patches", model.boundaryPatches());
    answers.add("interfaces", model.interfaces());
    answers.add("volume settings", model.volumeSettings());
    answers.add("internal settings", model.internalSettings());
    answers.add("interface settings", model.interfaceSettings());
    answers.add("patch settings", model.boundaryPatchSettings());
    answers.add("settings", model.settings());
    answers.add("domains", model.domainIds());
    for (const int id : model.domainIds()) {
        answers.add("domain name", model.domainName(id));
        answers.add("domain symbol", model.domainSymbol(id));
        answers.add("domain type", model.domainType(id));
    }
}

void addVolume(Answers& answers, const Volume& volume)
{
    answers.begin("volume", volume.id());
    addRegion(answers, volume);
    addLocation(answers, volume.location());
    answers.add("type", volume.type());
    answers.add("model", volume.model());
    answers.add("group", volume.activationGroup());
    answers.add("is default", volume.isDefaultVolume());
    answers.add("default boundary", volume.defaultBoundary());
    answers.add("boundaries", volume.boundaries());
    answers.add("bodies", volume.bodies());
    answers.add("internal faces", volume.internalFaces());
    answers.add("unused face uses", volume.unusedFaceUses());
    answers.add("unused internal faces", volume.unusedInternalFaces());
    answers.add("unresolvable names", volume.unresolvableNames());
    answers.add("overlapping volumes", volume.overlappingVolumes());
    answers.add("default boundary type", volume.defaultBoundaryType());
    answers.add("zones", volume.zoneIds());
    answers.add("internal zones", volume.internalZoneIds());
}

void addPatch(Answers& answers, const BoundaryPatch& patch)
{
    answers.begin("patch", patch.id());
    answers.add("name", patch.name());
    answers.add("boundary", patch.boundary());
    answers.add("interface", patch.interface());
    answers.add("volume", patch.volume());
    answers.add("shell type", patch.shellType());
    answers.add("interface type", patch.interfaceType());
    for (const SettingsType kind :
         {SettingsType::VolumeSettings, SettingsType::ShellSettings, SettingsType::InterfaceSettings})
        answers.add("model", patch.model(kind));
    answers.add("is child", patch.isChild());
    answers.add("paired patch", patch.pairedPatch());
}

void addBoundary(Answers& answers, const Boundary& boundary)
{
    answers.begin("boundary", boundary.id());
    addRegion(answers, boundary);
    addLocation(answers, boundary.location());
    answers.add("type", boundary.type());
    answers.add("shell type", boundary.shellType());
    answers.add("shell model", boundary.shellModel());
    answers.add("volume", boundary.volume());
    answers.add("is default", boundary.isDefaultBoundary());
    answers.add("face uses", boundary.faceUses());
    answers.add("unresolvable names", boundary.unresolvableNames());
    answers.add("overlapping boundaries", boundary.overlappingBoundaries());
    answers.add("is internal", boundary.isInternal());
    answers.add("could be internal", boundary.couldBeInternal());
    answers.add("pair", boundary.pair());
    answers.add("tags", boundary.tags());
    answers.add("number of interfaces", boundary.noOfInterfaces());
    answers.add("interfaces", boundary.interfaces());
    answers.add("patches", boundary.patches());
    answers.add("zones", boundary.zoneIds());
    answers.add("has external region", boundary.hasExternalRegion());
    for (const BoundaryPatch* patch : boundary.patches())
        addPatch(answers, *patch);
}

void addInterface(Answers& answers, const Interface& interface)
{
    answers.begin("interface", interface.id());
    addRegion(answers, interface);
    answers.add("type", interface.type());
    answers.add("model", interface.model());
    answers.add("first", interface.boundary(Side::First));
    answers.add("second", interface.boundary(Side::Second));
    answers.add("mesh connectivity", interface.meshConnectivity());
    answers.add("is mapped", interface.isMapped());
    answers.add("is static", interface.isStatic());
    answers.add("is mesh valid", interface.isMeshValid());
    answers.add("periodicity", interface.periodicity());
    answers.add("connectivity", interface.connectivity());
    answers.add("is sliding", interface.isSliding());
}

void addSettings(Answers& answers, const Physics& physics, const Settings& settings)
{
    answers.begin("settings", settings.id());
    answers.add("type", settings.type());
    answers.add("topology type", settings.topologyType());
    answers.add("model", settings.model());
    answers.add("volume", settings.volume());
    answers.add("interface", settings.interface());
    answers.add("boundary", settings.boundary());
    answers.add("patch", settings.boundaryPatch());
    answers.add("name", settings.name());
    answers.add("is active", settings.isActive());
    answers.add("found", physics.findSettingsById(settings.id()) == &settings);
    for (const ThreadBundle* bundle : settings.threadBundles()) {
        answers.begin("bundle", bundle->index());
        answers.add("thread", bundle->threadId());
        answers.add("type", bundle->threadType());
        answers.add("solver type", bundle->solverThreadType());
        answers.add("domains", bundle->domainIds());
        answers.add("has own zones", bundle->hasOwnZones());
        answers.add("zones", bundle->zoneIds());
        answers.add("found", physics.findThreadBundleByThreadId(bundle->threadId()) == bundle);
        answers.add("settings found", physics.findSettingsByThreadId(bundle->threadId()) == &settings);
        for (const int zone : bundle->zoneIds())
            if (bundle->hasOwnZones())
                answers.add("found by zone", physics.findThreadBundleByZoneId(zone) == bundle);
    }
}

void addMask(Answers& answers, const Physics& physics)
{
    answers.add("masked bodies", physics.maskedBodies());
    answers.add("unmasked bodies", physics.unmaskedBodies());
    answers.add("masked faces", physics.maskedFaces());
    answers.add("unmasked faces", physics.unmaskedFaces());
    answers.add("masked face uses", physics.maskedFaceUses());
    answers.add("unmasked face uses", physics.unmaskedFaceUses());
    answers.add("masked parts", physics.maskedParts());
    answers.add("unmasked parts", physics.unmaskedParts());
    answers.add("unused bodies", physics.unusedBodies());
}

} // namespace

std::string answersOf(const Physics& physics)
{
    Answers answers;
    answers.add("enforces restrictions", physics.enforceRestrictions());
    answers.add("default volume", physics.defaultVolume());
    answers.add("models", physics.models());
    answers.add("volumes", physics.volumes());
    answers.add("boundaries", physics.boundaries());
    answers.add("interfaces", physics.interfaces());
    answers.add("settings", physics.settings());
    answers.add("bundles", physics.threadBundles());
    answers.add("threads", physics.threadIds());
    answers.add("zones", physics.zoneIds());
    answers.add("groups", physics.activationGroups());
    for (const int group : physics.activationGroups())
        answers.add("volumes of the group", physics.activationGroupVolumes(group));
    answers.add("is topology valid", physics.isTopologyValid(false));
    answers.add("is valid", physics.isPhysicsValid(true));
    answers.add("validate", physics.validate(true, false));
    addMask(answers, physics);
    for (const Model* model : physics.models())
        addModel(answers, *model);
    for (const Volume* volume : physics.volumes())
        addVolume(answers, *volume);
    for (const Boundary* boundary : physics.boundaries())
        addBoundary(answers, *boundary);
    for (const Interface* interface : physics.interfaces())
        addInterface(answers, *interface);
    for (const Settings* settings : physics.settings())
        addSettings(answers, physics, *settings);
    std::ostringstream report;
    physics.dump(report);
    // At its end the report looks up zones. A bundle is found under those that it inherited when it was made,
    // and it was made anew when it came back.
    answers.append(report.str().substr(0, report.str().find("Zone to thread / settings map:")));
    return answers.text();
}

} // namespace physics
