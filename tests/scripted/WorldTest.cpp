#include "tests/scripted/World.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using gtm::Interior;
using gtm::VirtualTopology;

/// Two bodies of one part that share a face; the first has an outer face as well.
class ScriptedWorld : public testing::Test {
protected:
    scripted::World world;
    gtm::Part* part = world.part("part");
    gtm::Body* hot = world.body("hot", part);
    gtm::Body* cold = world.body("cold", part);
    scripted::FaceWithUses outer = world.face("outer", hot);
    scripted::FaceWithUses shared = world.face("shared", hot, cold);
    std::unique_ptr<VirtualTopology> topology =
        std::make_unique<VirtualTopology>(world.model()->topology(), std::string(), 0);

    Interior* interior(const std::string& name, const std::string& location)
    {
        return topology->createInterior(name, location, false, true).first;
    }
};

TEST_F(ScriptedWorld, acceptsEveryLocation)
{
    const auto [interior, state] = topology->createInterior("a", "nonsense, hot", false, true);

    ASSERT_TRUE(interior);
    EXPECT_EQ(state, Interior::State::Valid);
    EXPECT_EQ(interior->state(), Interior::State::Valid);
    EXPECT_EQ(interior->bodies(), std::vector{hot});
    EXPECT_TRUE(interior->location()->isImplicit());
    EXPECT_EQ(interior->location()->locationString(false), "nonsense, hot");
    EXPECT_EQ(interior->location()->locationString(true), "hot");
}

TEST_F(ScriptedWorld, resolvesPartsBodiesFacesAndFaceUses)
{
    Interior* both = interior("both", "part");
    Interior* onlyHot = interior("hot", "hot");
    gtm::Boundary* faces = onlyHot->createBoundary("faces", "shared, outer", true).first;
    gtm::Boundary* uses = onlyHot->createBoundary("uses", {outer.first, nullptr}, true).first;

    EXPECT_EQ(both->bodies(), (std::vector{hot, cold}));
    EXPECT_EQ(both->internalFaces(), std::vector{shared.face});
    EXPECT_EQ(faces->faceUses(), (std::vector{outer.first, shared.first}));
    EXPECT_EQ(uses->faceUses(), std::vector{outer.first});
    EXPECT_EQ(faces->overlappingBoundaries(), std::vector{uses});
    EXPECT_EQ(both->overlappingInteriors(), std::vector{onlyHot});
    EXPECT_EQ(both->overlap(onlyHot), std::vector{hot});
}

TEST_F(ScriptedWorld, defaultOnesTakeWhatIsLeft)
{
    Interior* onlyHot = interior("hot", "hot");
    onlyHot->createBoundary("outer", "outer", true);

    topology->activateDefaultInterior(true);
    onlyHot->activateDefaultBoundary(true);

    EXPECT_EQ(topology->defaultInterior()->bodies(), std::vector{cold});
    EXPECT_EQ(onlyHot->defaultBoundary()->faceUses(), std::vector{shared.first});
    EXPECT_EQ(topology->interiors().back(), topology->defaultInterior());
    EXPECT_EQ(onlyHot->boundaries().back(), onlyHot->defaultBoundary());
    EXPECT_FALSE(topology->defaultInterior()->location());
}

TEST_F(ScriptedWorld, findsThePairOfABoundary)
{
    gtm::Boundary* hotSide = interior("hot", "hot")->createBoundary("side", "shared", true).first;
    gtm::Boundary* coldSide = interior("cold", "cold")->createBoundary("side", "shared", true).first;

    EXPECT_EQ(hotSide->pair(), coldSide);
    EXPECT_EQ(coldSide->pair(), hotSide);
    EXPECT_FALSE(hotSide->isInternal());
}

TEST_F(ScriptedWorld, givesTheAnswersThatWereSet)
{
    Interior* first = interior("first", "hot");
    gtm::Boundary* wall = first->createBoundary("wall", "outer", true).first;

    scripted::answersOf(first).state = Interior::State::Overlapping;
    scripted::answersOf(first).bodies = {cold, nullptr};
    scripted::answersOf(first).overlappingInteriors = {nullptr};
    scripted::answersOf(first).renameResult = "told";
    scripted::answersOf(wall).pair = wall;
    scripted::answersOf(wall).isInternal = true;

    EXPECT_EQ(first->state(), Interior::State::Overlapping);
    EXPECT_EQ(first->bodies(), (std::vector{cold, static_cast<gtm::Body*>(nullptr)}));
    EXPECT_EQ(first->overlappingInteriors(), std::vector<Interior*>{nullptr});
    EXPECT_EQ(first->rename("asked"), "told");
    EXPECT_EQ(first->name(), "asked");
    EXPECT_EQ(wall->pair(), wall);
    EXPECT_TRUE(wall->isInternal());
}

TEST_F(ScriptedWorld, refusesTheNextCreationOnce)
{
    world.answers().refuseNextInterior = Interior::State::Overlapping;

    const auto refused = topology->createInterior("a", "hot", false, false);
    Interior* created = interior("b", "hot");
    scripted::answersOf(created).refuseNextBoundary = gtm::Boundary::State::Empty;
    const auto refusedBoundary = created->createBoundary("wall", "outer", false);

    EXPECT_EQ(refused, std::pair(static_cast<Interior*>(nullptr), Interior::State::Overlapping));
    EXPECT_TRUE(created);
    EXPECT_EQ(refusedBoundary, std::pair(static_cast<gtm::Boundary*>(nullptr), gtm::Boundary::State::Empty));
    EXPECT_TRUE(created->createBoundary("wall", "outer", false).first);
    EXPECT_EQ(topology->interiors(), std::vector{created});
}

