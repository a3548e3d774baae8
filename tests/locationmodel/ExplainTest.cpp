#include "locationmodel/Explain.h"

#include "tests/locationmodel/Exchanger.h"

namespace {

using gtm::Boundary;
using gtm::Interface;
using gtm::Interior;
using gtm::bundled::explain;

class Explain : public Exchanger {};

// Interiors

TEST_F(Explain, whatIsValidNeedsNoWords)
{
    Interior& water = interior("w", "hot");
    water.activateDefaultBoundary(true);

    EXPECT_EQ(water.state(), Interior::State::Valid);
    EXPECT_EQ(explain(water), "");
    EXPECT_EQ(explain(*water.defaultBoundary()), "");
}

TEST_F(Explain, aTermThatNamesNothingComesWithTheNearestName)
{
    const Interior& made = interior("w", "tube, colt, xyz");

    EXPECT_EQ(made.state(), Interior::State::Unresolvable);
    EXPECT_EQ(explain(made), "The term \"colt\" names nothing; did you mean \"cold\"?");
    EXPECT_EQ(made.unresolvableNames(), (Ids{"colt", "xyz"}));
    EXPECT_EQ(ids(made.bodies()), (Ids{"tube"}));
}

TEST_F(Explain, aTermThatCannotBeReadIsUnresolvable)
{
    const Interior& made = interior("w", "hot, \"cold");

    EXPECT_EQ(made.state(), Interior::State::Unresolvable);
    EXPECT_EQ(explain(made), "The term '\"cold' has an opening quote without a closing one.");
    EXPECT_EQ(made.unresolvableNames(), (Ids{"\"cold"}));
}

TEST_F(Explain, aRegionOfAnotherModelIsUnresolvable)
{
    const auto other = makeModel();

    const auto [made, state] = copy.createInterior("w", {other->bodies()[0]}, false, false);

    EXPECT_EQ(state, Interior::State::Unresolvable);
    EXPECT_EQ(explain(*made), "The region \"hot\" belongs to another location model.");
}

TEST_F(Explain, aFaceIsTheWrongKindForAnInterior)
{
    const Interior& made = interior("w", "hot, inlet");

    EXPECT_EQ(made.state(), Interior::State::Inconsistent);
    EXPECT_EQ(explain(made), "\"inlet\" is a face; an interior is made of bodies and parts.");
}

TEST_F(Explain, anInteriorWithoutBodiesIsEmpty)
{
    const Interior& made = interior("w", "spare");

    EXPECT_EQ(made.state(), Interior::State::Empty);
    EXPECT_EQ(explain(made), "The location names no body.");
}

TEST_F(Explain, anInteriorOfMaskedBodiesIsEmpty)
{
    const Interior& made = interior("w", "hot");
    copy.mask({body("hot")});

    EXPECT_EQ(made.state(), Interior::State::Empty);
    EXPECT_EQ(explain(made), "All bodies of the location are masked.");
}

TEST_F(Explain, anOverlapNamesTheNeighbour)
{
    const Interior& all = interior("all", "*");
    const Interior& water = interior("w", "water");

    EXPECT_EQ(water.state(), Interior::State::Overlapping);
    EXPECT_EQ(explain(water), "2 bodies are also in other interiors, the first of them, \"hot\", in \"all\".");
    EXPECT_EQ(all.state(), Interior::State::Overlapping);
}

TEST_F(Explain, anOverlapOfOneBodyNamesIt)
{
    interior("all", "*");

    EXPECT_EQ(explain(interior("t", "tube")), "The body \"tube\" is also in the interior \"all\".");
}

TEST_F(Explain, aMaskedBodyDoesNotOverlap)
{
    interior("one", "hot, tube");
    const Interior& two = interior("two", "tube, cold");
    copy.mask({body("tube")});

    EXPECT_EQ(two.state(), Interior::State::Incomplete);
    EXPECT_TRUE(two.overlappingInteriors().empty());
}

TEST_F(Explain, anIncompleteInteriorNamesWhatIsMissing)
{
    Interior& water = interior("w", "hot");
    EXPECT_EQ(water.state(), Interior::State::Incomplete);
    EXPECT_EQ(explain(water), "2 face uses are in no boundary, the first of them is \"inlet@hot\".");

    boundary(water, "in", "inlet");
    EXPECT_EQ(explain(water), "The face use \"hot wall@hot\" is in no boundary.");

    boundary(water, "wall", "hot wall");
    EXPECT_EQ(water.state(), Interior::State::Valid);
}

TEST_F(Explain, theDefaultInteriorIsEmptyWhenSwitchedOffOrLeftWithNothing)
{
    EXPECT_EQ(copy.defaultInterior()->state(), Interior::State::Empty);
    EXPECT_EQ(explain(*copy.defaultInterior()), "The default interior is switched off.");

    copy.activateDefaultInterior(true);
    interior("all", "*");
    EXPECT_EQ(copy.defaultInterior()->state(), Interior::State::Empty);
    EXPECT_EQ(explain(*copy.defaultInterior()), "Other interiors or the mask take every body.");
}

// Boundaries

TEST_F(Explain, aFaceThatIsNotThereComesWithTheNearestName)
{
    const Boundary& made = boundary(interior("w", "hot"), "b", "inlte");

    EXPECT_EQ(made.state(), Boundary::State::Unresolvable);
    EXPECT_EQ(explain(made), "The term \"inlte\" names nothing; did you mean \"inlet\"?");
    EXPECT_EQ(made.unresolvableNames(), (Ids{"inlte"}));
}

TEST_F(Explain, aPatternThatFindsNothingInTheInteriorIsUnresolvable)
{
    const Boundary& made = boundary(interior("w", "hot"), "b", "outlet*");

    EXPECT_EQ(made.state(), Boundary::State::Unresolvable);
    EXPECT_EQ(explain(made), "The term \"outlet*\" names nothing in the interior \"w\".");
    EXPECT_EQ(made.unresolvableNames(), (Ids{"outlet*"}));
}

TEST_F(Explain, aFaceOutsideTheInteriorIsInconsistent)
{
    const Boundary& made = boundary(interior("w", "hot"), "b", "inlet, outlet");

    EXPECT_EQ(made.state(), Boundary::State::Inconsistent);
    EXPECT_EQ(explain(made), "\"outlet\" has no face use in the interior \"w\".");
}

TEST_F(Explain, aBoundaryWithoutFaceUsesIsEmpty)
{
    const Boundary& made = boundary(interior("w", "hot"), "b", "inlet");
    copy.mask({body("hot")});

    EXPECT_EQ(made.state(), Boundary::State::Empty);
    EXPECT_EQ(explain(made), "The location leaves no face use of the interior \"w\"; look at the terms that take away "
                             "and at masked bodies.");
}

TEST_F(Explain, overlappingBoundariesNameEachOther)
{
    Interior& water = interior("w", "cold");
    const Boundary& outlets = boundary(water, "outlets", "outlet*");
    const Boundary& all = boundary(water, "all", "cold");

    EXPECT_EQ(all.state(), Boundary::State::Overlapping);
    EXPECT_EQ(explain(all),
              "2 face uses are also in other boundaries, the first of them, \"outlet@cold\", in \"outlets\".");
    EXPECT_EQ(explain(outlets),
              "2 face uses are also in other boundaries, the first of them, \"outlet@cold\", in \"all\".");
    EXPECT_EQ(explain(boundary(water, "wall", "cold wall")),
              "The face use \"cold wall@cold\" is also in the boundary \"all\".");
}

TEST_F(Explain, boundariesOfDifferentInteriorsDoNotOverlap)
{
    boundary(interior("one", "hot"), "in", "inlet");

    EXPECT_EQ(boundary(interior("two", "hot"), "in", "inlet").state(), Boundary::State::Valid);
}

TEST_F(Explain, theDefaultBoundaryIsEmptyWhenSwitchedOffOrLeftWithNothing)
{
    Interior& water = interior("w", "hot");
    EXPECT_EQ(explain(*water.defaultBoundary()), "The default boundary is switched off.");

    boundary(water, "all", "hot");
    water.activateDefaultBoundary(true);
    EXPECT_EQ(water.defaultBoundary()->state(), Boundary::State::Empty);
    EXPECT_EQ(explain(*water.defaultBoundary()), "Other boundaries take the whole surface.");
    EXPECT_FALSE(copy.isValid(false));
    EXPECT_TRUE(copy.isValid(true));
}

// Interfaces

class ExplainInterface : public Explain {
protected:
    std::string reasonFor(const std::set<Boundary*>& first, const std::set<Boundary*>& second,
                          Interface::State expected)
    {
        const Interface* made = copy.createInterface("i", first, second, false).first;
        EXPECT_EQ(made->state(), expected);
        return explain(*made);
    }

