#include "importers/cgns/PeriodicityReader.h"

#include "importers/cgns/CgnsReader.h"
#include "tests/importers/cgns/MemoryTree.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using cgnstests::MemoryNode;
using cgnstests::MemoryTree;
using cgnstests::Numbers;
using cgnstests::Reals;
using gtm::bundled::angleUnitOf;
using gtm::bundled::CgnsError;
using gtm::bundled::readPeriodicity;
using Strings = std::vector<std::string>;
using Vector = std::array<double, 3>;

constexpr double pi = 3.14159265358979323846;

MemoryTree unitsOf(const std::string& angle)
{
    std::string text;
    for (const std::string& unit :
         {std::string("Kilogram"), std::string("Meter"), std::string("Second"), std::string("Kelvin"), angle}) {
        text += unit + std::string(32 - unit.size(), ' ');
    }
    return {"DimensionalUnits", "DimensionalUnits_t", text};
}

/// A connectivity with the given nodes below its "Periodic".
MemoryTree connectivityWith(std::vector<MemoryTree> periodic)
{
    const MemoryTree node{"Periodic", "Periodic_t", {}, std::move(periodic)};
    return {"seam",
            "GridConnectivity1to1_t",
            "donor",
            {{"GridConnectivityProperty", "GridConnectivityProperty_t", {}, {node}}}};
}

TEST(PeriodicityReader, aConnectivityWithoutThePropertyRepeatsNothing)
{
    const MemoryTree plain{"seam", "GridConnectivity1to1_t", "donor", {}};
    const MemoryTree averaged{
        "seam", "GridConnectivity_t", "donor", {{"GridConnectivityProperty", "GridConnectivityProperty_t", {}, {}}}};
    Strings notes;

    EXPECT_FALSE(readPeriodicity(MemoryNode(plain).children(), "Degree", "Seam", notes));
    EXPECT_FALSE(readPeriodicity(MemoryNode(averaged).children(), "Degree", "Seam", notes));
}

TEST(PeriodicityReader, whatIsNotSaidIsZero)
{
    const MemoryTree tree = connectivityWith({{"Translation", "DataArray_t", Reals{1, 2, 3}}});
    Strings notes;

    const auto periodicity = readPeriodicity(MemoryNode(tree).children(), "", "Seam", notes);

    ASSERT_TRUE(periodicity);
    EXPECT_EQ(periodicity->centre, Vector{});
    EXPECT_EQ(periodicity->angle, Vector{});
    EXPECT_EQ(periodicity->translation, (Vector{1, 2, 3}));
    EXPECT_EQ(notes, Strings{});
}

TEST(PeriodicityReader, anAngleIsInTheUnitThatIsDeclaredNearestToIt)
{
    const auto angleOf = [](MemoryTree angle, std::vector<MemoryTree> beside, const std::string& above) {
        beside.push_back(std::move(angle));
        const MemoryTree tree = connectivityWith(std::move(beside));
        Strings notes;
        const double radians = readPeriodicity(MemoryNode(tree).children(), above, "Seam", notes)->angle[2];
        EXPECT_EQ(notes, Strings{});
        return radians;
    };
    const MemoryTree plain{"RotationAngle", "DataArray_t", Reals{0, 0, 90}};
    const MemoryTree inDegrees{"RotationAngle", "DataArray_t", Reals{0, 0, 90}, {unitsOf("Degree")}};

    EXPECT_DOUBLE_EQ(angleOf(plain, {}, "Degree"), pi / 2);
    EXPECT_DOUBLE_EQ(angleOf(plain, {}, "Radian"), 90);
    EXPECT_DOUBLE_EQ(angleOf(plain, {unitsOf("Radian")}, "Degree"), 90);
    EXPECT_DOUBLE_EQ(angleOf(inDegrees, {unitsOf("Radian")}, "Radian"), pi / 2);
    EXPECT_DOUBLE_EQ(angleOf(plain, {unitsOf("Null")}, "Degree"), pi / 2);
}

TEST(PeriodicityReader, anAngleInNoUnitIsTakenToBeInRadiansAndNoted)
{
    const MemoryTree tree = connectivityWith({{"RotationAngle", "DataArray_t", Reals{1, 0, 0}}});
    Strings notes;

    EXPECT_EQ(readPeriodicity(MemoryNode(tree).children(), "", "Seam", notes)->angle, (Vector{1, 0, 0}));
    EXPECT_EQ(readPeriodicity(MemoryNode(tree).children(), "Gon\n", "Seam", notes)->angle, (Vector{1, 0, 0}));
    EXPECT_EQ(notes, (Strings{"Seam has an angle without a unit; it is taken to be in radians.",
                              "Seam has an angle in the unknown unit \"Gon\\n\"; it is taken to be in radians."}));
}

TEST(PeriodicityReader, aVectorOfTwoNumbersIsRefused)
{
    const MemoryTree tree = connectivityWith({{"RotationCenter", "DataArray_t", Reals{1, 0}}});
    Strings notes;

    try {
        readPeriodicity(MemoryNode(tree).children(), "", "Seam", notes);
        FAIL() << "was read";
    } catch (const CgnsError& error) {
        EXPECT_STREQ(error.what(), "Seam: \"RotationCenter\" is not three numbers; export the file again.");
    }
}

TEST(PeriodicityReader, unitsWithoutAnAngleLeaveTheUnitAboveInForce)
{
    const MemoryTree old{"Base", "CGNSBase_t", {}, {{"DimensionalUnits", "DimensionalUnits_t", std::string(128, ' ')}}};
    const MemoryTree full{"Base", "CGNSBase_t", {}, {unitsOf("Degree")}};

    EXPECT_EQ(angleUnitOf(MemoryNode(old).children(), "Radian"), "Radian");
    EXPECT_EQ(angleUnitOf(MemoryNode(full).children(), "Radian"), "Degree");
    EXPECT_EQ(angleUnitOf({}, "Radian"), "Radian");
}

} // namespace
