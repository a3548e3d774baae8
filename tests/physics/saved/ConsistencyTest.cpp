// Every complaint about a text that can be read but makes no set-up: a few lines of a sound text are
// exchanged, and all that is said about it is compared.

#include "tests/physics/saved/FullSetUp.h"
#include "tests/physics/saved/Texts.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <map>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace physics {
namespace {

using Lines = std::vector<std::string>;

// The sound text, by line:
//
//   2 mask   3 interiors   4-8 fluid with hot   9-13 solid with cold   14-17 contact   19-33 type tables
//   34-39 ids: models, volumes, boundaries, interfaces, patches, settings   40 default volume   41-43 group
//   46-58 model 1   59-71 model 2   73-75 boundary 1   76-78 boundary 2   80-81 volume 1   82-83 volume 2
//   85 interface 1   87-90 patches 1, 3, 2, 4   92-93, 94-95, 96-99, 100-101 settings 1 to 4
struct Row {
    std::string name;
    std::map<std::size_t, std::string> exchanged; // line number to what stands there instead
    Lines complaints;
};

void PrintTo(const Row& row, std::ostream* stream) { *stream << row.name; }

const std::vector<Row> rows = {
    // ---- Places
    {"maskByLocationString", {{2, "1 right"}}, {"2: masked bodies are a list of bodies (code 0, or 3 for none)"}},
    {"maskOfTheDefaultPlace", {{2, "2"}}, {"2: masked bodies are a list of bodies (code 0, or 3 for none)"}},
    {"interiorIndexUsedTwice",
     {{9, "0 solid"}},
     {"9: the interior index 0 is negative or was used before",
      "82: volume 2 lies on the interior index 1, which the text lacks",
      "76: boundary 2 does not lie on the interior of its volume"}},
    {"interiorIndexNegative",
     {{4, "-1 fluid"}},
     {"4: the interior index -1 is negative or was used before",
      "80: volume 1 lies on the interior index 0, which the text lacks",
      "73: boundary 1 does not lie on the interior of its volume"}},
    {"boundaryIndexUsedTwice",
     {{12, "0 cold"}},
     {"12: the boundary index 0 is negative or was used before",
      "15: the interface \"contact\" lies on the boundary index 1, which is not above",
      "76: boundary 2 lies on the boundary index 1, which the text lacks"}},
    {"defaultPlaceThatIsSwitchedOff",
     {{10, "2"}},
     {"9: \"solid\" is a default place, but the default place is switched off",
      "82: volume 2 and its interior disagree on whether they are the default"}},
    {"twoDefaultPlaces",
     {{3, "2 1"}, {5, "2"}, {10, "2"}, {80, "0 1 1 1 0 -1 1 -1"}, {82, "0 2 0 1 1 1 1 -1"}},
     {"9: \"solid\" is a second default place where there can be only one"}},
    {"regionOfAnInterior", {{10, "0 rihgt"}}, {"10: the geometry has no region \"rihgt\"; the nearest is \"right\""}},
    {"regionsOfABoundary",
     {{13, "0 shared@right, shared@rigth, pump"}},
     {"13: the geometry has no region \"shared@rigth\"; the nearest is \"shared@right\"",
      "13: the geometry has no region \"pump\""}},
    {"regionWithAControlCharacter",
     {{10, "0 rig\rht"}},
     {"10: the geometry has no region \"rig?ht\"; the nearest is \"right\""}},
    {"interfaceIndexNegative",
     {{15, "-1 contact"}},
     {"15: the interface index -1 is negative or was used before",
      "85: interface 1 lies on the interface index 0, which the text lacks"}},
    {"interfaceIndexUsedTwice",
     {{14, "2"}, {17, "1 1\n0 again\n1 0\n1 1"}},
     {"18: the interface index 0 is negative or was used before"}},

    // ---- Ids
    {"idListedTwice",
     {{34, "2 1 1"}},
     {"34: the id 1 of a model is negative or listed twice", "59: model 2 is not among the ids listed above"}},
    {"idNegative",
     {{34, "2 1 -2"}},
     {"34: the id -2 of a model is negative or listed twice", "59: model 2 is not among the ids listed above"}},
    {"twoRecordsOfOneId",
     {{90, "0 2 2 1"}},
     {"90: boundary patch 2 has a record already", "76: boundary 2 does not list exactly the patches that name it"}},

    // ---- Members
    {"modelWithoutItsVolume", {{47, "1 1"}}, {"46: model 1 does not list volume 2, which names it"}},
    {"modelWithAForeignVolume",
     {{60, "1 2"}},
     {"59: model 2 lists volume 2, which is not in the text or does not name it"}},
    {"modelWithAnUnknownVolume",
     {{60, "1 9"}},
     {"59: model 2 lists volume 9, which is not in the text or does not name it"}},
    {"modelWithoutItsInterface", {{49, "0"}}, {"46: model 1 does not list interface 1, which names it"}},
    {"volumeWithAForeignBoundary",
     {{81, "2 1 2"}},
     {"80: volume 1 lists boundary 2, which is not in the text or does not name it"}},
    {"volumeWithoutItsBoundary", {{83, "0"}}, {"82: volume 2 does not list boundary 2, which names it"}},
    {"volumesThatListEachOthersBoundaries",
     {{81, "1 2"}, {83, "1 1"}},
     {"80: volume 1 lists boundary 2, which is not in the text or does not name it",
      "80: volume 1 does not list boundary 1, which names it",
      "82: volume 2 lists boundary 1, which is not in the text or does not name it",
      "82: volume 2 does not list boundary 2, which names it"}},

    // ---- Volumes
    {"volumeOfAnUnknownModel",
     {{80, "0 1 1 9 0 -1 0 -1"}},
     {"46: model 1 lists volume 1, which is not in the text or does not name it",
      "80: volume 1 names model 9, which the text lacks",
      "96: settings object 3 names volume 1, which the text lacks or which belongs to another model"}},
    {"volumeOnAnUnknownInterior",
     {{80, "0 1 1 1 5 -1 0 -1"}},
     {"80: volume 1 lies on the interior index 5, which the text lacks",
      "73: boundary 1 does not lie on the interior of its volume"}},
    {"twoVolumesOnOneInterior",
     {{80, "0 1 1 1 1 -1 0 -1"}},
     {"82: volume 2 lies on the interior of another volume",
      "73: boundary 1 does not lie on the interior of its volume"}},
    {"volumeInAnUnknownGroup",
     {{82, "0 2 0 1 1 3 0 -1"}},
     {"82: volume 2 is in the activation group 3, which the text lacks or which does not list it"}},
    {"volumeInAGroupThatDoesNotListIt",
     {{43, "1 1"}},
     {"82: volume 2 is in the activation group 1, which the text lacks or which does not list it"}},
    {"volumeWithAWrongDefaultBoundary",
     {{82, "0 2 0 1 1 1 0 2"}},
     {"82: volume 2 does not name its one default boundary"}},
    {"twoDefaultBoundariesOfAVolume",
     {{6, "1 1"},
      {8, "2"},
      {73, "0 1 7 0 2 0 1 1"},
      {76, "0 2 7 -1 -1 0 1 1"},
      {80, "0 1 1 1 0 -1 0 1"},
      {81, "2 1 2"},
      {83, "0"}},
     {"76: boundary 2 is a second default boundary of its volume"}},
    {"defaultVolumeThatIsNone", {{40, "2"}}, {"40: volume 2 is not in the text or not a default volume"}},
    {"defaultVolumeThatIsUnknown", {{40, "9"}}, {"40: volume 9 is not in the text or not a default volume"}},

    // ---- Boundaries
    {"boundaryOfAnUnknownVolume",
     {{76, "0 2 7 -1 -1 1 9 0"}},
     {"82: volume 2 lists boundary 2, which is not in the text or does not name it",
      "76: boundary 2 names volume 9, which the text lacks"}},
    {"boundaryOnAnUnknownPlace",
     {{76, "0 2 7 -1 -1 7 2 0"}},
     {"76: boundary 2 lies on the boundary index 7, which the text lacks"}},
    {"defaultBoundaryOnAPlaceOfItsOwn",
     {{76, "0 2 7 -1 -1 1 2 1"}},
     {"82: volume 2 does not name its one default boundary",
      "76: boundary 2 and its place disagree on whether they are the default"}},
    {"twoBoundariesOnOnePlace",
     {{76, "0 2 7 -1 -1 0 2 0"}},
     {"76: boundary 2 does not lie on the interior of its volume",
      "76: boundary 2 lies on the place of another boundary"}},
    {"shellInAnotherModel",
     {{73, "0 1 7 0 1 0 1 0"}},
     {"73: boundary 1 has its shell in model 1, which the text lacks or which does not list it"}},
    {"shellInAnUnknownModel",
     {{73, "0 1 7 0 9 0 1 0"}},
     {"73: boundary 1 has its shell in model 9, which the text lacks or which does not list it"}},
    {"patchOfAnotherBoundary", {{74, "4 -1 1 1 4"}}, {"73: boundary 1 does not list exactly the patches that name it"}},
    {"boundariesThatListEachOthersPatches",
     {{74, "4 -1 2 1 4"}, {77, "4 -1 1 1 3"}},
     {"73: boundary 1 does not list exactly the patches that name it",
      "76: boundary 2 does not list exactly the patches that name it"}},
    {"boundaryWithoutItsOwnPatch",
     {{74, "2 1 3"}},
     {"73: boundary 1 does not list exactly the patches that name it", "73: boundary 1 has no patch of its own"}},

    // ---- Interfaces
    {"interfaceOfAnUnknownModel",
     {{85, "0 1 4 0 0 9 0 1 2 0 0 0"}},
     {"46: model 1 lists interface 1, which is not in the text or does not name it",
      "85: interface 1 names model 9, which the text lacks"}},
    {"interfaceOnAnUnknownPlace",
     {{85, "0 1 4 0 0 1 3 1 2 0 0 0"}},
     {"85: interface 1 lies on the interface index 3, which the text lacks"}},
    {"interfaceWithAnUnknownSide",
     {{85, "0 1 4 0 0 1 0 1 9 0 0 0"}},
     {"85: interface 1 names boundary 9, which the text lacks",
      "90: boundary patch 4 is for interface 1, which the text lacks or which does not join its boundary"}},
    {"interfaceWithoutAPatch",
     {{77, "2 -1 2"}},
     {"76: boundary 2 does not list exactly the patches that name it",
      "85: interface 1 joins boundary 2, which has no patch for it"}},
    {"twoInterfacesOnOnePlace",
     {{37, "2 1 2"}, {85, "0 1 4 0 0 1 0 1 2 0 0 0\n0 2 4 0 0 -1 0 1 2 0 0 0"}},
     {"86: interface 2 lies on the place of another interface",
      "86: interface 2 joins boundary 1, which has no patch for it",
      "86: interface 2 joins boundary 2, which has no patch for it"}},

    // ---- Patches
    {"patchOfAnUnknownBoundary",
     {{88, "0 3 9 1"}},
     {"73: boundary 1 does not list exactly the patches that name it",
      "88: boundary patch 3 names boundary 9, which the text lacks",
      "88: boundary patch 3 is for interface 1, which the text lacks or which does not join its boundary"}},
    {"patchForAnUnknownInterface",
     {{88, "0 3 1 9"}},
     {"73: boundary 1 does not list exactly the patches that name it",
      "88: boundary patch 3 is for interface 9, which the text lacks or which does not join its boundary"}},

    // ---- Settings
    {"settingsHeldTwice",
     {{52, "4 1 1 2 1"}},
     {"46: model 1 holds settings object 1, which is held elsewhere too",
      "94: settings object 2 is not held by its model for the object that it names"}},
    {"settingsHeldByNobody",
     {{52, "2 1 1"}},
     {"94: settings object 2 is not held by its model for the object that it names"}},
    {"settingsHeldAsAnotherKind",
     {{52, "2 1 1"}, {53, "2 2 2"}},
     {"94: settings object 2 is not held by its model for the object that it names"}},
    {"twoSettingsOfOnePatch",
     {{52, "4 1 1 1 2"}, {94, "0 2 0 1 1 -1 1 -1"}},
     {"94: settings object 2 belongs to an object that has such settings already"}},
    {"settingsThatAreUnknown", {{53, "2 1 9"}}, {"46: model 1 holds settings object 9, which the text lacks"}},
    {"settingsOfAnUnknownModel",
     {{92, "0 1 0 1 9 -1 1 -1"}},
     {"92: settings object 1 names model 9, which the text lacks",
      "92: settings object 1 is not held by its model for the object that it names"}},
    {"settingsOfNoModel",
     {{92, "0 1 0 1 -1 -1 1 -1"}},
     {"92: settings object 1 names model -1, which the text lacks",
      "92: settings object 1 is not held by its model for the object that it names"}},
    {"settingsOfAnUnknownVolume",
     {{96, "0 3 0 0 1 9 -1 -1"}},
     {"96: settings object 3 names volume 9, which the text lacks or which belongs to another model",
      "96: settings object 3 is not held by its model for the object that it names"}},
    {"settingsOfAnUnknownPatch",
     {{94, "0 2 0 1 1 -1 9 -1"}},
     {"94: settings object 2 names boundary patch 9, which the text lacks",
      "94: settings object 2 is not held by its model for the object that it names"}},
    {"settingsOfAnUnknownInterface",
     {{94, "0 2 2 2 1 -1 -1 9"}},
     {"94: settings object 2 names interface 9, which the text lacks or which belongs to another model",
      "94: settings object 2 is not held by its model for the object that it names"}},
    {"settingsWhoseFieldsContradictEachOther",
     {{92, "0 1 0 0 1 -1 1 -1"}},
     {"92: settings object 1 is not held by its model for the object that it names"}},
    {"settingsOfTwoObjects",
     {{92, "0 1 0 1 1 1 1 -1"}},
     {"92: settings object 1 is not held by its model for the object that it names"}},
    {"twoBundlesOfOneIndex",
     {{97, "2"}, {99, "1 5\n0 0 8 2 1 1\n0"}},
     {"96: settings object 3 has two thread bundles with the index 0"}},

    // ---- Activation groups
    {"groupNumberBelowOne",
     {{42, "0"}},
     {"82: volume 2 is in the activation group 1, which the text lacks or which does not list it",
      "42: the activation group number 0 is below 1 or was used before"}},
    {"groupNumberUsedTwice",
     {{41, "2"}, {43, "1 2\n1\n0"}},
     {"44: the activation group number 1 is below 1 or was used before"}},
};

class Consistency : public testing::TestWithParam<Row> {};

TEST_P(Consistency, complainsAboutWhatIsWrongAndNothingElse)
{
    FullSetUp set;
    const std::string text = set.physics->serialise();
    Lines lines = linesOf(text);
    ASSERT_EQ(lines.size(), 101U);
    for (const auto& [number, line] : GetParam().exchanged)
        lines[number - 1] = line;

    EXPECT_EQ(set.physics->checkSerialised(joined(lines)), GetParam().complaints);
    EXPECT_FALSE(set.physics->restore(joined(lines)));
    EXPECT_EQ(set.physics->serialise(), text);
}

INSTANTIATE_TEST_SUITE_P(EachRelation, Consistency, testing::ValuesIn(rows),
                         [](const testing::TestParamInfo<Row>& row) { return row.param.name; });

/// The full set-up's text with some lines exchanged.
std::string exchanged(const FullSetUp& set, const std::map<std::size_t, std::string>& replacements)
{
    Lines lines = linesOf(set.physics->serialise());
    for (const auto& [number, line] : replacements)
        lines[number - 1] = line;
    return joined(lines);
}

TEST(Consistency, shellListMayNameBoundariesWhoseShellIsElsewhere)
{
    FullSetUp set;
    const std::string text = set.physics->serialise();

    ASSERT_TRUE(set.physics->restore(exchanged(set, {{48, "2 1 9"}})));

    EXPECT_EQ(set.physics->serialise(), text);
    EXPECT_EQ(set.physics->findBoundaryById(1)->shellModel(), set.physics->findModelById(2));
}

TEST(Consistency, groupMayNameVolumesThatEnded)
{
    FullSetUp set;
    const std::string text = set.physics->serialise();

    ASSERT_TRUE(set.physics->restore(exchanged(set, {{43, "2 2 9"}})));

    EXPECT_EQ(set.physics->serialise(), text);
}

TEST(Consistency, groupMayNameVolumesThatAreNotInIt)
{
    FullSetUp set;
    const std::string text = exchanged(set, {{43, "2 1 2"}});

    ASSERT_TRUE(set.physics->restore(text));

    EXPECT_EQ(set.physics->serialise(), text);
    EXPECT_TRUE(set.physics->findVolumeById(1)->isActive());
}

TEST(Consistency, countersMayBeLowerThanTheIds)
{
    FullSetUp set;
    const std::string text = exchanged(set, {{45, "0"}, {79, "-5"}});

    ASSERT_TRUE(set.physics->restore(text));

    EXPECT_EQ(set.physics->serialise(), text);
    EXPECT_EQ(set.physics->createVolume("third", std::string("left"), VolumeType::Fluid)->id(), -4);
}

TEST(Consistency, versionsAreNotLookedAt)
{
    FullSetUp set;
    const std::string text = set.physics->serialise();

    ASSERT_TRUE(set.physics->restore(exchanged(set, {{1, "7"}, {46, "3 1"}, {87, "-1 1 1 -1"}})));

    EXPECT_EQ(set.physics->serialise(), text);
}

TEST(Consistency, listsMayBeInAnyOrder)
{
    FullSetUp set;
    const std::string text = set.physics->serialise();

    ASSERT_TRUE(set.physics->restore(exchanged(
        set,
        {{34, "2 2 1"}, {47, "2 2 1"}, {52, "4 2 2 1 1"}, {74, "4 1 3 -1 1"}, {87, "0 2 2 -1"}, {89, "0 1 1 -1"}})));

    EXPECT_EQ(set.physics->serialise(), text);
}

TEST(Consistency, whatFollowsTheLastBlockIsNotLookedAt)
{
    FullSetUp set;
    const std::string text = set.physics->serialise();

    EXPECT_EQ(set.physics->checkSerialised(text + "and so on"), Lines());
    EXPECT_TRUE(set.physics->restore(text + "and so on"));
    EXPECT_EQ(set.physics->serialise(), text);
}

TEST(Consistency, complainsAHundredTimesAtMostAndSuggestsFiveTimes)
{
    FullSetUp set;
    std::string ids = "rihgt";
    for (int i = 0; i < 300; ++i)
        ids += ", rihgt";

    const Lines complaints = set.physics->checkSerialised(exchanged(set, {{10, "0 " + ids}}));

    ASSERT_EQ(complaints.size(), 100U);
    for (std::size_t i = 0; i < complaints.size(); ++i)
        EXPECT_EQ(complaints[i], std::string("10: the geometry has no region \"rihgt\"") +
                                     (i < 5 ? "; the nearest is \"right\"" : ""));
}

TEST(Consistency, manyRecordsOfOneIdAreRefusedAtOnce)
{
    // If each model were compared with each volume, this would take minutes.
    constexpr int count = 20000;
    FullSetUp set;
    Lines lines = linesOf(set.physics->serialise());
    lines[33] = lines[34] = std::to_string(count);
    for (int id = 1; id <= count; ++id) {
        lines[33] += " 1";
        lines[34] += " " + std::to_string(id);
        lines[44] += "\n0 1 0 0 0 0 0 0 0 0 0 0"; // a model
        lines[78] += "\n0 " + std::to_string(id) + " 0 1 0 -1 0 -1 0";
    }
    lines.erase(lines.begin() + 79, lines.begin() + 83);
    lines.erase(lines.begin() + 45, lines.begin() + 71);

    const Lines complaints = set.physics->checkSerialised(joined(lines));

    ASSERT_EQ(complaints.size(), 100U);
    for (const std::string& complaint : complaints)
        EXPECT_EQ(complaint, "34: the id 1 of a model is negative or listed twice");
}

} // namespace
} // namespace physics