    Interior& hot = interior("hot water", "hot");
    Interior& tube = interior("metal", "tube");
    Boundary& inlet = boundary(hot, "inlet", "inlet");
    Boundary& hotWall = boundary(hot, "hot wall", "hot wall");
    Boundary& outer = boundary(tube, "outer", "hot wall");
    Boundary& inner = boundary(tube, "inner", "cold wall");
};

TEST_F(ExplainInterface, soundSidesNeedNoWords)
{
    EXPECT_EQ(reasonFor({&hotWall}, {&outer}, Interface::State::Valid), "");
    EXPECT_EQ(reasonFor({&inlet}, {&outer, &inner}, Interface::State::Valid), "");
}

TEST_F(ExplainInterface, oneBoundaryCannotBeOnBothSides)
{
    EXPECT_EQ(reasonFor({&inlet, &hotWall}, {&hotWall}, Interface::State::SameBoundary),
              "The boundary \"hot wall\" is on both sides.");
}

TEST_F(ExplainInterface, anInvalidBoundaryGivesItsOwnReason)
{
    Boundary& lost = boundary(hot, "lost", "nowhere");

    EXPECT_EQ(reasonFor({&inlet}, {&lost}, Interface::State::InconsistentBoundaries),
              "The boundary \"lost\" is not valid itself. The term \"nowhere\" names nothing; known are \"water\", "
              "\"spare\", \"hot\", \"tube\", \"cold\", \"inlet\", \"hot wall\", \"baffle\", \"cold wall\", \"outlet\", "
              "\"outlet-2\".");
}

TEST_F(ExplainInterface, boundariesThatShareAFaceUseAreInconsistent)
{
    Boundary& again = boundary(interior("copy", "hot"), "again", "inlet");

    EXPECT_EQ(reasonFor({&inlet}, {&again}, Interface::State::InconsistentBoundaries),
              "The boundaries \"inlet\" and \"again\" share the face use \"inlet@hot\".");
}

TEST_F(ExplainInterface, aSideBelongsToOneVolume)
{
    EXPECT_EQ(reasonFor({&inlet}, {&hotWall, &inner}, Interface::State::MoreThanOneVolumePerSide),
              "The second side has boundaries of two interiors, \"hot water\" and \"metal\".");
}

TEST_F(ExplainInterface, aSharedFaceDoesNotLieOnOneSideTwice)
{
    Boundary& both = boundary(hot, "both", "baffle");

    EXPECT_EQ(reasonFor({&both}, {&inlet}, Interface::State::InconsistentSharedFaces),
              "Both sides of the face \"baffle\" are on the first side of the interface.");
}

TEST_F(ExplainInterface, aSideWithoutFaceUsesIsEmpty)
{
    EXPECT_EQ(reasonFor({&inlet}, {}, Interface::State::Empty), "The second side has no face use.");

    copy.mask({body("hot")});
    EXPECT_EQ(reasonFor({&inlet}, {&outer}, Interface::State::Empty), "The first side has no face use.");
}

TEST_F(ExplainInterface, aBoundaryOfAnotherWorkingCopyIsRefusedInAnyCase)
{
    gtm::VirtualTopology other(model->topology(), "", 1);
    Interior* strange = other.createInterior("s", "hot", false, false).first;

    const auto made = copy.createInterface("i", {&inlet}, {strange->defaultBoundary()}, false);

    EXPECT_EQ(made.first, nullptr);
    EXPECT_EQ(made.second, Interface::State::InconsistentBoundaries);
    EXPECT_EQ(model->lastRefusal(), "A side of the interface has a boundary that is not of this working copy.");
    EXPECT_EQ(copy.createInterface("i", {&inlet}, {nullptr}, false).first, nullptr);
}

// Refusals

TEST_F(Explain, theLastRefusalIsKeptUntilTheNextAttempt)
{
    EXPECT_EQ(model->lastRefusal(), "");

    EXPECT_EQ(copy.createInterior("w", "colt", false, true).first, nullptr);
    EXPECT_EQ(model->lastRefusal(), "The term \"colt\" names nothing; did you mean \"cold\"?");

    Interior& water = interior("w", "cold");
    EXPECT_EQ(model->lastRefusal(), "");

    EXPECT_EQ(water.relocate("inlet", true), Interior::State::Inconsistent);
    EXPECT_EQ(model->lastRefusal(), "\"inlet\" is a face; an interior is made of bodies and parts.");
    EXPECT_EQ(water.location()->locationString(false), "cold");

    EXPECT_EQ(water.createBoundary("b", "inlet", true).first, nullptr);
    EXPECT_EQ(model->lastRefusal(), "\"inlet\" has no face use in the interior \"w\".");

    Boundary& out = boundary(water, "out", "outlet");
    EXPECT_EQ(out.relocate("outlet, !outlet", true), Boundary::State::Empty);
    EXPECT_EQ(ids(out.faceUses()), (Ids{"outlet@cold"}));
    EXPECT_EQ(model->lastRefusal(),
              "The location leaves no face use of the interior \"w\"; look at the terms that take "
              "away and at masked bodies.");
}

TEST_F(Explain, theStateOfTheLastRefusalIsKeptWithIt)
{
    EXPECT_EQ(model->lastRefusedState(), 0);

    EXPECT_EQ(copy.createInterior("w", "colt", false, true).first, nullptr);
    EXPECT_EQ(model->lastRefusedState(), 2);

    Interior& water = interior("w", "cold");
    EXPECT_EQ(model->lastRefusedState(), 0);

    EXPECT_EQ(water.createBoundary("b", "inlet", true).first, nullptr);
    EXPECT_EQ(model->lastRefusedState(), 11);
    EXPECT_EQ(water.relocate("inlet", true), Interior::State::Inconsistent);
    EXPECT_EQ(model->lastRefusedState(), 11);
    EXPECT_EQ(water.relocate("colt", false), Interior::State::Unresolvable);
    EXPECT_EQ(model->lastRefusedState(), 0);
}

TEST_F(Explain, aDefaultEntityCannotBeMoved)
{
    copy.activateDefaultInterior(true);
    Interior& rest = *copy.defaultInterior();

    EXPECT_EQ(rest.relocate("hot", false), Interior::State::Inconsistent);
    EXPECT_EQ(model->lastRefusal(), "The default interior has no location of its own; it takes what the others leave.");
    EXPECT_EQ(rest.defaultBoundary()->relocate("inlet", false), Boundary::State::Inconsistent);
    EXPECT_EQ(model->lastRefusal(), "The default boundary has no location of its own; it takes what the others leave.");
    EXPECT_FALSE(rest.remove({body("hot")}));
    EXPECT_EQ(rest.location(), nullptr);
}

} // namespace
