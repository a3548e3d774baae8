// What every location model must do: the promises of the comments in gtm/, each as a test.

#include "tests/gtm/ContractFixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using gtm::Boundary;
using gtm::Interface;
using gtm::Interior;
using Ids = std::vector<std::string>;

/// Two fluid bodies in a part, a solid one outside of it, and an empty part:
///
///     in -[ hot  |wall| tube |skin| cold ]- out        hot has a baffle inside
contract::TopologyDescription exchanger()
{
    contract::TopologyDescription description;
    description.parts = {"fluids", "spare"};
    description.bodies = {{"hot", "fluids", {1, 2}}, {"tube", "", {3}}, {"cold", "fluids", {}}};
    description.faces = {
        {"in", "hot", "", {{10, 0}}, {}}, {"wall", "hot", "tube", {{11, 0}}, {{11, 1}, {12, 0}}},
        {"skin", "tube", "cold", {}, {}}, {"out", "cold", "", {}, {}},
        {"baffle", "hot", "hot", {}, {}},
    };
    return description;
}

template <class RegionType>
Ids idsOf(const std::vector<RegionType*>& regions)
{
    Ids ids;
    for (const RegionType* region : regions) {
        ids.push_back(region->id());
    }
    return ids;
}

/// "hot:wall" for the use of the face wall by the body hot.
Ids sidesOf(const std::vector<gtm::FaceUse*>& faceUses)
{
    Ids sides;
    for (const gtm::FaceUse* faceUse : faceUses) {
        sides.push_back(faceUse->body()->id() + ":" + faceUse->face()->id());
    }
    return sides;
}

template <class Entity>
Ids namesOf(const std::vector<Entity*>& entities)
{
    Ids names;
    for (const Entity* entity : entities) {
        names.push_back(entity->name());
    }
    return names;
}

class Contract : public ::testing::Test {
protected:
    gtm::Topology& topology() const { return *contractModel->model()->topology(); }
    gtm::Body* body(const std::string& id) const { return topology().findBodyById(id); }
    gtm::Face* face(const std::string& id) const { return contractModel->face(id); }

    gtm::FaceUse* side(const std::string& faceId, const std::string& bodyId) const
    {
        gtm::FaceUse* first = face(faceId)->firstFaceUse();
        return first->body() == body(bodyId) ? first : face(faceId)->secondFaceUse();
    }

    Interior* interior(const std::string& name, const std::string& location)
    {
        return copy.createInterior(name, location, false, true).first;
    }

    std::unique_ptr<contract::ContractModel> contractModel = contract::makeContractModel(exchanger());
    gtm::VirtualTopology copy{contractModel->model()->topology(), "", 0};
};

// Topology and zones

TEST_F(Contract, partsComeInTheOrderOfTheGeometry) { EXPECT_EQ(idsOf(topology().parts()), (Ids{"fluids", "spare"})); }

TEST_F(Contract, aPartListsItsBodiesInOrder)
{
    EXPECT_EQ(idsOf(topology().parts()[0]->bodies()), (Ids{"hot", "cold"}));
    EXPECT_TRUE(topology().parts()[1]->bodies().empty());
}

TEST_F(Contract, aRegionOfEachKindIsFoundByItsId)
{
    EXPECT_EQ(topology().findRegionById("fluids"), topology().parts()[0]);
    EXPECT_EQ(topology().findRegionById("hot"), body("hot"));
    EXPECT_EQ(topology().findRegionById("wall"), face("wall"));
    EXPECT_EQ(topology().findRegionById(side("wall", "tube")->id()), side("wall", "tube"));
    EXPECT_EQ(topology().findRegionById("nothing"), nullptr);
}

TEST_F(Contract, onlyABodyIsFoundAsABody)
{
    ASSERT_NE(body("hot"), nullptr);
    EXPECT_EQ(body("hot")->id(), "hot");
    EXPECT_EQ(body("fluids"), nullptr);
    EXPECT_EQ(body("wall"), nullptr);
    EXPECT_EQ(body("nothing"), nullptr);
}

