#include "apps/CaseBuilder.h"

#include "apps/CaseReader.h"
#include "apps/CaseReferences.h"
#include "apps/Complaints.h"
#include "gtm/Body.h"
#include "locationmodel/LocationModel.h"
#include "locationmodel/TopologyFile.h"
#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Physics.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/Volume.h"
#include "support/JsonSource.h"
#include "tests/apps/ToolRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using physics::Boundary;
using physics::Interface;
using physics::Model;
using physics::Settings;
using physics::Side;
using physics::ThreadBundle;
using physics::Volume;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// A good case on two boxes, "left" and "right", that share the face "middle", with a "probe" of another part
/// ("rig") beside them. The left body has the zone 1, the right one 2, the face "left/west" 11.
class BuiltFromText {
public:
    explicit BuiltFromText(const std::string& members)
        : m_model(gtm::bundled::readTopology(sourceFile("tests/data/bad-cases/boxes.json")))
    {
        const std::string text = R"({"format": "physics-case", "version": 1, "geometry": "-", )" + members + "}";
        physics::apps::Complaints complaints;
        const auto file = physics::apps::readCase(gtm::support::JsonSource::fromText(text, "a.json"), complaints);
        EXPECT_THAT(complaints.lines(), IsEmpty());
        EXPECT_THAT(physics::apps::checkReferences(file), IsEmpty());
        m_built = physics::apps::buildCase(file, *m_model);
    }

    physics::Physics& physics() { return *m_built.physics; }
    const std::map<int, std::string>& modelNames() const { return m_built.modelNames; }

    std::vector<std::string> refusedPaths() const
    {
        std::vector<std::string> paths;
        for (const physics::apps::Problem& refusal : m_built.refusals) {
            paths.push_back(refusal.path);
        }
        return paths;
    }

    Volume& volume(const std::string& name) { return only(name, physics().volumes()); }
    Interface& interface(const std::string& name) { return only(name, physics().interfaces()); }
    Boundary& boundary(const std::string& fullName) { return only(fullName, physics().boundaries()); }

private:
    template <class T>
    static T& only(const std::string& name, const std::vector<T*>& objects)
    {
        for (T* object : objects) {
            if (object->fullName() == name) {
                return *object;
            }
        }
        throw std::runtime_error("there is no " + name);
    }

    std::unique_ptr<gtm::bundled::LocationModel> m_model;
    physics::apps::BuiltCase m_built; // ends before the model
};

/// Two volumes with a boundary on each side of the shared face and one more on the left.
const std::string twoVolumes = R"("volumes": [
    {"name": "air", "location": "left", "type": "Fluid", "boundaries": [
        {"name": "in", "location": "left/west", "type": "VelocityInlet"}, {"name": "side", "location": "middle"}]},
    {"name": "bar", "location": "right", "type": "Solid", "boundaries": [{"name": "side", "location": "middle"}]}])";

TEST(CaseBuilder, volumesAndBoundariesAreMadeWhereTheFileSays)
{
    BuiltFromText built(twoVolumes);

    EXPECT_EQ(built.volume("air").type(), physics::VolumeType::Fluid);
    EXPECT_EQ(built.volume("bar").type(), physics::VolumeType::Solid);
    EXPECT_THAT(built.volume("bar").bodies(), SizeIs(1));
    EXPECT_EQ(built.volume("bar").bodies().at(0)->id(), "right");
    EXPECT_EQ(built.boundary("air::in").type(), physics::BoundaryType::VelocityInlet);
    EXPECT_EQ(built.boundary("air::side").pair(), &built.boundary("bar::side"));
    EXPECT_THAT(built.refusedPaths(), IsEmpty());
}

TEST(CaseBuilder, aBoundaryWithoutTypeGetsTheDefaultOfItsVolume)
{
    BuiltFromText built(twoVolumes);

    EXPECT_EQ(built.boundary("air::side").type(), physics::BoundaryType::Wall);
}

