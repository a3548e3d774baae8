#include "importers/cad/CadDescription.h"

#include "tests/importers/cad/Listing.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using gtm::bundled::buildModel;
using gtm::bundled::CadDescription;
using gtm::bundled::CadIds;
using gtm::bundled::CadResult;
using gtm::bundled::giveIds;
using Strings = std::vector<std::string>;

CadDescription twoBodies(const std::string& first, const std::string& second)
{
    CadDescription description;
    description.bodies = {{first, 1, {}}, {second, 2, {}}};
    return description;
}

TEST(CadDescription, bodiesAndFacesWithoutNamesAreNumbered)
{
    CadDescription description = twoBodies("", "NONE");
    description.parts = {" "};
    description.faces = {{{{0, "", 1, true}}}, {{{1, "", 3, true}}}};

    const CadIds ids = giveIds(description);

    EXPECT_EQ(ids.bodies, (Strings{"body-1", "body-2"}));
    EXPECT_EQ(ids.parts, (Strings{"part-1"}));
    EXPECT_EQ(ids.faces, (Strings{"body-1/face-1", "body-2/face-3"}));
    EXPECT_TRUE(ids.notes.empty());
}

TEST(CadDescription, aSharedFaceIsCalledAfterTheFirstBodyThatNamesIt)
{
    CadDescription description = twoBodies("hot", "tube");
    description.faces = {{{{0, "", 4, true}, {1, "inside", 2, false}}}, {{{0, "", 5, true}, {1, "", 1, false}}}};

    EXPECT_EQ(giveIds(description).faces, (Strings{"tube/inside", "hot/face-5"}));
}

TEST(CadDescription, aSecondNameOfAFaceIsTold)
{
    CadDescription description = twoBodies("hot", "tube");
    description.faces = {{{{0, "wall", 1, true}, {1, "inside", 2, false}}}};

    const CadIds ids = giveIds(description);

    EXPECT_EQ(ids.faces, (Strings{"hot/wall"}));
    EXPECT_EQ(ids.notes,
              (Strings{"Face \"hot/wall\" is also named \"inside\" in body \"tube\"; that name is left out."}));
}

TEST(CadDescription, bodiesHaveTheFirstChoiceOfIdsBeforeParts)
{
    CadDescription description = twoBodies("rotor", "rotor");
    description.parts = {"rotor"};

    const CadIds ids = giveIds(description);

    EXPECT_EQ(ids.bodies, (Strings{"rotor", "rotor-2"}));
    EXPECT_EQ(ids.parts, (Strings{"rotor-3"}));
    EXPECT_EQ(ids.notes, (Strings{"Body \"rotor\" is called \"rotor-2\" here, because \"rotor\" is taken.",
                                  "Part \"rotor\" is called \"rotor-3\" here, because \"rotor\" is taken."}));
}

TEST(CadDescription, aFaceNameIsCleanedBehindTheBody)
{
    CadDescription description = twoBodies("hot", "cold");
    description.faces = {{{{0, " inlet, main", 1, true}}}};

    const CadIds ids = giveIds(description);

    EXPECT_EQ(ids.faces, (Strings{"hot/inlet_ main"}));
    EXPECT_EQ(ids.notes, (Strings{"Face \"hot/ inlet, main\" is called \"hot/inlet_ main\" here, because an id has no "
                                  "comma, no control character and no blank at its ends."}));
}

TEST(CadDescription, theModelKeepsTheOrderAndTheFirstSideIsTheOneThatTheNormalLeaves)
{
    CadDescription description = twoBodies("hot", "cold");
    description.parts = {"exchanger"};
    description.bodies[1].part = 0;
    description.faces = {{{{0, "wall", 1, false}, {1, "", 1, true}}},
                         {{{0, "inlet", 2, false}}},
                         {{{1, "baffle", 2, true}, {1, "baffle", 2, false}}}};

    const CadResult result = buildModel(description);

    EXPECT_EQ(cadtests::listingOf(*result.model), "body hot\n"
                                                  "body cold in exchanger\n"
                                                  "face hot/wall: cold | hot\n"
                                                  "face hot/inlet: hot\n"
                                                  "face cold/baffle: cold | cold\n");
}

TEST(CadDescription, notesOfTheReaderComeBeforeThoseOfTheNames)
{
    CadDescription description = twoBodies("fin", "fin");
    description.notes = {"Left out: 1 shell."};

    EXPECT_EQ(buildModel(description).notes,
              (Strings{"Left out: 1 shell.", "Body \"fin\" is called \"fin-2\" here, because \"fin\" is taken."}));
}

TEST(CadDescription, bodiesOnTheSameSideOfAFaceAreRefused)
{
    CadDescription description = twoBodies("hot", "cold");
    description.faces = {{{{0, "wall", 1, true}, {1, "", 1, true}}}};

    EXPECT_EQ(
        cadtests::messageOf([&] { buildModel(description); }),
        "of the bodies \"hot\" and \"cold\" at face \"hot/wall\", two are on the same side, so they overlap; make "
        "them disjoint, or read the file with imprinting.");
}

TEST(CadDescription, threeBodiesOnAFaceAreRefused)
{
    CadDescription description = twoBodies("hot", "cold");
    description.bodies.push_back({"tube", 3, {}});
    description.faces = {{{{0, "wall", 1, true}, {1, "", 1, false}, {2, "", 1, false}}}};

    EXPECT_EQ(
        cadtests::messageOf([&] { buildModel(description); }),
        "of the bodies \"hot\", \"cold\" and \"tube\" at face \"hot/wall\", two are on the same side, so they overlap; "
        "make them disjoint, or read the file with imprinting.");
}

} // namespace