TEST_F(Contract, aFaceOfOneBodyHasOneFaceUse)
{
    EXPECT_EQ(face("in")->firstFaceUse()->body(), body("hot"));
    EXPECT_EQ(face("in")->firstFaceUse()->face(), face("in"));
    EXPECT_EQ(face("in")->firstFaceUse()->partner(), nullptr);
    EXPECT_EQ(face("in")->secondFaceUse(), nullptr);
}

TEST_F(Contract, aFaceBetweenBodiesHasTwoFaceUsesThatArePartners)
{
    gtm::FaceUse* first = face("wall")->firstFaceUse();
    gtm::FaceUse* second = face("wall")->secondFaceUse();

    EXPECT_EQ(first->body(), body("hot"));
    EXPECT_EQ(second->body(), body("tube"));
    EXPECT_EQ(first->partner(), second);
    EXPECT_EQ(second->partner(), first);
    EXPECT_NE(first->id(), second->id());
}

TEST_F(Contract, aFaceWithinABodyHasTwoFaceUsesOfIt)
{
    gtm::FaceUse* first = face("baffle")->firstFaceUse();

    EXPECT_EQ(first->body(), body("hot"));
    EXPECT_EQ(first->partner()->body(), body("hot"));
    EXPECT_NE(first->partner(), first);
}

TEST_F(Contract, zonesComeInTheOrderOfTheMap)
{
    const gtm::TopologyMap* map = contractModel->model()->solverZoneMap();
    ASSERT_NE(map, nullptr);

    const auto zones = map->externalBodies(body("hot"));
    ASSERT_EQ(zones.size(), 2U);
    EXPECT_EQ(zones[0].zoneId, 1);
    EXPECT_EQ(zones[1].zoneId, 2);
    EXPECT_TRUE(map->externalBodies(body("cold")).empty());
}

TEST_F(Contract, eachSideOfAFaceHasZonesOfItsOwn)
{
    const gtm::TopologyMap* map = contractModel->model()->solverZoneMap();
    ASSERT_NE(map, nullptr);

    const auto hot = map->externalFaceSides(side("wall", "hot"));
    const auto tube = map->externalFaceSides(side("wall", "tube"));
    ASSERT_EQ(hot.size(), 1U);
    EXPECT_EQ(hot[0].zoneId, 11);
    EXPECT_EQ(hot[0].sideWord, 0);
    ASSERT_EQ(tube.size(), 2U);
    EXPECT_EQ(tube[0].zoneId, 11);
    EXPECT_EQ(tube[0].sideWord, 1);
    EXPECT_EQ(tube[1].zoneId, 12);
    EXPECT_TRUE(map->externalFaceSides(side("out", "cold")).empty());
}

TEST_F(Contract, aModelWithoutZonesHasNoZoneMap)
{
    const auto plain = contract::makeContractModel({{}, {{"b", "", {}}}, {{"f", "b", "", {}, {}}}});

    EXPECT_EQ(plain->model()->solverZoneMap(), nullptr);
}

// Interiors

TEST_F(Contract, aNewWorkingCopyIsEmpty)
{
    EXPECT_EQ(copy.topology(), &topology());
    EXPECT_TRUE(copy.interiors().empty());
    EXPECT_TRUE(copy.interfaces().empty());
    EXPECT_EQ(copy.noOfInterfaces(), 0U);
    EXPECT_FALSE(copy.isDefaultInteriorActive());
    EXPECT_TRUE(copy.maskedBodies().empty());
    EXPECT_EQ(idsOf(copy.unusedBodies()), (Ids{"hot", "tube", "cold"}));
    EXPECT_TRUE(copy.isValid(false));
}

