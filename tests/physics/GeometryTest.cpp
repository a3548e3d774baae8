#include "gtm/LocationModel.h"
#include "locationmodel/LocationModel.h"
#include "locationmodel/TopologyBuilder.h"
#include "physics/Boundary.h"
#include "physics/BoundaryPatch.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Physics.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/Volume.h"
#include "tests/physics/PhysicsCase.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

// What the objects of a set-up make of a geometry: on the bundled location model, where faces really meet, masks take
// away and locations overlap.

namespace physics {
namespace {

using gtm::bundled::LocationModel;
using gtm::bundled::TopologyBuilder;
using Boundaries = std::vector<Boundary*>;
using Interfaces = std::vector<Interface*>;
using Lines = std::vector<std::string>;
using Names = std::vector<std::string>;
using Volumes = std::vector<Volume*>;
using Zones = std::vector<int>;

/// Two bodies in a row, which touch in two faces, and one more behind them:
///
///     in | left (with the baffle inside) | upper, lower | right | skin | far | outside
///
/// `left` and `right` make the part "core", `far` the part "cover". The sides of "lower" are meshed apart.
std::unique_ptr<LocationModel> makeGeometry()
{
    using Side = TopologyBuilder::Side;
    TopologyBuilder builder;
    builder.addPart("core");
    builder.addPart("cover");
    builder.addBody("left", "core", {12, 11});
    builder.addBody("right", "core", {13});
    builder.addBody("far", "cover");
    builder.addFace("in", Side{"left", "", {{6, 0}, {5, 1}}});
    builder.addFace("baffle", Side{"left", "", {{7, 0}}}, Side{"left", "", {{7, 1}}});
    builder.addFace("upper", Side{"left", "", {{8, 0}}}, Side{"right", "", {{8, 1}}});
    builder.addFace("lower", Side{"left", "", {{9, 0}}}, Side{"right", "", {{10, 0}}});
    builder.addFace("skin", Side{"right"}, Side{"far"});
    builder.addFace("outside", Side{"far"});
    return builder.build();
}

template <class Region>
Names idsOf(const std::vector<Region*>& regions)
{
    Names ids;
    for (const Region* region : regions)
        ids.push_back(region->id());
    return ids;
}

class GeometryTest : public testing::Test {
protected:
    Volume* volume(const std::string& name, const std::string& location, VolumeType type = VolumeType::Fluid)
    {
        return physics.createVolume(name, location, type);
    }

    Interface* join(const std::string& name, Boundary* first, Boundary* second)
    {
        return physics.createInterface(name, first, second, InterfaceType::Wall);
    }

    gtm::Body* body(const std::string& id) const { return locationModel->topology()->findBodyById(id); }
    gtm::Region* region(const std::string& id) const { return locationModel->topology()->findRegionById(id); }
    gtm::Part* core() const { return locationModel->parts().front(); }
    gtm::Part* cover() const { return locationModel->parts().back(); }

