// The section of a saved text that says what is allowed where.

#include "physics/TypeManager.h"
#include "physics/saved/TextReader.h"
#include "physics/saved/TextWriter.h"
#include "tests/physics/saved/Texts.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace physics {
namespace {

/// The tables after a section was read into fresh ones, and what the reader said about it.
struct Restored {
    explicit Restored(const std::string& section)
    {
        TextReader reader(section);
        reader.typeTables(types);
        complaint = reader.complaint();
    }

    std::string written() const
    {
        TextWriter writer;
        writer.typeTables(types);
        return writer.take();
    }

    TypeManager types;
    std::string complaint;
};

/// A section whose blocks are empty but for the given ones, each with its count.
std::string section(const std::string& volumes, const std::string& interfaces = "0\n",
                    const std::string& shells = "0\n", const std::string& threads = "0\n",
                    const std::string& defaults = "0\n")
{
    return "0\n" + volumes + interfaces + shells + threads + defaults;
}

TEST(TypeTables, freshTablesAreFifteenLines)
{
    TextWriter writer;
    writer.typeTables(TypeManager());

    EXPECT_EQ(writer.take(), typeTables);
}

TEST(TypeTables, sectionThatWasReadIsWrittenTheSame)
{
    const Restored restored(typeTables);

    EXPECT_EQ(restored.complaint, "");
    EXPECT_EQ(restored.written(), typeTables);
}

TEST(TypeTables, repeatedKeysComeBackAsDefaultTypes)
{
    Restored restored(typeTables);

    EXPECT_EQ(restored.types.defaultBoundaryType(VolumeType::Solid), BoundaryType::VelocityInlet);
    EXPECT_EQ(restored.types.defaultBoundaryType(VolumeType::Fluid), BoundaryType::MassFlowInlet);
    EXPECT_EQ(restored.types.defaultBoundaryType(VolumeType::Porous), BoundaryType::MassFlowOutlet);
}

TEST(TypeTables, tablesThatWereReadAnswerLikeFreshOnes)
{
    Restored restored(typeTables);
    TypeManager fresh;

    EXPECT_EQ(restored.types.allowedBoundaryTypes(), fresh.allowedBoundaryTypes());
    EXPECT_EQ(restored.types.allowedInternalBoundaryTypes(), fresh.allowedInternalBoundaryTypes());
    EXPECT_EQ(restored.types.allowedInterfaceTypes(BoundaryType::Wall, VolumeType::Solid),
              (std::vector{InterfaceType::Interior, InterfaceType::Wall}));
    EXPECT_EQ(restored.types.allowedShellTypes(BoundaryType::Wall), std::vector{ShellType::HeatConduction});
    EXPECT_EQ(restored.types.allowedThreadTypes(), fresh.allowedThreadTypes());
}

TEST(TypeTables, formatNumberIsNotLookedAt) { EXPECT_EQ(Restored("7" + typeTables.substr(1)).written(), typeTables); }

TEST(TypeTables, emptyVolumeBlockLeavesNoBoundaryTypes)
{
    // The interface block is full: what no allowed volume type carries does not count.
    std::string text = typeTables;
    text.replace(text.find("3\n"), text.find("5\n") - text.find("3\n"), "0\n");
    Restored restored(text);

    EXPECT_EQ(restored.complaint, "");
    EXPECT_EQ(restored.types.allowedVolumeTypes(), std::vector<VolumeType>());
    EXPECT_EQ(restored.types.allowedBoundaryTypes(), std::vector<BoundaryType>());
    EXPECT_EQ(restored.types.allowedInterfaceTypes().size(), 5U);
}

TEST(TypeTables, negativeCountIsAnEmptyBlock)
{
    Restored restored(section("-3\n", "-1\n", "-2147483648\n", "-1\n", "-2\n"));

    EXPECT_EQ(restored.complaint, "");
    EXPECT_EQ(restored.types.allowedVolumeTypes(), std::vector<VolumeType>());
    EXPECT_EQ(restored.types.allowedThreadTypes(), std::vector<ThreadType>());
    EXPECT_EQ(restored.written(), section("0\n", "0\n", "0\n", "0\n", "6 0 0 1 1 2 2\n"));
}

TEST(TypeTables, lineWithoutValuesAddsNothing)
{
    Restored restored(section("3\n0\n-4\n2 1 7\n", "2\n0\n2 4 0\n", "1\n0\n"));

    EXPECT_EQ(restored.complaint, "");
    EXPECT_EQ(restored.types.allowedVolumeTypes(), std::vector{VolumeType::Fluid});
    EXPECT_EQ(restored.types.allowedInterfaceTypes(), std::vector{InterfaceType::Wall});
    EXPECT_EQ(restored.types.allowedShellTypes(), std::vector<ShellType>());
}

TEST(TypeTables, interfaceLineWithoutGroupsAddsItsTypeOnly)
{
    for (const char* line : {"2 4 0\n", "2 4 -1\n", "1 4\n", "5 4 -2 0 1 7\n"}) {
        Restored restored(section("1\n2 0 7\n", "1\n" + std::string(line)));
        EXPECT_EQ(restored.complaint, "") << line;
        EXPECT_EQ(restored.types.allowedInterfaceTypes(), std::vector{InterfaceType::Wall}) << line;
        EXPECT_EQ(restored.types.allowedInterfaceTypes(BoundaryType::Wall, VolumeType::Solid),
                  std::vector<InterfaceType>())
            << line;
        EXPECT_EQ(restored.written(), section("1\n2 0 7\n", "1\n2 4 0\n", "0\n", "0\n", "6 0 0 1 1 2 2\n")) << line;
    }
}

TEST(TypeTables, groupWithoutBoundaryTypesIsKept)
{
    const Restored restored(section("0\n", "1\n6 4 2 0 0 1 0\n"));

    EXPECT_EQ(restored.written(), section("0\n", "1\n6 4 2 0 0 1 0\n", "0\n", "0\n", "6 0 0 1 1 2 2\n"));
}

TEST(TypeTables, countsInAnInterfaceLineEndWithTheLine)
{
    // Nine groups are announced, one is there; it announces nine types, two are there.
    const Restored restored(section("0\n", "1\n6 4 9 0 9 7 17\n", "1\n2 0 7\n"));

    EXPECT_EQ(restored.complaint, "");
    EXPECT_EQ(restored.written(), section("0\n", "1\n6 4 1 0 2 7 17\n", "1\n2 0 7\n", "0\n", "6 0 0 1 1 2 2\n"));
}

TEST(TypeTables, negativeCountOfAGroupIsAnEmptyGroup)
{
    const Restored restored(section("0\n", "1\n7 4 2 0 -5 1 1 7\n"));

    EXPECT_EQ(restored.written(), section("0\n", "1\n7 4 2 0 0 1 1 7\n", "0\n", "0\n", "6 0 0 1 1 2 2\n"));
}

TEST(TypeTables, linesOfOneTypeAreJoined)
{
    const Restored restored(section("2\n3 0 7 14\n3 0 17 7\n"));

    EXPECT_EQ(restored.written(), section("1\n4 0 7 14 17\n", "0\n", "0\n", "0\n", "6 0 0 1 1 2 2\n"));
}

TEST(TypeTables, oddLastDefaultIsLeftOut)
{
    Restored restored(section("0\n", "0\n", "0\n", "0\n", "3 1 5 2\n"));

    EXPECT_EQ(restored.complaint, "");
    EXPECT_EQ(restored.types.defaultBoundaryType(VolumeType::Fluid), BoundaryType::PressureFarField);
    EXPECT_EQ(restored.types.defaultBoundaryType(VolumeType::Porous), BoundaryType::Wall);
}

TEST(TypeTables, defaultsThatTheTextDoesNotNameStay)
{
    Restored restored(section("0\n"));

    EXPECT_EQ(restored.types.defaultBoundaryType(VolumeType::Solid), BoundaryType::Wall);
}

TEST(TypeTables, valuesOutsideTheEnumerationsAreKept)
{
    const std::string text =
        section("1\n3 99 -7 2147483647\n", "1\n5 -3 1 40 1 50\n", "1\n2 8 9\n", "2 -1 77\n", "8 0 0 1 1 2 2 60 60\n");
    Restored restored(text);

    EXPECT_EQ(restored.written(), text);
    EXPECT_TRUE(restored.types.isAllowedBoundaryType(VolumeType(99), BoundaryType(-7)));
    EXPECT_EQ(restored.types.defaultBoundaryType(VolumeType(60)), BoundaryType(60));
}

TEST(TypeTables, numbersMayStandOnAnyLine)
{
    std::string text = typeTables;
    for (char& c : text)
        c = c == '\n' ? '\t' : c;

    EXPECT_EQ(Restored(text).written(), typeTables);
}

TEST(TypeTables, sectionThatEndsTooEarlyIsNoticed)
{
    const Restored restored("0\n2\n4 0 7 14");

    EXPECT_EQ(restored.complaint, "3: expected the boundary types of a volume type (a whole number of 32 bits), found "
                                  "the end of the text");
}

TEST(TypeTables, hugeCountsEndWithTheText)
{
    EXPECT_EQ(Restored("0\n2000000000\n2000000000 1").complaint,
              "3: expected the boundary types of a volume type (a whole number of 32 bits), found the end of the text");
    EXPECT_EQ(Restored(section("0\n", "0\n", "0\n", "2000000000\n", "")).complaint,
              "6: expected the thread types (a whole number of 32 bits), found the end of the text");
}

TEST(TypeTables, localeOfTheProcessDoesNotMatter)
{
    const GroupedDigits locale;

    EXPECT_EQ(Restored(typeTables).written(), typeTables);
}

} // namespace
} // namespace physics
