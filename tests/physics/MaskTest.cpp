#include "tests/physics/PhysicsCase.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using Bodies = std::vector<gtm::Body*>;
using Parts = std::vector<gtm::Part*>;

class MaskTest : public PhysicsCase {
protected:
    MaskTest() { calls(); }
};

TEST_F(MaskTest, ofBodiesIsKeptByTheLocationModel)
{
    physics.maskBodies({left, far});
    physics.unmaskBodies({far, right});
    physics.setMaskedBodies({right, left});

    EXPECT_EQ(calls(), (Calls{"mask([left, far])", "unmask([far, right])", "setMaskedBodies([right, left])"}));
    EXPECT_EQ(physics.maskedBodies(), (Bodies{left, right}));
    EXPECT_EQ(physics.unmaskedBodies(), (Bodies{far, loose}));
}

TEST_F(MaskTest, coversFacesAndFaceUses)
{
    physics.maskBodies({left});

    EXPECT_TRUE(physics.isMasked(left));
    EXPECT_FALSE(physics.isMasked(right));
    EXPECT_TRUE(physics.isMasked(inlet.face));
    EXPECT_FALSE(physics.isMasked(middle.face));
    EXPECT_TRUE(physics.isMasked(middle.first));
    EXPECT_FALSE(physics.isMasked(middle.second));
    EXPECT_EQ(physics.maskedFaces(), std::vector{inlet.face});
    EXPECT_EQ(physics.unmaskedFaces(), (std::vector{middle.face, outlet.face, casing.face}));
    EXPECT_EQ(physics.maskedFaceUses(), (std::vector{inlet.first, middle.first}));
    EXPECT_EQ(physics.unmaskedFaceUses(), (std::vector{middle.second, outlet.first, casing.first}));
}

TEST_F(MaskTest, takesPartsOnePartAtATime)
{
    physics.maskParts({rotor, spare, stator});
    physics.unmaskParts({stator, rotor});

    EXPECT_EQ(calls(),
              (Calls{"mask([left, right])", "mask([])", "mask([far])", "unmask([far])", "unmask([left, right])"}));
}

TEST_F(MaskTest, isReplacedByPartsAtOnceWithRepeats)
{
    physics.maskBodies({loose});
    calls();

    physics.setMaskedParts({stator, rotor, stator});

    EXPECT_EQ(calls(), (Calls{"setMaskedBodies([far, left, right, far])"}));
    EXPECT_EQ(physics.maskedBodies(), (Bodies{left, right, far}));
}

TEST_F(MaskTest, isClearedByNoParts)
{
    physics.maskBodies({left, loose});

    physics.setMaskedParts({});

    EXPECT_EQ(physics.maskedBodies(), Bodies{});
}

TEST_F(MaskTest, coversAPartWhenItCoversAllItsBodies)
{
    physics.maskBodies({left});
    EXPECT_FALSE(physics.isMasked(rotor));
    EXPECT_EQ(physics.maskedParts(), Parts{});

    physics.maskBodies({right});

    EXPECT_TRUE(physics.isMasked(rotor));
    EXPECT_EQ(physics.maskedParts(), Parts{rotor});
    EXPECT_EQ(physics.unmaskedParts(), (Parts{stator, spare}));
}

TEST_F(MaskTest, neverCoversAPartWithoutBodies)
{
    physics.maskParts({rotor, stator, spare});

    EXPECT_FALSE(physics.isMasked(spare));
    EXPECT_EQ(physics.unmaskedParts(), Parts{spare});
}

TEST_F(MaskTest, passesOverMissingPartsAndBodies)
{
    physics.maskParts({nullptr, stator});
    EXPECT_EQ(physics.maskedBodies(), Bodies{far});

    physics.setMaskedParts({nullptr, rotor});
    physics.unmaskParts({nullptr});

    EXPECT_EQ(physics.maskedBodies(), (Bodies{left, right}));
    EXPECT_FALSE(physics.isMasked(static_cast<gtm::Part*>(nullptr)));
}

TEST_F(MaskTest, skipsPartsThatTheLocationModelListsAsNull)
{
    world.answerParts({nullptr, rotor});
    world.answerBodies(rotor, {left, nullptr, right});
    physics.maskBodies({left, right});

    EXPECT_EQ(physics.maskedParts(), Parts{rotor});
    EXPECT_EQ(physics.unmaskedParts(), Parts{});
    physics.clear();
    EXPECT_EQ(physics.maskedBodies(), Bodies{});
}

TEST_F(MaskTest, leavesUnusedOnlyTheBodiesThatNoVolumeUses)
{
    volume("a", "left");
    physics.maskBodies({far});

    EXPECT_EQ(physics.unusedBodies(), (Bodies{right, loose}));
}

} // namespace