    std::unique_ptr<LocationModel> locationModel = makeGeometry();
    Physics physics{locationModel.get(), false};
};

/// The two bodies in contact as two volumes, with a boundary on each side of the contact.
class ContactTest : public GeometryTest {
protected:
    Volume* hot = volume("hot", "left");
    Volume* cold = volume("cold", "right", VolumeType::Solid);
    Boundary* hotWall = hot->createBoundary("hot wall", std::string("upper, lower"), BoundaryType::Wall);
    Boundary* coldWall = cold->createBoundary("cold wall", std::string("upper, lower"), BoundaryType::Wall);
};

// ---- Bodies, faces and zones

TEST_F(GeometryTest, aVolumeHasBodiesAndZonesInTheOrderOfTheGeometry)
{
    const Volume* both = volume("both", "right, left");

    EXPECT_EQ(idsOf(both->bodies()), (Names{"left", "right"}));
    EXPECT_EQ(both->zoneIds(), (Zones{12, 11, 13}));
    EXPECT_EQ(idsOf(both->internalFaces()), (Names{"baffle", "upper", "lower"}));
    EXPECT_EQ(both->state(), State::Incomplete);
}

TEST_F(GeometryTest, facesInsideAreUnusedUntilABoundaryHasASideOfThem)
{
    Volume* both = volume("both", "left, right");
    EXPECT_EQ(idsOf(both->unusedInternalFaces()), (Names{"baffle", "upper", "lower"}));
    EXPECT_EQ(idsOf(both->unusedFaceUses()), (Names{"in@left", "skin@right"}));

    both->createBoundary("screen", std::string("in, baffle, upper@right"));

    EXPECT_EQ(idsOf(both->unusedInternalFaces()), Names{"lower"});
    EXPECT_EQ(idsOf(both->unusedFaceUses()), Names{"skin@right"});
}

TEST_F(GeometryTest, internalSettingsAreActiveWhileAFaceInsideIsUnused)
{
    Volume* both = volume("both", "left, right");
    const Settings* internal = both->internalSettings();
    EXPECT_TRUE(internal->isActive());

    Boundary* screen = both->createBoundary("screen", std::string("baffle, upper, lower"));
    EXPECT_TRUE(both->isActive());
    EXPECT_FALSE(internal->isActive());

    screen->destroy();
    EXPECT_TRUE(internal->isActive());
}

TEST_F(GeometryTest, zonesInsideAreThoseOfTheFirstSidesAndMeshesThatDifferAreReported)
{
    Volume* both = volume("both", "left, right");
    reportCreationFailures(physics);

    const PrintedText apart;
    EXPECT_EQ(both->internalZoneIds(), (Zones{7, 8, 9}));
    EXPECT_EQ(apart.text(), "Error: Non-shared meshes on internal faces in volume \"both\n");

    both->createBoundary("wall", std::string("lower"));
    const PrintedText shared;
    EXPECT_EQ(both->internalZoneIds(), (Zones{7, 8}));
    EXPECT_EQ(shared.text(), "");
}

TEST_F(GeometryTest, aBoundaryHasTheZonesOfItsSidesOnce)
{
    Volume* both = volume("both", "left, right");

    EXPECT_EQ(both->createBoundary("in", std::string("in"))->zoneIds(), (Zones{5, 6}));
    EXPECT_EQ(both->createBoundary("upper", std::string("upper"))->zoneIds(), Zones{8});
    EXPECT_EQ(both->createBoundary("lower", std::string("lower@right"))->zoneIds(), Zones{10});
}

TEST_F(ContactTest, threadsInheritZonesWhereTheirObjectIsWhole)
{
    const auto on = [](Settings* settings, int threadId) {
        return settings->createThreadBundle(0, ThreadType::Wall, threadId, {});
    };
    const ThreadBundle* ofVolume = on(hot->settings(), 1);
    const ThreadBundle* ofWall = on(coldWall->nonOverlappingBoundarySettings(), 2);
    EXPECT_EQ(ofVolume->zoneIds(), (Zones{12, 11}));
    EXPECT_EQ(ofWall->zoneIds(), (Zones{8, 10}));
    EXPECT_EQ(physics.findThreadBundleByZoneId(10), ofWall);
    EXPECT_EQ(physics.zoneIds(), (Zones{8, 10, 11, 12}));

    join("contact", hotWall, coldWall);

    EXPECT_EQ(ofWall->zoneIds(), Zones{});
    EXPECT_EQ(physics.zoneIds(), (Zones{11, 12}));
}

// ---- How boundaries meet

TEST_F(ContactTest, sidesThatMirrorEachOtherAreConnectedAsAWhole)
{
    Interface* contact = join("contact", hotWall, coldWall);

    EXPECT_EQ(contact->connectivity(), Connectivity::Total);
    EXPECT_FALSE(contact->isSliding());
    EXPECT_EQ(contact->state(), State::Valid);
    EXPECT_EQ(hotWall->hasExternalRegion(), 0);
    EXPECT_EQ(coldWall->hasExternalRegion(), 0);
}

TEST_F(ContactTest, sidesThatShareSomeFacesAreConnectedInPart)
{
    Boundary* half = cold->createBoundary("half", std::string("upper"));
    Boundary* wide = cold->createBoundary("wide", std::string("upper, lower, skin"));

    EXPECT_EQ(join("half", hotWall, half)->connectivity(), Connectivity::Partial);
    EXPECT_EQ(hotWall->hasExternalRegion(), 2);
    EXPECT_EQ(half->hasExternalRegion(), 0);
    EXPECT_EQ(join("wide", hotWall, wide)->connectivity(), Connectivity::Partial);
    EXPECT_EQ(hotWall->hasExternalRegion(), 0); // what one interface leaves, the other covers
    EXPECT_EQ(wide->hasExternalRegion(), 2);
}

TEST_F(ContactTest, sidesThatShareNoFaceSlide)
{
    Boundary* in = hot->createBoundary("in", std::string("in"));
    Boundary* skin = cold->createBoundary("skin", std::string("skin"));
    EXPECT_EQ(in->hasExternalRegion(), 1);

    const Interface* apart = join("apart", in, skin);

    EXPECT_EQ(apart->connectivity(), Connectivity::None);
    EXPECT_TRUE(apart->isSliding());
    EXPECT_EQ(in->hasExternalRegion(), 2);
}

TEST_F(ContactTest, theTwoSidesOfAFaceWithinOneVolumeMeet)
{
    Boundary* front = hot->createBoundary("front", std::string("baffle@left"));
    Boundary* back = hot->createBoundary("back", std::string("baffle@left#2"));

    const Interface* within = join("within", front, back);

    EXPECT_EQ(within->state(), State::Valid);
    EXPECT_EQ(within->connectivity(), Connectivity::Total);
    EXPECT_EQ(within->volume(Side::First), within->volume(Side::Second));
    EXPECT_EQ(front->pair(), back);
    EXPECT_TRUE(front->couldBeInternal());
}

TEST_F(ContactTest, aBoundaryIsPairedWithItsMirrorOnly)
{
    EXPECT_EQ(hotWall->pair(), coldWall);
    EXPECT_EQ(coldWall->pair(), hotWall);
    EXPECT_FALSE(hotWall->couldBeInternal());

    coldWall->relocate(std::string("upper"), false);

    EXPECT_EQ(hotWall->pair(), nullptr);
    EXPECT_EQ(coldWall->pair(), nullptr);
}

TEST_F(ContactTest, whatIsMaskedDoesNotMeetAnything)
{
    const Interface* contact = join("contact", hotWall, coldWall);

    physics.maskBodies({body("right")});
    EXPECT_TRUE(coldWall->isEmpty());
    EXPECT_FALSE(contact->isEmpty());
    EXPECT_EQ(contact->connectivity(), Connectivity::None);
    EXPECT_EQ(hotWall->hasExternalRegion(), 2);
    EXPECT_EQ(coldWall->hasExternalRegion(), 0);

    physics.maskBodies({body("left")});
    EXPECT_TRUE(contact->isEmpty());
    EXPECT_EQ(contact->connectivity(), Connectivity::Total);

    physics.unmaskParts({core()});
    EXPECT_EQ(contact->connectivity(), Connectivity::Total);
    EXPECT_EQ(idsOf(coldWall->faceUses()), (Names{"upper@right", "lower@right"}));
}

// ---- Overlaps and default places

TEST_F(ContactTest, volumesThatShareABodyOverlap)
{
    Volume* all = volume("all", "left, far");

    EXPECT_EQ(all->overlappingVolumes(), Volumes{hot});
    EXPECT_EQ(idsOf(hot->overlap(all)), Names{"left"});
    EXPECT_EQ(idsOf(cold->overlap(all)), Names{});
    EXPECT_EQ(hot->state(), State::Overlapping);
    EXPECT_FALSE(hot->isTopologyValid(true));

    all->rename("everything");

    EXPECT_EQ(hot->overlappingVolumes(), Volumes{nullptr}); // found by the name of its creation
}

TEST_F(ContactTest, boundariesThatShareASideOverlap)
{
    Boundary* top = hot->createBoundary("top", std::string("in, upper"));

    EXPECT_EQ(top->overlappingBoundaries(), Boundaries{hotWall});
    EXPECT_EQ(idsOf(top->overlap(hotWall)), Names{"upper@left"});
    EXPECT_EQ(idsOf(top->overlap(coldWall)), Names{});
    EXPECT_EQ(top->state(), State::Overlapping);
}

TEST_F(ContactTest, theDefaultVolumeTakesWhatIsLeftAndComesBackAfterItsEnd)
{
    Volume* rest = physics.createDefaultVolume("rest", VolumeType::Solid);
    EXPECT_EQ(idsOf(rest->bodies()), Names{"far"});

    cold->destroy();
    EXPECT_EQ(idsOf(rest->bodies()), (Names{"right", "far"}));

    rest->destroy();
    EXPECT_FALSE(physics.hasDefaultVolume());
    EXPECT_EQ(idsOf(physics.unusedBodies()), (Names{"right", "far"}));

    rest = physics.createDefaultVolume("again", VolumeType::Solid);
    EXPECT_EQ(rest->name(), "again");
    EXPECT_EQ(idsOf(rest->bodies()), (Names{"right", "far"}));
    EXPECT_EQ(idsOf(physics.unusedBodies()), Names{});
}

TEST_F(ContactTest, theDefaultBoundaryTakesTheOutsideThatIsLeft)
{
    Boundary* rest = hot->createDefaultBoundary("rest");
    const int id = rest->id();
    EXPECT_EQ(idsOf(rest->faceUses()), Names{"in@left"});
    EXPECT_EQ(hot->state(), State::Valid);

    hotWall->destroy();
    EXPECT_EQ(idsOf(rest->faceUses()), (Names{"in@left", "upper@left", "lower@left"}));

    rest = hot->createDefaultBoundary("other rest");
    EXPECT_EQ(rest->id(), id + 1);
    EXPECT_EQ(physics.findBoundaryById(id), nullptr);
    EXPECT_EQ(hot->boundaries(), Boundaries{rest});
    EXPECT_EQ(idsOf(rest->faceUses()), (Names{"in@left", "upper@left", "lower@left"}));
}

// ---- Restrictions

TEST_F(ContactTest, anEnforcedRelocationIntoAnotherVolumeChangesNothing)
{
    EXPECT_FALSE(hot->relocate(std::string("left, right"), true));
    EXPECT_EQ(idsOf(hot->bodies()), Names{"left"});

    EXPECT_FALSE(hot->relocate(std::string("left, right"), false));
    EXPECT_EQ(idsOf(hot->bodies()), (Names{"left", "right"}));
    EXPECT_EQ(hot->state(), State::Overlapping);

    EXPECT_TRUE(hot->relocate(std::vector<gtm::Region*>{body("far")}, true));
    EXPECT_EQ(idsOf(hot->bodies()), Names{"far"});
}

TEST_F(ContactTest, anEnforcedRelocationOntoAnotherBoundaryChangesNothing)
{
    Boundary* in = hot->createBoundary("in", std::string("in"));

    EXPECT_FALSE(in->relocate(std::string("in, upper"), true));
    EXPECT_EQ(idsOf(in->faceUses()), Names{"in@left"});

    EXPECT_FALSE(in->relocate(std::string("in, upper"), false));
    EXPECT_EQ(idsOf(in->faceUses()), (Names{"in@left", "upper@left"}));
}

TEST_F(ContactTest, anInterfaceIsMovedToOneBoundaryOnlyWithoutRestrictions)
{
    Interface* contact = join("contact", hotWall, coldWall);
    contact->setIsMeshValid(true);

    EXPECT_FALSE(contact->relocate(hotWall, hotWall, true));
    EXPECT_EQ(contact->boundary(Side::Second), coldWall);
    EXPECT_EQ(coldWall->interfaces(), Interfaces{contact});
    EXPECT_EQ(contact->state(), State::Valid);
    EXPECT_TRUE(contact->isMeshValid());

    EXPECT_FALSE(contact->relocate(hotWall, hotWall, false));
    EXPECT_EQ(contact->boundary(Side::Second), hotWall);
    EXPECT_EQ(coldWall->interfaces(), Interfaces{});
    EXPECT_EQ(contact->state(), State::InterfaceSameBoundary);
    EXPECT_FALSE(contact->isTopologyValid(true));
    EXPECT_FALSE(contact->isMeshValid());

    EXPECT_TRUE(contact->relocate(coldWall, hotWall, true));
    EXPECT_EQ(contact->state(), State::Valid);
}

TEST_F(ContactTest, withRestrictionsWhatWouldNotBeValidIsRefusedAndReported)
{
    physics.setEnforceRestrictions(true);
    reportCreationFailures(physics);
    const PrintedText printed;

    EXPECT_EQ(volume("twin", "left, far"), nullptr);
    EXPECT_EQ(physics.createVolume("twin", std::vector<gtm::Region*>{body("left"), body("far")}, VolumeType::Fluid),
              nullptr);
    EXPECT_EQ(hot->createBoundary("top", std::string("upper, nowhere")), nullptr);
    EXPECT_EQ(join("self", hotWall, hotWall), nullptr);

    EXPECT_EQ(printed.text(), "Error: Could not create volume \"twin\" at location: \"left, far\"\n"
                              "       State = " +
                                  gtm::Interior::stateAsString(gtm::Interior::State::Overlapping) +
                                  "\n"
                                  "Error: Could not create volume \"twin\" at location: {left, far}\n"
                                  "       State = " +
                                  gtm::Interior::stateAsString(gtm::Interior::State::Overlapping) +
                                  "\n"
                                  "Error: Could not create boundary \"top\" at location: \"upper, nowhere\"\n"
                                  "       State = " +
                                  gtm::Boundary::stateAsString(gtm::Boundary::State::Unresolvable) +
                                  "\n"
                                  "Error: Could not create interface \"self\" between\n"
                                  "       \"hot wall\" and \"hot wall\".       State = " +
                                  gtm::Interface::stateAsString(gtm::Interface::State::SameBoundary) + "\n");
    EXPECT_EQ(physics.volumes(), (Volumes{cold, hot}));
    EXPECT_EQ(hot->boundaries(), Boundaries{hotWall});
    EXPECT_EQ(hotWall->noOfInterfaces(), 0);
}

// ---- Taking away

TEST_F(ContactTest, regionsAreTakenOutOfVolumesAndBoundaries)
{
    Volume* spare = volume("spare", "left, far");

    EXPECT_TRUE(physics.removeRegions({body("left"), region("lower")}));

    EXPECT_TRUE(hot->isEmpty());
    EXPECT_EQ(idsOf(spare->bodies()), Names{"far"});
    EXPECT_EQ(idsOf(coldWall->faceUses()), Names{"upper@right"});
    EXPECT_FALSE(physics.removeRegions({body("left"), region("lower")}));
}

TEST_F(ContactTest, aMaskedPartLeavesEveryList)
{
    physics.setMaskedParts({cover()});
    EXPECT_EQ(physics.maskedParts(), std::vector<gtm::Part*>{cover()});
    EXPECT_EQ(idsOf(physics.maskedFaces()), Names{"outside"});
    EXPECT_EQ(idsOf(physics.maskedFaceUses()), (Names{"skin@far", "outside@far"}));
    EXPECT_EQ(idsOf(physics.unusedBodies()), Names{});

    physics.setMaskedParts({core()});
    EXPECT_EQ(physics.unmaskedParts(), std::vector<gtm::Part*>{cover()});
    EXPECT_TRUE(hot->isEmpty());
    EXPECT_EQ(hot->state(), State::Empty);

    physics.clear();
    EXPECT_EQ(idsOf(physics.maskedBodies()), Names{});
    EXPECT_EQ(idsOf(physics.unusedBodies()), (Names{"left", "right", "far"}));
}

// ---- Validity

TEST_F(ContactTest, aSetUpThatCoversItsGeometryIsValid)
{
    hot->createDefaultBoundary("hot rest");
    EXPECT_FALSE(physics.isTopologyValid(true)); // the cold side is not covered
    cold->createDefaultBoundary("cold rest");
    join("contact", hotWall, coldWall);
    EXPECT_TRUE(physics.isValid(false));

    physics.maskBodies({body("right")});

    EXPECT_EQ(cold->state(), State::Empty);
    EXPECT_FALSE(cold->isTopologyValid(false));
    EXPECT_TRUE(cold->isTopologyValid(true));
    EXPECT_FALSE(physics.isTopologyValid(false));
}

TEST_F(GeometryTest, anInternalTypeIsJudgedByWhereItsSidesLie)
{
    Volume* both = volume("both", "left, right");
    const Boundary* inside = both->createBoundary("inside", std::string("baffle"), BoundaryType::Fan);
    const Boundary* mixed = both->createBoundary("mixed", std::string("in, upper@left"), BoundaryType::Fan);

    EXPECT_EQ(inside->validate(false), Lines{});
    EXPECT_EQ(mixed->validate(false), (Lines{"The internal boundary mixed of type Fan is defined on a piece of the\n"
                                             "external boundary of volume both.\n\n"
                                             "In particular there is 1 face and1 face-side in the external "
                                             "boundary:\n\nin\n\nupper@left\n",
                                             "This problem MUST be fixed before the solution can proceed."}));
}

TEST_F(GeometryTest, facesInsideMustShareTheirMeshUnlessABoundaryHasThem)
{
    Volume* both = volume("both", "left, right");

    EXPECT_EQ(both->validate(false),
              (Lines{"The volume bothcontains internal faces which are not discretised by a single shared mesh. The "
                     "problem faces are:\n\nlower\n",
                     "This problem MUST be fixed before the solution can proceed."}));

    both->createBoundary("wall", std::string("lower"), BoundaryType::Wall);

    EXPECT_EQ(both->validate(false), Lines{});
}

} // namespace
} // namespace physics