TEST_F(Contract, anInteriorIsMadeFromALocationString)
{
    const auto [made, state] = copy.createInterior("water", "cold, hot", false, true);

    ASSERT_NE(made, nullptr);
    EXPECT_EQ(state, Interior::State::Valid);
    EXPECT_EQ(made->name(), "water");
    EXPECT_EQ(made->virtualTopology(), &copy);
    EXPECT_FALSE(made->isDefaultInterior());
    EXPECT_EQ(idsOf(made->bodies()), (Ids{"hot", "cold"}));
    EXPECT_TRUE(made->unresolvableNames().empty());
}

TEST_F(Contract, anInteriorIsMadeFromAListOfRegions)
{
    const auto [made, state] =
        copy.createInterior("water", std::vector<gtm::Region*>{body("cold"), body("hot")}, false, true);

    ASSERT_NE(made, nullptr);
    EXPECT_EQ(state, Interior::State::Valid);
    EXPECT_EQ(idsOf(made->bodies()), (Ids{"hot", "cold"}));
}

TEST_F(Contract, aLocationStringIsKeptAsGiven)
{
    const gtm::Location* location = interior("water", "cold,  hot")->location();

    ASSERT_NE(location, nullptr);
    EXPECT_TRUE(location->isImplicit());
    EXPECT_TRUE(location->components().regions().empty());
    EXPECT_EQ(location->locationString(false), "cold,  hot");
    EXPECT_EQ(location->locationString(true), "hot, cold");
    EXPECT_EQ(idsOf(location->resolve().regions()), (Ids{"hot", "cold"}));
}

TEST_F(Contract, aListOfRegionsIsKeptInItsOrder)
{
    const Interior* made =
        copy.createInterior("water", std::vector<gtm::Region*>{body("cold"), body("hot")}, false, true).first;
    ASSERT_NE(made, nullptr);
    const gtm::Location* location = made->location();

    ASSERT_NE(location, nullptr);
    EXPECT_FALSE(location->isImplicit());
    EXPECT_EQ(idsOf(location->components().regions()), (Ids{"cold", "hot"}));
    EXPECT_EQ(location->locationString(false), "cold, hot");
    EXPECT_EQ(idsOf(location->resolve().regions()), (Ids{"hot", "cold"}));
}

TEST_F(Contract, interiorsComeInTheOrderOfTheirCreation)
{
    interior("z", "hot");
    interior("a", "tube");

    EXPECT_EQ(namesOf(copy.interiors()), (Ids{"z", "a"}));
}

TEST_F(Contract, renameReturnsTheNameThatTheEntityHasAfterwards)
{
    Interior* water = interior("water", "hot");
    Boundary* in = water->createBoundary("in", "in", true).first;
    Boundary* wall = water->createBoundary("wall", "wall", true).first;
    Interface* contact = copy.createInterface("contact", {in}, {wall}, false).first;

    const std::string oil = water->rename("oil");
    const std::string inlet = in->rename("inlet");
    const std::string link = contact->rename("link");

    EXPECT_EQ(oil, water->name());
    EXPECT_EQ(inlet, in->name());
    EXPECT_EQ(link, contact->name());
    EXPECT_EQ(water->name(), "oil");
    EXPECT_EQ(in->name(), "inlet");
    EXPECT_EQ(contact->name(), "link");
}

TEST_F(Contract, aRelocatedInteriorStandsForOtherBodies)
{
    Interior* water = interior("water", "hot");

    EXPECT_EQ(water->relocate("cold", true), Interior::State::Valid);
    EXPECT_EQ(idsOf(water->bodies()), (Ids{"cold"}));
    EXPECT_EQ(water->location()->locationString(false), "cold");

    EXPECT_EQ(water->relocate(std::vector<gtm::Region*>{body("tube")}, true), Interior::State::Valid);
    EXPECT_EQ(idsOf(water->bodies()), (Ids{"tube"}));
    EXPECT_FALSE(water->location()->isImplicit());
}