TEST_F(ScriptedWorld, relocatesAsTheResultSays)
{
    Interior* first = interior("first", "hot");
    scripted::answersOf(first).relocateResult = Interior::State::Inconsistent;

    EXPECT_EQ(first->relocate("cold", true), Interior::State::Inconsistent);
    EXPECT_EQ(first->bodies(), std::vector{hot});
    EXPECT_EQ(first->relocate("cold", false), Interior::State::Inconsistent);
    EXPECT_EQ(first->bodies(), std::vector{cold});
}

TEST_F(ScriptedWorld, endsInterfacesWithTheirBoundaries)
{
    Interior* first = interior("first", "hot");
    gtm::Boundary* hotSide = first->createBoundary("hot", "shared", true).first;
    gtm::Boundary* coldSide = interior("second", "cold")->createBoundary("cold", "shared", true).first;
    topology->createInterface("one", {hotSide}, {coldSide}, true);
    topology->createInterface("two", {coldSide}, {hotSide}, true);

    first->destroy();

    EXPECT_EQ(topology->noOfInterfaces(), 0U);
    EXPECT_EQ(topology->interiors().size(), 1U);
}

TEST_F(ScriptedWorld, masksBodiesWithTheirFaces)
{
    Interior* both = interior("both", "part");

    topology->mask({hot, nullptr});

    EXPECT_EQ(both->bodies(), std::vector{cold});
    EXPECT_EQ(topology->maskedFaces(), std::vector{outer.face});
    EXPECT_EQ(topology->unmaskedFaceUses(), std::vector{shared.second});
    EXPECT_EQ(topology->unusedBodies(), std::vector<gtm::Body*>{});
}

TEST_F(ScriptedWorld, recordsTheChangesAskedFor)
{
    world.takeCalls();

    Interior* first = topology->createInterior("first", {hot, nullptr}, false, true).first;
    first->createBoundary("wall", "outer", true).first->rename("roof");
    topology->setMaskedBodies({cold});
    first->destroy();
    const VirtualTopology another(world.model()->topology(), "scratch", 7);

    EXPECT_EQ(world.calls(), (std::vector<std::string>{
                                 R"(createInterior("first", [hot, null], false, true))",
                                 R"(interior "first": createBoundary("wall", "outer", true))",
                                 R"(boundary "wall": rename("roof"))",
                                 "setMaskedBodies([cold])",
                                 R"(interior "first": destroy())",
                                 R"(#1 VirtualTopology("scratch", 7))",
                             }));
}

TEST_F(ScriptedWorld, throwsInTheCallThatWasNamed)
{
    world.throwOn("createInterior", 2);

    EXPECT_NO_THROW(interior("a", "hot"));
    EXPECT_THROW(interior("b", "hot"), std::runtime_error);
    EXPECT_NO_THROW(interior("c", "hot"));
    EXPECT_EQ(topology->interiors().size(), 2U);
}

TEST_F(ScriptedWorld, changesNamesThroughTheHook)
{
    world.nameHook([](const std::string& name) { return name + "-1"; });

    Interior* first = interior("first", "hot");

    EXPECT_EQ(first->name(), "first-1");
    EXPECT_EQ(first->rename("second"), "second-1");
    EXPECT_EQ(world.interior("second-1"), first);
}

TEST_F(ScriptedWorld, judgesStatesWhenAskedTo)
{
    world.judgeStates();

    EXPECT_EQ(topology->createInterior("a", "nothing", false, true).second, Interior::State::Unresolvable);
    EXPECT_EQ(topology->createInterior("a", "outer", false, true).second, Interior::State::Inconsistent);
    EXPECT_EQ(topology->createInterior("a", std::vector<gtm::Region*>(), false, true).second, Interior::State::Empty);
    EXPECT_EQ(topology->createInterior("a", "hot", false, true).second, Interior::State::Valid);
    EXPECT_EQ(topology->createInterior("b", "part", false, true).second, Interior::State::Overlapping);
    EXPECT_EQ(world.interior("a")->state(), Interior::State::Incomplete);
    EXPECT_EQ(world.interior("a")->unresolvableNames(), std::vector<std::string>{});
    EXPECT_EQ(topology->interiors().size(), 1U);
}

TEST_F(ScriptedWorld, hasTheZonesThatWereGiven)
{
    world.zones(hot, {1, 2});
    world.sideZones(shared.second, {{5, 0}, {5, 1}});

    const gtm::TopologyMap* map = world.model()->solverZoneMap();
    ASSERT_TRUE(map);
    EXPECT_EQ(map->externalBodies(hot).size(), 2U);
    EXPECT_EQ(map->externalBodies(cold).size(), 0U);
    EXPECT_EQ(map->externalFaceSides(shared.second).at(1).sideWord, 1);
    world.withoutZoneMap();
    EXPECT_FALSE(world.model()->solverZoneMap());
}

TEST_F(ScriptedWorld, refusesARepeatedId) { EXPECT_THROW(world.body("part"), std::invalid_argument); }

} // namespace
