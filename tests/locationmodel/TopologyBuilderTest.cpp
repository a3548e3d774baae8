#include "locationmodel/TopologyBuilder.h"

#include "gtm/LocationModel.h"
#include "locationmodel/LocationModel.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace {

using gtm::bundled::TopologyBuilder;
using gtm::bundled::TopologyError;
using Side = TopologyBuilder::Side;

std::string refusalOf(const std::function<void()>& step)
{
    try {
        step();
    } catch (const TopologyError& error) {
        return error.what();
    }
    return "no error";
}

TEST(TopologyBuilder, regionsKeepTheOrderInWhichTheyWereAdded)
{
    TopologyBuilder builder;
    builder.addPart("z");
    builder.addPart("a");
    builder.addBody("y", "z");
    builder.addBody("x");
    builder.addBody("b", "z");
    builder.addFace("g", {"x", "", {}}, Side{"y", "", {}});
    builder.addFace("f", {"y", "", {}});

    const auto model = builder.build();

    ASSERT_EQ(model->parts().size(), 2U);
    EXPECT_EQ(model->parts()[0]->id(), "z");
    ASSERT_EQ(model->parts()[0]->bodies().size(), 2U);
    EXPECT_EQ(model->parts()[0]->bodies()[1]->id(), "b");
    ASSERT_EQ(model->bodies().size(), 3U);
    EXPECT_EQ(model->bodies()[0]->id(), "y");
    EXPECT_EQ(model->part(model->bodies()[0]), model->parts()[0]);
    EXPECT_EQ(model->part(model->bodies()[1]), nullptr);
    ASSERT_EQ(model->faces().size(), 2U);
    EXPECT_EQ(model->faces()[0]->id(), "g");
    ASSERT_EQ(model->faceUses().size(), 3U);
    EXPECT_EQ(model->faceUses()[1]->id(), "g@y");
    EXPECT_EQ(model->faceUses(model->bodies()[0]),
              (std::vector<gtm::FaceUse*>{model->faceUses()[1], model->faceUses()[2]}));
}

TEST(TopologyBuilder, faceUsesGetAnIdWhenNoneIsGiven)
{
    TopologyBuilder builder;
    builder.addBody("b");
    builder.addFace("f", {"b", "", {}}, Side{"b", "", {}});
    builder.addFace("g", {"b", "left", {}}, Side{"b", "right", {}});

    const auto model = builder.build();

    EXPECT_EQ(model->faces()[0]->firstFaceUse()->id(), "f@b");
    EXPECT_EQ(model->faces()[0]->secondFaceUse()->id(), "f@b#2");
    EXPECT_EQ(model->faces()[1]->firstFaceUse()->id(), "left");
    EXPECT_EQ(model->faces()[1]->secondFaceUse()->id(), "right");
}

TEST(TopologyBuilder, anyZoneMakesAZoneMap)
{
    TopologyBuilder builder;
    builder.addBody("b");
    builder.addFace("f", {"b", "", {{3, 1}}});
    const auto model = builder.build();

    ASSERT_NE(model->solverZoneMap(), nullptr);
    EXPECT_TRUE(model->solverZoneMap()->externalBodies(model->bodies()[0]).empty());
    EXPECT_EQ(model->solverZoneMap()->externalFaceSides(model->faceUses()[0])[0].zoneId, 3);
    EXPECT_TRUE(model->solverZoneMap()->externalBodies(nullptr).empty());
    EXPECT_TRUE(model->solverZoneMap()->externalFaceSides(nullptr).empty());
}

TEST(TopologyBuilder, theBuilderIsEmptyAfterwards)
{
    TopologyBuilder builder;
    builder.addBody("b", "", {1});
    builder.build();

    builder.addBody("b");
    const auto second = builder.build();

    EXPECT_EQ(second->bodies().size(), 1U);
    EXPECT_EQ(second->solverZoneMap(), nullptr);
}

TEST(TopologyBuilder, aRefusedStepChangesNothing)
{
    TopologyBuilder builder;
    builder.addBody("b");

    EXPECT_NE(refusalOf([&] { builder.addFace("f", {"b", "", {{1, 0}}}, Side{"c", "", {}}); }), "no error");
    EXPECT_NE(refusalOf([&] { builder.addFace("f", {"b", "x", {}}, Side{"b", "x", {}}); }), "no error");
    EXPECT_NE(refusalOf([&] { builder.addBody("c", "p", {1}); }), "no error");

    builder.addBody("c");
    builder.addFace("f", {"b", "x", {}});
    const auto model = builder.build();
    EXPECT_EQ(model->bodies().size(), 2U);
    EXPECT_EQ(model->faceUses().size(), 1U);
    EXPECT_EQ(model->solverZoneMap(), nullptr);
}

TEST(TopologyBuilder, anUnknownReferenceComesWithTheNearestName)
{
    TopologyBuilder builder;
    builder.addPart("rotor");
    builder.addBody("blade");

    EXPECT_EQ(refusalOf([&] { builder.addBody("hub", "roter"); }),
              "The body \"hub\" refers to the part \"roter\", which does not exist; did you mean \"rotor\"?");
    EXPECT_EQ(refusalOf([&] {
                  builder.addFace("f", {"blad", "", {}});
              }),
              "The face \"f\" refers to the body \"blad\", which does not exist; did you mean \"blade\"?");
    EXPECT_EQ(refusalOf([&] {
                  builder.addFace("f", {"rotor", "", {}});
              }),
              "The face \"f\" refers to the body \"rotor\", which does not exist; the only known one is \"blade\".");
    EXPECT_EQ(refusalOf([&] {
                  builder.addFace("f", {"", "", {}});
              }),
              "The face \"f\" has a side without a body; name the body that it bounds.");
}

TEST(TopologyBuilder, anIdMustBeFitForALocation)
{
    const auto refusal = [](const std::string& id) { return refusalOf([&] { TopologyBuilder().addPart(id); }); };

    EXPECT_EQ(refusal(""), "The id \"\" of a part is empty; give it another id.");
    EXPECT_EQ(refusal("a,b"),
              "The id \"a,b\" of a part has a comma, which separates the terms of a location; give it another id.");
    EXPECT_EQ(refusal("a\tb"),
              "The id \"a?b\" of a part has a line end or another control character; give it another id.");
    EXPECT_EQ(refusal(" a"), "The id \" a\" of a part begins or ends with a blank; give it another id.");
    EXPECT_EQ(refusal("a "), "The id \"a \" of a part begins or ends with a blank; give it another id.");
    EXPECT_EQ(refusal("a b/\"*?!\xC3\xA9"), "no error");
}

TEST(TopologyBuilder, anIdNamesOneRegionOnly)
{
    TopologyBuilder builder;
    builder.addPart("p");
    builder.addBody("b");
    builder.addFace("f", {"b", "", {}});

    EXPECT_EQ(refusalOf([&] { builder.addBody("p"); }),
              "The id \"p\" of a body is already the id of a part; every region needs an id of its own.");
    EXPECT_EQ(refusalOf([&] { builder.addPart("f@b"); }),
              "The id \"f@b\" of a part is already the id of a face use; every region needs an id of its own.");
    EXPECT_EQ(refusalOf([&] {
                  builder.addFace("g", {"b", "f", {}});
              }),
              "The id \"f\" of a face use is already the id of a face; every region needs an id of its own.");
    EXPECT_EQ(refusalOf([&] {
                  builder.addFace("g", {"b", "g", {}});
              }),
              "The id \"g\" is given to two regions of one face; every region needs an id of its own.");
}

} // namespace