TEST_F(Contract, aDestroyedInteriorIsListedNoMore)
{
    Interior* water = interior("water", "hot");
    interior("metal", "tube");

    water->destroy();

    EXPECT_EQ(namesOf(copy.interiors()), (Ids{"metal"}));
    EXPECT_EQ(idsOf(copy.unusedBodies()), (Ids{"hot", "cold"}));
}

TEST_F(Contract, noOverlapIsFoundWithNothing)
{
    Interior* water = interior("water", "hot");
    Boundary* in = water->createBoundary("in", "in", true).first;

    EXPECT_TRUE(water->overlap(nullptr).empty());
    EXPECT_TRUE(in->overlap(nullptr).empty());
    EXPECT_TRUE(water->overlappingInteriors().empty());
    EXPECT_TRUE(in->overlappingBoundaries().empty());
}

// Default interior

TEST_F(Contract, theDefaultInteriorIsListedLastAndOnlyWhenActive)
{
    ASSERT_NE(copy.defaultInterior(), nullptr);
    EXPECT_TRUE(copy.defaultInterior()->isDefaultInterior());

    copy.activateDefaultInterior(true);
    copy.defaultInterior()->rename("rest");
    interior("water", "hot");

    EXPECT_TRUE(copy.isDefaultInteriorActive());
    EXPECT_EQ(namesOf(copy.interiors()), (Ids{"water", "rest"}));

    copy.activateDefaultInterior(false);

    EXPECT_FALSE(copy.isDefaultInteriorActive());
    EXPECT_EQ(namesOf(copy.interiors()), (Ids{"water"}));
}

TEST_F(Contract, theDefaultInteriorStaysTheSameObject)
{
    const Interior* before = copy.defaultInterior();

    copy.activateDefaultInterior(true);
    copy.activateDefaultInterior(false);
    copy.clear();

    EXPECT_EQ(copy.defaultInterior(), before);
}

TEST_F(Contract, theDefaultInteriorTakesEveryUnmaskedBodyThatNoOtherUses)
{
    copy.activateDefaultInterior(true);
    const Interior* rest = copy.defaultInterior();

    EXPECT_EQ(idsOf(rest->bodies()), (Ids{"hot", "tube", "cold"}));

    Interior* water = interior("water", "hot");
    EXPECT_EQ(idsOf(rest->bodies()), (Ids{"tube", "cold"}));

    copy.mask({body("tube")});
    EXPECT_EQ(idsOf(rest->bodies()), (Ids{"cold"}));

    water->destroy();
    EXPECT_EQ(idsOf(rest->bodies()), (Ids{"hot", "cold"}));
    EXPECT_TRUE(copy.unusedBodies().empty());
}

// Boundaries

TEST_F(Contract, aBoundaryIsMadeFromALocationString)
{
    Interior* water = interior("water", "hot");

    const auto [made, state] = water->createBoundary("surface", "wall, in", true);

    ASSERT_NE(made, nullptr);
    EXPECT_EQ(state, Boundary::State::Valid);
    EXPECT_EQ(made->state(), Boundary::State::Valid);
    EXPECT_EQ(made->name(), "surface");
    EXPECT_EQ(made->interior(), water);
    EXPECT_FALSE(made->isDefaultBoundary());
    EXPECT_EQ(sidesOf(made->faceUses()), (Ids{"hot:in", "hot:wall"}));
    EXPECT_TRUE(made->location()->isImplicit());
    EXPECT_EQ(made->location()->locationString(false), "wall, in");
}

TEST_F(Contract, aBoundaryIsMadeFromAListOfRegions)
{
    Interior* water = interior("water", "hot");

    const auto [made, state] =
        water->createBoundary("surface", std::vector<gtm::Region*>{side("wall", "hot"), face("in")}, true);

    ASSERT_NE(made, nullptr);
    EXPECT_EQ(state, Boundary::State::Valid);
    EXPECT_EQ(sidesOf(made->faceUses()), (Ids{"hot:in", "hot:wall"}));
    EXPECT_FALSE(made->location()->isImplicit());
    EXPECT_EQ(made->location()->components().regions(), (std::vector<gtm::Region*>{side("wall", "hot"), face("in")}));
}

