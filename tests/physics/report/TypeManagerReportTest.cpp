#include "physics/TypeManager.h"

#include "tests/golden/Golden.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace physics {
namespace {

std::string listing()
{
    std::ostringstream stream;
    TypeManager().dump(stream);
    return stream.str();
}

TEST(TypeManagerReport, listsTheTables) { EXPECT_TRUE(golden::matches(listing(), "report/types.txt")); }

TEST(TypeManagerReport, solidVolumesHaveThreeBoundaryTypesAndAStarAtTheDefault)
{
    EXPECT_NE(listing().find("\nSolid:                   {Wall*, Interior, Symmetry}\n"), std::string::npos);
}

TEST(TypeManagerReport, interfaceHeadingsKeepTheirTrailingBlanks)
{
    EXPECT_NE(listing().find("\nFan:                     \n                         Fluid:{VelocityInlet, "),
              std::string::npos);
}

TEST(TypeManagerReport, volumeTypesWithoutBoundaryTypesAreLeftOut)
{
    const std::string text = listing();
    const std::size_t fan = text.find("\nFan:");
    const std::size_t interior = text.find("\nInterior:", fan);
    const std::string block = text.substr(fan, interior - fan);

    EXPECT_NE(block.find("Fluid:"), std::string::npos);
    EXPECT_EQ(block.find("Solid:"), std::string::npos);
    EXPECT_EQ(block.find("Porous:"), std::string::npos);
}

} // namespace
} // namespace physics
