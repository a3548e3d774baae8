// Taking regions out of locations, as a host does when its geometry loses them.

#include "tests/locationmodel/Exchanger.h"

namespace {

using gtm::Boundary;
using gtm::Interior;

class Removal : public Exchanger {
protected:
    Interior& listed(const std::vector<gtm::Region*>& regions)
    {
        return *copy.createInterior("listed", regions, false, false).first;
    }

    static Boundary& listed(Interior& interior, const std::vector<gtm::Region*>& regions)
    {
        return *interior.createBoundary("listed", regions, false).first;
    }

    static std::string text(const Interior& interior) { return interior.location()->locationString(false); }
    static std::string text(const Boundary& boundary) { return boundary.location()->locationString(false); }
};

TEST_F(Removal, aListedBodyIsTakenOut)
{
    Interior& made = listed({region("cold"), region("tube")});

    EXPECT_TRUE(made.remove({region("cold")}));
    EXPECT_EQ(text(made), "tube");
    EXPECT_FALSE(made.remove({region("cold")}));
}

TEST_F(Removal, aListedPartIsReplacedByWhatIsLeftOfIt)
{
    Interior& made = listed({region("tube"), region("water")});

    EXPECT_TRUE(made.remove({region("hot")}));
    EXPECT_EQ(text(made), "tube, cold");
}

TEST_F(Removal, aPartTakesItsListedBodiesWithIt)
{
    Interior& made = listed({region("hot"), region("tube"), region("cold")});

    EXPECT_TRUE(made.remove({region("water")}));
    EXPECT_EQ(text(made), "tube");
}

TEST_F(Removal, theLastBodyMayBeTakenOut)
{
    Interior& made = listed({region("hot")});

    EXPECT_TRUE(made.remove({region("hot")}));
    EXPECT_EQ(text(made), "");
    EXPECT_EQ(made.state(), Interior::State::Empty);
}

TEST_F(Removal, aLocationStringGetsATermThatTakesAway)
{
    Interior& made = interior("water", "w*");

    EXPECT_TRUE(made.remove({region("hot"), region("tube"), nullptr}));
    EXPECT_EQ(text(made), "w*, !hot");
    EXPECT_EQ(ids(made.bodies()), (Ids{"cold"}));
    EXPECT_FALSE(made.remove({region("hot")}));
}

TEST_F(Removal, aMaskedBodyIsTakenOutToo)
{
    Interior& made = interior("water", "water");
    copy.mask({body("hot")});

    EXPECT_TRUE(made.remove({region("hot")}));
    copy.unmask({body("hot")});
    EXPECT_EQ(ids(made.bodies()), (Ids{"cold"}));
}

TEST_F(Removal, aListedFaceOfABoundaryIsTakenOutByItsFaceUseToo)
{
    Interior& water = interior("water", "water");
    Boundary& outlets = listed(water, {region("outlet"), region("outlet-2")});

    EXPECT_TRUE(outlets.remove({region("outlet@cold")}));
    EXPECT_EQ(text(outlets), "outlet-2");
    EXPECT_FALSE(outlets.remove({region("inlet")}));
}

TEST_F(Removal, halfOfAnInternalFaceMayBeTakenOut)
{
    Interior& water = interior("water", "hot");
    Boundary& baffle = listed(water, {region("baffle")});

    EXPECT_TRUE(baffle.remove({region("baffle@hot")}));
    EXPECT_EQ(text(baffle), "baffle@hot#2");
}

TEST_F(Removal, aBodyTakesItsFaceUsesOutOfBoundaries)
{
    Interior& water = interior("water", "water");
    Boundary& all = boundary(water, "all", "*let*");

    EXPECT_TRUE(all.remove({region("cold")}));
    EXPECT_EQ(text(all), "*let*, !outlet@cold, !outlet-2@cold");
    EXPECT_EQ(ids(all.faceUses()), (Ids{"inlet@hot"}));
}

TEST_F(Removal, aNeighbourTakesNothingFromTheSideThatFacesIt)
{
    Interior& metal = interior("metal", "tube");
    Boundary& wall = boundary(metal, "wall", "hot");
    Boundary& listedWall = listed(metal, {region("hot wall")});

    EXPECT_FALSE(wall.remove({region("hot")}));
    EXPECT_FALSE(listedWall.remove({region("hot")}));
    EXPECT_EQ(ids(wall.faceUses()), (Ids{"hot wall@tube"}));
}

TEST_F(Removal, anIdWithAWildcardIsTakenAwayInQuotes)
{
    gtm::bundled::TopologyBuilder builder;
    builder.addBody("b*");
    builder.addBody("b\"2");
    const auto odd = builder.build();
    gtm::VirtualTopology oddCopy(odd->topology(), "", 0);
    Interior& made = *oddCopy.createInterior("all", "*", false, false).first;

    EXPECT_TRUE(made.remove({odd->bodies()[0]}));
    EXPECT_EQ(text(made), "*, !\"b*\"");
    EXPECT_EQ(ids(made.bodies()), (Ids{"b\"2"}));
    EXPECT_TRUE(made.remove({odd->bodies()[1]}));
    EXPECT_EQ(text(made), "*, !\"b*\", !\"b\"\"2\"");
    EXPECT_TRUE(made.bodies().empty());
}

} // namespace