TEST_F(Contract, aFaceStandsForItsSideInTheInterior)
{
    Interior* metal = interior("metal", "tube");

    const Boundary* wall = metal->createBoundary("wall", "wall", true).first;

    ASSERT_NE(wall, nullptr);
    EXPECT_EQ(sidesOf(wall->faceUses()), (Ids{"tube:wall"}));
}

TEST_F(Contract, boundariesComeInTheOrderOfTheirCreationTheDefaultOneLast)
{
    Interior* water = interior("water", "hot");
    water->activateDefaultBoundary(true);
    water->defaultBoundary()->rename("rest");
    water->createBoundary("z", "wall", true);
    water->createBoundary("a", "in", true);

    EXPECT_EQ(namesOf(water->boundaries()), (Ids{"z", "a", "rest"}));

    water->activateDefaultBoundary(false);

    EXPECT_EQ(namesOf(water->boundaries()), (Ids{"z", "a"}));
}

TEST_F(Contract, theDefaultBoundaryTakesWhatNoOtherTakes)
{
    Interior* water = interior("water", "hot");
    ASSERT_NE(water->defaultBoundary(), nullptr);
    EXPECT_FALSE(water->isDefaultBoundaryActive());

    water->activateDefaultBoundary(true);

    EXPECT_TRUE(water->isDefaultBoundaryActive());
    EXPECT_TRUE(water->defaultBoundary()->isDefaultBoundary());
    EXPECT_EQ(water->defaultBoundary()->interior(), water);
    EXPECT_EQ(sidesOf(water->defaultBoundary()->faceUses()), (Ids{"hot:in", "hot:wall"}));

    Boundary* in = water->createBoundary("in", "in", true).first;
    EXPECT_EQ(sidesOf(water->defaultBoundary()->faceUses()), (Ids{"hot:wall"}));

    in->destroy();
    EXPECT_EQ(sidesOf(water->defaultBoundary()->faceUses()), (Ids{"hot:in", "hot:wall"}));
}

TEST_F(Contract, unusedFaceUsesLookOutwardAndAreInNoBoundary)
{
    Interior* water = interior("water", "hot");
    EXPECT_EQ(sidesOf(water->unusedFaceUses()), (Ids{"hot:in", "hot:wall"}));

    water->createBoundary("in", "in", true);
    EXPECT_EQ(sidesOf(water->unusedFaceUses()), (Ids{"hot:wall"}));

    water->activateDefaultBoundary(true);
    EXPECT_TRUE(water->unusedFaceUses().empty());
}

TEST_F(Contract, internalFacesHaveBothSidesInTheInterior)
{
    Interior* all = interior("all", "hot, tube");

    EXPECT_EQ(idsOf(all->internalFaces()), (Ids{"wall", "baffle"}));
    EXPECT_EQ(idsOf(all->unusedInternalFaces()), (Ids{"wall", "baffle"}));
    EXPECT_EQ(sidesOf(all->unusedFaceUses()), (Ids{"hot:in", "tube:skin"}));
}

TEST_F(Contract, anInternalFaceIsUsedWhenABoundaryHasOneOfItsSides)
{
    Interior* water = interior("water", "hot");

    Boundary* baffle =
        water->createBoundary("baffle", std::vector<gtm::Region*>{face("baffle")->firstFaceUse()}, true).first;

    ASSERT_NE(baffle, nullptr);
    EXPECT_TRUE(baffle->isInternal());
    EXPECT_EQ(idsOf(water->internalFaces()), (Ids{"baffle"}));
    EXPECT_TRUE(water->unusedInternalFaces().empty());
}