TEST(CaseBuilder, defaultsTakeWhatIsLeft)
{
    BuiltFromText built(R"("volumes": [
        {"name": "air", "location": ["left"], "type": "Fluid", "boundaries": [
            {"name": "in", "location": ["left/west", "left/north"]}, {"name": "rest", "default": true}]},
        {"name": "others", "default": true, "type": "Solid"}])");

    EXPECT_TRUE(built.volume("others").isDefaultVolume());
    EXPECT_THAT(built.volume("others").bodies(), SizeIs(2));
    EXPECT_TRUE(built.boundary("air::rest").isDefaultBoundary());
    EXPECT_THAT(built.boundary("air::in").faceUses(), SizeIs(2));
    EXPECT_THAT(built.boundary("air::rest").faceUses(), SizeIs(2));
}

TEST(CaseBuilder, theDomainsOfTheFileAreAllThatAModelHas)
{
    BuiltFromText built(R"("models": [
        {"name": "a", "domains": [{"id": 3, "type": "Phase", "name": "oil"}, {"id": 2, "type": "Phase", "name": "gas"}]},
        {"name": "b"}, {"name": "c", "domains": []}])");

    const std::vector<Model*> models = built.physics().models();
    ASSERT_THAT(models, SizeIs(3));
    EXPECT_THAT(models[0]->domainIds(), ElementsAre(2, 3));
    EXPECT_EQ(models[0]->domainName(3), "oil");
    EXPECT_EQ(models[0]->domainType(3), physics::DomainType::Phase);
    EXPECT_EQ(models[1]->domainName(1), "Default");
    EXPECT_THAT(models[2]->domainIds(), IsEmpty());
    EXPECT_EQ(built.modelNames().at(models[1]->id()), "b");
}

TEST(CaseBuilder, whatNamesNoModelBelongsToTheFirst)
{
    BuiltFromText built(R"("models": [{"name": "first"}, {"name": "second"}], "volumes": [
        {"name": "air", "location": "left", "type": "Fluid"},
        {"name": "bar", "location": "right", "type": "Solid", "model": "second"}])");

    EXPECT_EQ(built.modelNames().at(built.volume("air").model()->id()), "first");
    EXPECT_EQ(built.modelNames().at(built.volume("bar").model()->id()), "second");
}

TEST(CaseBuilder, withoutModelsOneIsMade)
{
    BuiltFromText built(twoVolumes);

    EXPECT_THAT(built.physics().models(), SizeIs(1));
    EXPECT_THAT(built.modelNames(), IsEmpty());
}

TEST(CaseBuilder, aBoundaryGetsItsTagsAndItsShell)
{
    BuiltFromText built(R"("models": [{"name": "flow"}, {"name": "casing"}], "volumes": [
        {"name": "air", "location": "left", "type": "Fluid", "boundaries": [
            {"name": "in", "location": "left/west", "tags": ["Interface"],
             "shell": {"type": "HeatConduction", "model": "casing"}}]}])");

    EXPECT_TRUE(built.boundary("air::in").hasTag(physics::BoundaryTag::Interface));
    EXPECT_EQ(built.boundary("air::in").shellType(), physics::ShellType::HeatConduction);
    EXPECT_EQ(built.modelNames().at(built.boundary("air::in").shellModel()->id()), "casing");
}

TEST(CaseBuilder, aRefusedShellLeavesNoShellBehind)
{
    BuiltFromText built(R"("volumes": [{"name": "air", "location": "left", "type": "Fluid", "boundaries": [
        {"name": "in", "location": "left/west", "type": "VelocityInlet", "shell": {"type": "HeatConduction"}}]}])");

    EXPECT_EQ(built.boundary("air::in").shellModel(), nullptr);
    EXPECT_THAT(built.refusedPaths(), ElementsAre("/volumes/0/boundaries/0/shell/type"));
}

