#include "importers/cad/LeftOut.h"

#include <gtest/gtest.h>

namespace {

using gtm::bundled::LeftOut;

TEST(LeftOut, nothingCountedGivesNoText)
{
    LeftOut leftOut;
    leftOut.add("face", "faces", 0);

    EXPECT_EQ(leftOut.text(), "");
}

TEST(LeftOut, kindsAreToldInTheOrderOfTheirFirstMention)
{
    LeftOut leftOut;
    leftOut.add("vertex", "vertices", 2);
    leftOut.add("face", "faces", 1);
    leftOut.add("edge", "edges", 1);
    leftOut.add("edge", "edges", 3);

    EXPECT_EQ(leftOut.text(), "2 vertices, 1 face and 4 edges");
}

} // namespace