TEST_F(Contract, anOutwardBoundaryIsNotInternal)
{
    EXPECT_FALSE(interior("water", "hot")->createBoundary("in", "in", true).first->isInternal());
}

TEST_F(Contract, thePairOfABoundaryIsMadeOfItsPartners)
{
    Interior* water = interior("water", "hot");
    Interior* metal = interior("metal", "tube");
    Boundary* in = water->createBoundary("in", "in", true).first;
    Boundary* fromWater = water->createBoundary("wall", "wall", true).first;
    EXPECT_EQ(fromWater->pair(), nullptr);

    Boundary* fromMetal = metal->createBoundary("wall", "wall", true).first;

    EXPECT_EQ(fromWater->pair(), fromMetal);
    EXPECT_EQ(fromMetal->pair(), fromWater);
    EXPECT_EQ(in->pair(), nullptr);

    fromMetal->relocate("wall, skin", true);
    EXPECT_EQ(fromWater->pair(), nullptr);
}

TEST_F(Contract, aRelocatedBoundaryStandsForOtherFaceUses)
{
    Interior* water = interior("water", "hot");
    Boundary* boundary = water->createBoundary("b", "in", true).first;

    EXPECT_EQ(boundary->relocate("wall", true), Boundary::State::Valid);
    EXPECT_EQ(sidesOf(boundary->faceUses()), (Ids{"hot:wall"}));

    EXPECT_EQ(boundary->relocate(std::vector<gtm::Region*>{face("in")}, true), Boundary::State::Valid);
    EXPECT_EQ(sidesOf(boundary->faceUses()), (Ids{"hot:in"}));
}

TEST_F(Contract, removeTakesListedRegionsOutAndSaysWhetherItDid)
{
    Interior* water =
        copy.createInterior("water", std::vector<gtm::Region*>{body("hot"), body("cold")}, false, true).first;
    Boundary* boundary = water->createBoundary("b", std::vector<gtm::Region*>{face("in"), face("out")}, true).first;

    EXPECT_FALSE(water->remove({body("tube")}));
    EXPECT_FALSE(boundary->remove({face("skin")}));
    EXPECT_EQ(idsOf(water->bodies()), (Ids{"hot", "cold"}));

    EXPECT_TRUE(boundary->remove({face("out")}));
    EXPECT_TRUE(water->remove({body("cold")}));
    EXPECT_EQ(sidesOf(boundary->faceUses()), (Ids{"hot:in"}));
    EXPECT_EQ(idsOf(water->bodies()), (Ids{"hot"}));
    EXPECT_FALSE(water->remove({body("cold")}));
}

TEST_F(Contract, aDestroyedBoundaryIsListedNoMore)
{
    Interior* water = interior("water", "hot");
    Boundary* in = water->createBoundary("in", "in", true).first;
    water->createBoundary("wall", "wall", true);

    in->destroy();

    EXPECT_EQ(namesOf(water->boundaries()), (Ids{"wall"}));
}

// Interfaces

class ContractInterface : public Contract {
protected:
    Interior* water = interior("water", "hot");
    Interior* metal = interior("metal", "tube");
    Boundary* fromWater = water->createBoundary("wall", "wall", true).first;
    Boundary* fromMetal = metal->createBoundary("wall", "wall", true).first;
    Boundary* skin = metal->createBoundary("skin", "skin", true).first;
};

TEST_F(ContractInterface, anInterfaceKeepsItsSides)
{
    const auto [made, state] = copy.createInterface("contact", {fromWater}, {fromMetal, skin}, true);

    ASSERT_NE(made, nullptr);
    EXPECT_EQ(state, Interface::State::Valid);
    EXPECT_EQ(made->state(), Interface::State::Valid);
    EXPECT_EQ(made->name(), "contact");
    EXPECT_EQ(made->sides(), (Interface::Sides{{fromWater}, {fromMetal, skin}}));
}