TEST(CaseBuilder, interfacesArePlainOrPeriodicWithTheirNumbers)
{
    BuiltFromText built(twoVolumes + R"(, "interfaces": [
        {"name": "plain", "between": ["air::side", "bar::side"], "type": "Wall"},
        {"name": "moved", "between": ["air::in", "air::side"], "type": "Interior", "translation": [0.5, 0, -2]},
        {"name": "turned", "between": ["air::in", "bar::side"], "type": "Fan",
         "rotation": {"angle": 40, "origin": [1, 2, 3], "direction": [0, 0, 2]}}])");

    EXPECT_EQ(built.interface("plain").periodicity(), physics::Periodicity::NonPeriodic);
    EXPECT_EQ(built.interface("plain").connectivity(), physics::Connectivity::Total);
    EXPECT_EQ(built.interface("moved").periodicity(), physics::Periodicity::TranslationallyPeriodic);
    EXPECT_THAT(built.interface("moved").getPeriodicOffset(), ElementsAre(0.5, 0, -2));
    EXPECT_EQ(built.interface("turned").periodicity(), physics::Periodicity::RotationallyPeriodic);
    EXPECT_EQ(built.interface("turned").getPeriodicAngle(), 40);
    EXPECT_THAT(built.interface("turned").getPeriodicOrigin(), ElementsAre(1, 2, 3));
    EXPECT_THAT(built.interface("turned").getPeriodicDirection(), ElementsAre(0, 0, 2));
    EXPECT_EQ(built.interface("turned").type(), physics::InterfaceType::Fan);
    EXPECT_EQ(built.interface("turned").boundary(Side::Second), &built.boundary("bar::side"));
}

TEST(CaseBuilder, anInterfaceGetsItsMarks)
{
    BuiltFromText built(twoVolumes + R"(, "interfaces": [
        {"name": "i", "between": ["air::side", "bar::side"], "type": "Wall", "meshConnectivity": "NonConformal",
         "isMapped": true, "isMeshValid": true}])");

    EXPECT_EQ(built.interface("i").meshConnectivity(), physics::MeshConnectivity::NonConformal);
    EXPECT_TRUE(built.interface("i").isMapped());
    EXPECT_FALSE(built.interface("i").isStatic());
    EXPECT_TRUE(built.interface("i").isMeshValid());
}

TEST(CaseBuilder, everyKindOfThreadGoesToItsSettings)
{
    BuiltFromText built(R"("volumes": [
        {"name": "air", "location": "left", "type": "Fluid",
         "threads": [{"type": "Fluid", "threadId": 1}], "internalThreads": [{"type": "Interior", "threadId": 2}],
         "boundaries": [
            {"name": "in", "location": "left/west", "threads": [{"type": "Wall", "threadId": 3}],
             "shell": {"type": "HeatConduction", "threads": [{"type": "Solid", "threadId": 4}]}},
            {"name": "out", "location": "left/north"}]}],
        "interfaces": [{"name": "i", "type": "Interior",
            "between": [{"boundary": "air::in", "threads": [{"type": "Periodic", "threadId": 5}],
                         "shellThreads": [{"type": "Shadow", "threadId": 6}]}, "air::out"],
            "threads": [{"type": "Interface", "threadId": 7}]}])");

    const Interface& interface = built.interface("i");
    EXPECT_THAT(built.volume("air").settings()->threadIds(), ElementsAre(1));
    EXPECT_THAT(built.volume("air").internalSettings()->threadIds(), ElementsAre(2));
    EXPECT_THAT(built.boundary("air::in").boundarySettings(nullptr)->threadIds(), ElementsAre(3));
    EXPECT_THAT(built.boundary("air::in").shellSettings(nullptr)->threadIds(), ElementsAre(4));
    EXPECT_THAT(built.boundary("air::in").boundarySettings(&interface)->threadIds(), ElementsAre(5));
    EXPECT_THAT(built.boundary("air::in").shellSettings(&interface)->threadIds(), ElementsAre(6));
    EXPECT_THAT(interface.settings()->threadIds(), ElementsAre(7));
}

TEST(CaseBuilder, aThreadHasItsTypeDomainsIndexAndZones)
{
    BuiltFromText built(R"("volumes": [{"name": "air", "location": "left", "type": "Fluid",
        "threads": [{"type": "Solid", "threadId": 8, "index": 3, "domains": [1], "zones": [30, 20]}]}])");

    const ThreadBundle* thread = built.physics().findThreadBundleByThreadId(8);
    ASSERT_NE(thread, nullptr);
    EXPECT_EQ(thread->index(), 3);
    EXPECT_EQ(thread->threadType(), physics::ThreadType::Solid);
    EXPECT_THAT(thread->domainIds(), ElementsAre(1));
    EXPECT_THAT(thread->zoneIds(), ElementsAre(20, 30));
}