TEST_F(ContractInterface, interfacesComeInTheOrderOfTheirCreation)
{
    copy.createInterface("z", {fromWater}, {fromMetal}, true);
    copy.createInterface("a", {fromWater}, {skin}, true);

    EXPECT_EQ(namesOf(copy.interfaces()), (Ids{"z", "a"}));
    EXPECT_EQ(copy.noOfInterfaces(), 2U);
}

TEST_F(ContractInterface, aRelocatedInterfaceHasOtherSides)
{
    Interface* contact = copy.createInterface("contact", {fromWater}, {fromMetal}, true).first;

    EXPECT_EQ(contact->relocate({{skin}, {fromWater}}, true), Interface::State::Valid);

    EXPECT_EQ(contact->sides(), (Interface::Sides{{skin}, {fromWater}}));
    fromMetal->destroy();
    EXPECT_EQ(copy.noOfInterfaces(), 1U);
}

TEST_F(ContractInterface, aDestroyedInterfaceLeavesItsBoundaries)
{
    Interface* contact = copy.createInterface("contact", {fromWater}, {fromMetal}, true).first;

    contact->destroy();

    EXPECT_EQ(copy.noOfInterfaces(), 0U);
    EXPECT_EQ(namesOf(water->boundaries()), (Ids{"wall"}));
    EXPECT_EQ(namesOf(metal->boundaries()), (Ids{"wall", "skin"}));
}

TEST_F(ContractInterface, aBoundaryTakesItsInterfacesWithIt)
{
    copy.createInterface("one", {fromWater}, {fromMetal}, true);
    copy.createInterface("two", {fromWater}, {skin}, true);

    fromMetal->destroy();

    EXPECT_EQ(namesOf(copy.interfaces()), (Ids{"two"}));
}

TEST_F(ContractInterface, anInteriorTakesTheInterfacesOfItsBoundariesWithIt)
{
    copy.createInterface("one", {fromWater}, {fromMetal}, true);

    water->destroy();

    EXPECT_EQ(copy.noOfInterfaces(), 0U);
    EXPECT_EQ(namesOf(metal->boundaries()), (Ids{"wall", "skin"}));
}

// Mask

TEST_F(Contract, maskAddsUnmaskTakesOutAndSetReplaces)
{
    copy.mask({body("hot")});
    copy.mask({body("cold"), body("hot")});
    EXPECT_EQ(idsOf(copy.maskedBodies()), (Ids{"hot", "cold"}));
    EXPECT_EQ(idsOf(copy.unmaskedBodies()), (Ids{"tube"}));

    copy.unmask({body("hot"), body("tube")});
    EXPECT_EQ(idsOf(copy.maskedBodies()), (Ids{"cold"}));

    copy.setMaskedBodies({body("tube"), body("hot")});
    EXPECT_EQ(idsOf(copy.maskedBodies()), (Ids{"hot", "tube"}));

    copy.setMaskedBodies({});
    EXPECT_TRUE(copy.maskedBodies().empty());
}

TEST_F(Contract, aFaceUseIsMaskedWithItsBodyAndAFaceWithAllItsFaceUses)
{
    copy.mask({body("hot")});

    EXPECT_TRUE(copy.isMasked(body("hot")));
    EXPECT_FALSE(copy.isMasked(body("tube")));
    EXPECT_TRUE(copy.isMasked(side("wall", "hot")));
    EXPECT_FALSE(copy.isMasked(side("wall", "tube")));
    EXPECT_TRUE(copy.isMasked(face("in")));
    EXPECT_FALSE(copy.isMasked(face("wall")));

    copy.mask({body("tube")});

    EXPECT_TRUE(copy.isMasked(face("wall")));
}

TEST_F(Contract, maskedAndUnmaskedListsShareOutTheTopology)
{
    copy.mask({body("hot")});

    EXPECT_EQ(idsOf(copy.maskedFaces()), (Ids{"in", "baffle"}));
    EXPECT_EQ(idsOf(copy.unmaskedFaces()), (Ids{"wall", "skin", "out"}));
    EXPECT_EQ(sidesOf(copy.maskedFaceUses()), (Ids{"hot:in", "hot:wall", "hot:baffle", "hot:baffle"}));
    EXPECT_EQ(sidesOf(copy.unmaskedFaceUses()), (Ids{"tube:wall", "tube:skin", "cold:skin", "cold:out"}));
}

TEST_F(Contract, aMaskedBodyIsAbsentUntilItIsUnmasked)
{
    Interior* water = interior("water", "hot, cold");
    Boundary* surface = water->createBoundary("surface", "in, out", true).first;

    copy.mask({body("hot")});

    EXPECT_EQ(idsOf(water->bodies()), (Ids{"cold"}));
    EXPECT_EQ(sidesOf(surface->faceUses()), (Ids{"cold:out"}));
    EXPECT_EQ(sidesOf(water->unusedFaceUses()), (Ids{"cold:skin"}));
    EXPECT_EQ(idsOf(copy.unusedBodies()), (Ids{"tube"}));

    copy.unmask({body("hot")});

    EXPECT_EQ(idsOf(water->bodies()), (Ids{"hot", "cold"}));
    EXPECT_EQ(sidesOf(surface->faceUses()), (Ids{"hot:in", "cold:out"}));
}

// The whole working copy

TEST_F(Contract, clearLeavesNothingBehind)
{
    Interior* water = interior("water", "hot");
    Boundary* in = water->createBoundary("in", "in", true).first;
    Boundary* wall = water->createBoundary("wall", "wall", true).first;
    copy.createInterface("contact", {in}, {wall}, false);
    copy.activateDefaultInterior(true);
    copy.defaultInterior()->createBoundary("skin", "skin", false);
    copy.defaultInterior()->activateDefaultBoundary(true);
    copy.mask({body("cold")});

    copy.clear();

    EXPECT_TRUE(copy.interiors().empty());
    EXPECT_TRUE(copy.interfaces().empty());
    EXPECT_FALSE(copy.isDefaultInteriorActive());
    EXPECT_TRUE(copy.defaultInterior()->boundaries().empty());
    EXPECT_TRUE(copy.maskedBodies().empty());
    EXPECT_EQ(idsOf(copy.unusedBodies()), (Ids{"hot", "tube", "cold"}));
}

TEST_F(Contract, aClearedWorkingCopyCanBeFilledAgain)
{
    interior("water", "hot");

    copy.clear();
    Interior* again = interior("water", "hot");

    ASSERT_NE(again, nullptr);
    EXPECT_EQ(idsOf(again->bodies()), (Ids{"hot"}));
    EXPECT_EQ(namesOf(copy.interiors()), (Ids{"water"}));
}

TEST_F(Contract, twoWorkingCopiesDoNotSeeEachOther)
{
    gtm::VirtualTopology other(&topology(), "other", 1);
    interior("water", "hot");
    copy.mask({body("cold")});

    EXPECT_TRUE(other.interiors().empty());
    EXPECT_TRUE(other.maskedBodies().empty());
    EXPECT_NE(other.createInterior("water", "hot", false, true).first, nullptr);
}

TEST_F(Contract, aCompleteSetUpIsValid)
{
    Interior* water = interior("water", "hot");
    water->createBoundary("in", "in", true);
    water->activateDefaultBoundary(true);

    EXPECT_EQ(water->state(), Interior::State::Valid);
    EXPECT_EQ(water->defaultBoundary()->state(), Boundary::State::Valid);
    EXPECT_TRUE(copy.isValid(false));
}

TEST_F(Contract, everyStateHasAText)
{
    EXPECT_NE(Interior::stateAsString(Interior::State::Overlapping), "");
    EXPECT_NE(Boundary::stateAsString(Boundary::State::Unresolvable), "");
    EXPECT_NE(Interface::stateAsString(Interface::State::InconsistentSharedFaces), "");
}

} // namespace