TEST(CaseBuilder, aThreadWithoutZonesHasThoseOfTheGeometry)
{
    BuiltFromText built(R"("volumes": [{"name": "air", "location": "left", "type": "Fluid",
        "threads": [{"type": "Fluid", "threadId": 8}]}])");

    EXPECT_THAT(built.physics().findThreadBundleByThreadId(8)->zoneIds(), ElementsAre(1));
}

TEST(CaseBuilder, threadsThatShareTheZonesOfTheirVolumeAreAllFoundByThem)
{
    BuiltFromText built(R"("volumes": [{"name": "both", "location": "left, right", "type": "Fluid", "threads": [
        {"type": "Fluid", "threadId": 8, "zones": [1]}, {"type": "Fluid", "threadId": 9, "zones": [2]}]}])");

    EXPECT_THAT(built.refusedPaths(), IsEmpty());
    EXPECT_EQ(built.physics().findThreadBundleByZoneId(1)->threadId(), 8);
    EXPECT_EQ(built.physics().findThreadBundleByZoneId(2)->threadId(), 9);
}

TEST(CaseBuilder, aZoneIsGivenToOneThreadOnly)
{
    BuiltFromText built(R"("volumes": [{"name": "both", "location": "left, right", "type": "Fluid", "threads": [
        {"type": "Fluid", "threadId": 8, "zones": [5]}, {"type": "Fluid", "threadId": 9, "zones": [6, 5]}]}])");

    EXPECT_THAT(built.refusedPaths(), ElementsAre("/volumes/0/threads/1/zones/1"));
}

TEST(CaseBuilder, maskedPartsAndBodiesAreTreatedAsAbsent)
{
    BuiltFromText built(R"("masked": {"parts": ["rig"], "bodies": ["right"]},
                           "volumes": [{"name": "all", "default": true, "type": "Fluid"}])");

    EXPECT_THAT(built.physics().maskedBodies(), SizeIs(2));
    EXPECT_THAT(built.physics().maskedParts(), SizeIs(1));
    ASSERT_THAT(built.volume("all").bodies(), SizeIs(1));
    EXPECT_EQ(built.volume("all").bodies().at(0)->id(), "left");
}

TEST(CaseBuilder, eachGroupIsDeactivatedTogether)
{
    BuiltFromText built(R"("volumes": [{"name": "air", "location": "left", "type": "Fluid"},
        {"name": "bar", "location": "right", "type": "Solid"}, {"name": "probe", "location": "probe", "type": "Solid"}],
        "deactivated": [["probe"], ["bar", "air"]])");

    EXPECT_THAT(built.physics().activationGroups(), ElementsAre(1, 2));
    EXPECT_THAT(built.physics().activationGroupVolumes(1), ElementsAre(&built.volume("probe")));
    EXPECT_THAT(built.physics().activationGroupVolumes(2), ElementsAre(&built.volume("bar"), &built.volume("air")));
}

TEST(CaseBuilder, whatDependsOnSomethingRefusedIsRefusedAndTheRestIsMade)
{
    BuiltFromText built(R"("volumes": [
        {"name": "air", "location": "nowhere", "type": "Fluid", "boundaries": [{"name": "a", "location": "middle"}]},
        {"name": "bar", "location": "right", "type": "Solid", "boundaries": [{"name": "b", "location": "middle"}]}],
        "interfaces": [{"name": "i", "between": ["bar::b", "air::a"], "type": "Wall"}],
        "deactivated": [["bar", "air"]])");

    EXPECT_THAT(built.refusedPaths(),
                ElementsAre("/volumes/0/location", "/interfaces/0/between/1", "/deactivated/0/1"));
    EXPECT_THAT(built.physics().volumes(), ElementsAre(&built.volume("bar")));
    EXPECT_THAT(built.physics().boundaries(), SizeIs(1));
    EXPECT_TRUE(built.volume("bar").isActive());
}

TEST(CaseBuilder, withoutRestrictionsWhatIsNotValidIsMadeAndSaysSo)
{
    BuiltFromText built(R"("enforceRestrictions": false,
                           "volumes": [{"name": "air", "location": "nowhere", "type": "Fluid"}])");

    EXPECT_THAT(built.refusedPaths(), IsEmpty());
    EXPECT_EQ(built.volume("air").state(), physics::State::Unresolvable);
}

} // namespace
