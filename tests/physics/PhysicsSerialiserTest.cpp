#include "physics/Boundary.h"
#include "physics/BoundaryPatch.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Physics.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/Volume.h"
#include "tests/physics/saved/FullSetUp.h"
#include "tests/physics/saved/Texts.h"
#include "tests/scripted/World.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace physics {
namespace {

TEST(PhysicsSerialiser, emptySetUpIsWrittenLineByLine)
{
    scripted::World world;
    Physics physics(world.model(), true);
    ASSERT_TRUE(physics.restore(emptyText(4)));

    EXPECT_EQ(physics.serialise(), emptyText(4));
    EXPECT_TRUE(physics.enforceRestrictions());
}

TEST(PhysicsSerialiser, fullSetUpIsWrittenLineByLine)
{
    FullSetUp set;

    EXPECT_EQ(set.physics->serialise(), "0\n"
                                        "0 right\n" // the mask
                                        "2 0\n"
                                        "0 fluid\n"
                                        "1 left\n"
                                        "1 0\n"
                                        "0 hot\n"
                                        "1 shared@left\n"
                                        "1 solid\n"
                                        "0 right\n"
                                        "1 0\n"
                                        "1 cold\n"
                                        "1 shared@right\n"
                                        "1\n"
                                        "0 contact\n"
                                        "1 0\n"
                                        "1 1\n"
                                        "1\n" +
                                            typeTables +
                                            "2 1 2\n"
                                            "2 1 2\n"
                                            "2 1 2\n"
                                            "1 1\n"
                                            "4 1 2 3 4\n"
                                            "4 1 2 3 4\n"
                                            "-1\n"
                                            "1\n"
                                            "1\n" // group 1
                                            "1 2\n"
                                            "0\n"
                                            "2\n" // models
                                            "0 1\n"
                                            "2 1 2\n"
                                            "0\n"
                                            "1 1\n"
                                            "2 1 3\n"
                                            "0\n"
                                            "4 1 1 2 2\n"
                                            "0\n"
                                            "0\n"
                                            "0\n"
                                            "1\n"
                                            "1 0\n"
                                            "Default\n"
                                            "0 2\n"
                                            "0\n"
                                            "1 1\n"
                                            "0\n"
                                            "0\n"
                                            "0\n"
                                            "0\n"
                                            "2 1 4\n"
                                            "0\n"
                                            "0\n"
                                            "1\n"
                                            "1 0\n"
                                            "Default\n"
                                            "2\n" // boundaries
                                            "0 1 7 0 2 0 1 0\n"
                                            "4 -1 1 1 3\n"
                                            "0\n"
                                            "0 2 7 -1 -1 1 2 0\n"
                                            "4 -1 2 1 4\n"
                                            "1 0\n"
                                            "2\n" // volumes
                                            "0 1 1 1 0 -1 0 -1\n"
                                            "1 1\n"
                                            "0 2 0 1 1 1 0 -1\n"
                                            "1 2\n"
                                            "1\n" // interfaces
                                            "0 1 4 0 0 1 0 1 2 0 0 0\n"
                                            "4\n" // patches
                                            "0 1 1 -1\n"
                                            "0 3 1 1\n"
                                            "0 2 2 -1\n"
                                            "0 4 2 1\n"
                                            "4\n" // settings
                                            "0 1 0 1 1 -1 1 -1\n"
                                            "0\n"
                                            "0 2 0 1 1 -1 2 -1\n"
                                            "0\n"
                                            "0 3 0 0 1 1 -1 -1\n"
                                            "1\n"
                                            "0 0 7 2 1 1\n"
                                            "1 5\n"
                                            "0 4 1 1 2 -1 1 -1\n"
                                            "0\n");
}

TEST(PhysicsSerialiser, restoredSetUpIsSavedAsTheSameText)
{
    FullSetUp set;
    const std::string text = set.physics->serialise();
    Physics other(set.world.model(), false);

    EXPECT_EQ(other.checkSerialised(text), std::vector<std::string>());
    ASSERT_TRUE(other.restore(text));
    EXPECT_EQ(other.serialise(), text);
    ASSERT_TRUE(other.restore(other.serialise()));
    EXPECT_EQ(other.serialise(), text);
}

TEST(PhysicsSerialiser, restoredObjectsHaveTheirIdsAndRelations)
{
    FullSetUp set;
    Physics other(set.world.model(), false);

    ASSERT_TRUE(other.restore(set.physics->serialise()));

    Boundary* hot = other.findBoundaryById(1);
    ASSERT_NE(hot, nullptr);
    EXPECT_EQ(hot->fullName(), "fluid::hot");
    EXPECT_EQ(hot->shellModel(), other.findModelById(2));
    EXPECT_EQ(hot->shellType(), ShellType::HeatConduction);
    EXPECT_EQ(hot->interfaces(), std::vector<Interface*>{other.findInterfaceById(1)});
    EXPECT_EQ(other.findBoundaryById(2)->tags(), std::vector<BoundaryTag>{BoundaryTag::Interface});
    EXPECT_EQ(other.findVolumeById(2)->activationGroup(), 1);
    EXPECT_EQ(other.activationGroupVolumes(1), std::vector<Volume*>{other.findVolumeById(2)});
    EXPECT_EQ(other.findSettingsByThreadId(7), other.findVolumeById(1)->settings());
    EXPECT_EQ(other.findSettingsByZoneId(5), other.findSettingsById(3));
    EXPECT_TRUE(other.isMasked(set.right));
    EXPECT_EQ(other.findModelById(1)->domainSymbol(1), "default");
}

TEST(PhysicsSerialiser, idsGoOnFromTheCountersOfTheText)
{
    scripted::World world;
    Physics physics(world.model(), false);
    ASSERT_TRUE(physics.restore(emptyText(40)));

    EXPECT_EQ(physics.createModel()->id(), 41);
    EXPECT_EQ(physics.createVolume("v", std::string("x"), VolumeType::Fluid)->id(), 41);
}

TEST(PhysicsSerialiser, idsGoOnPastTheLargestInteger)
{
    scripted::World world;
    Physics physics(world.model(), false);
    ASSERT_TRUE(physics.restore(emptyText(2147483647)));

    EXPECT_EQ(physics.createModel()->id(), -2147483647 - 1);
    ASSERT_TRUE(physics.restore(emptyText(0)));
}

TEST(PhysicsSerialiser, defaultBoundaryTypesComeBackChanged)
{
    scripted::World world;
    Physics physics(world.model(), false);
    ASSERT_EQ(physics.defaultBoundaryType(VolumeType::Solid), BoundaryType::Wall);

    ASSERT_TRUE(physics.restore(physics.serialise()));

    EXPECT_EQ(physics.defaultBoundaryType(VolumeType::Solid), BoundaryType::VelocityInlet);
    EXPECT_EQ(physics.defaultBoundaryType(VolumeType::Fluid), BoundaryType::MassFlowInlet);
    EXPECT_EQ(physics.defaultBoundaryType(VolumeType::Porous), BoundaryType::MassFlowOutlet);
    Volume* solid = physics.createVolume("s", std::string("x"), VolumeType::Solid);
    EXPECT_EQ(solid->createBoundary("b", std::string("y"))->type(), BoundaryType::VelocityInlet);
}

TEST(PhysicsSerialiser, textThatEndsTooEarlyChangesNothing)
{
    FullSetUp set;
    const std::string text = set.physics->serialise();

    // Without its last line end the text is still whole.
    for (std::size_t size = 0; size + 1 < text.size(); ++size) {
        const std::string cut = text.substr(0, size);
        ASSERT_FALSE(set.physics->restore(cut)) << size;
        const std::vector<std::string> complaints = set.physics->checkSerialised(cut);
        ASSERT_EQ(complaints.size(), 1U) << size;
        const std::string lastLine = std::to_string(std::count(cut.begin(), cut.end(), '\n') + 1);
        const bool isTheEnd = complaints[0].find(lastLine + ": expected ") == 0;
        const bool isACount = complaints[0].find("a count that the rest of the text can hold") != std::string::npos;
        EXPECT_TRUE(isTheEnd || isACount) << size << ": " << complaints[0];
    }
    EXPECT_EQ(set.physics->serialise(), text);
}

TEST(PhysicsSerialiser, complaintNamesTheLineAndWhatWasExpected)
{
    scripted::World world;
    Physics physics(world.model(), false);

    EXPECT_EQ(physics.checkSerialised("0\n3\n0 0\nfive\n"),
              std::vector<std::string>{"4: expected the number of interfaces of the location model (a whole number of "
                                       "32 bits), found \"five\""});
    EXPECT_EQ(physics.checkSerialised(""), std::vector<std::string>{"1: expected the format version (a whole number of "
                                                                    "32 bits), found the end of the text"});
}

TEST(PhysicsSerialiser, regionThatTheGeometryLacksIsRefusedWithTheNearest)
{
    FullSetUp set;
    std::string text = set.physics->serialise();
    text.replace(text.find("0 right\n1 0\n"), 7, "0 rihgt");

    EXPECT_EQ(set.physics->checkSerialised(text),
              std::vector<std::string>{"10: the geometry has no region \"rihgt\"; the nearest is \"right\""});
    EXPECT_FALSE(set.physics->restore(text));
}

TEST(PhysicsSerialiser, textOfAnotherGeometryIsRefusedForEachRegionOfALocation)
{
    const std::string text = FullSetUp().physics->serialise();
    scripted::World world;
    world.face("lid", world.body("box"));
    Physics other(world.model(), true);
    other.createVolume("box", std::string("box"), VolumeType::Fluid);
    const std::string before = other.serialise();

    // The mask, and what lies by location strings, would come back without what they name.
    EXPECT_EQ(other.checkSerialised(text), std::vector<std::string>{"10: the geometry has no region \"right\""});
    EXPECT_FALSE(other.restore(text));
    EXPECT_EQ(other.serialise(), before);
}

TEST(PhysicsSerialiser, regionWithACommaInItsIdDoesNotComeBack)
{
    scripted::World world;
    gtm::Body* body = world.body("cold, wet");
    Physics physics(world.model(), false);
    ASSERT_TRUE(physics.restore(emptyText(0)));
    physics.createVolume("v", std::vector<gtm::Region*>{body}, VolumeType::Fluid);

    EXPECT_EQ(
        physics.checkSerialised(physics.serialise()),
        (std::vector<std::string>{"5: the geometry has no region \"cold\"", "5: the geometry has no region \"wet\""}));
}

TEST(PhysicsSerialiser, maskedBodyThatTheGeometryLacksIsLeftOut)
{
    FullSetUp set;
    std::string text = set.physics->serialise();
    text.replace(text.find("0 right"), 7, "0 far, left");

    ASSERT_TRUE(set.physics->restore(text));

    EXPECT_EQ(set.physics->maskedBodies(), std::vector<gtm::Body*>{set.left});
}

TEST(PhysicsSerialiser, refusalOfTheRehearsalKeepsTheSetUp)
{
    FullSetUp set;
    const std::string text = set.physics->serialise();
    const Volume* volume = set.physics->findVolumeById(1);
    set.world.answers(1).refuseNextInterior = gtm::Interior::State::Overlapping;

    EXPECT_FALSE(set.physics->restore(text));

    EXPECT_EQ(set.physics->findVolumeById(1), volume);
    EXPECT_EQ(set.physics->serialise(), text);
}

TEST(PhysicsSerialiser, refusalAfterTheRehearsalLeavesAnEmptySetUp)
{
    FullSetUp set;
    const std::string text = set.physics->serialise();
    set.world.answers(0).refuseNextInterior = gtm::Interior::State::Overlapping;

    EXPECT_FALSE(set.physics->restore(text));

    EXPECT_TRUE(set.physics->models().empty());
    EXPECT_TRUE(set.physics->volumes().empty());
    EXPECT_TRUE(set.physics->maskedBodies().empty());
}

TEST(PhysicsSerialiser, countsThatTheTextCannotHoldAreRefusedAtOnce)
{
    scripted::World world;
    Physics physics(world.model(), false);

    EXPECT_EQ(physics.checkSerialised("0\n3\n2000000000 0\n"),
              std::vector<std::string>{"3: expected the number of interiors (a count that the rest of the text can "
                                       "hold), found \"2000000000\""});
}

// ---- The example of docs/saved-text.md

/// The text beside its explanations.
std::string documentedText()
{
    std::ifstream page(std::filesystem::path(PHYSICS_SOURCE_DIR) / "docs/saved-text.md");
    std::string line;
    while (std::getline(page, line) && line != "<!-- checked by tests/physics/PhysicsSerialiserTest.cpp -->") {
    }
    std::getline(page, line); // the fence
    std::string text;
    while (std::getline(page, line) && line != "```")
        text += line.substr(0, line.find_last_not_of(' ', line.find('|') - 1) + 1) + "\n";
    return text;
}

TEST(PhysicsSerialiser, documentedExampleIsWhatIsWritten)
{
    scripted::World world;
    world.face("f1", world.body("b1"));
    Physics physics(world.model(), true);
    ASSERT_TRUE(physics.restore(emptyText(0)));
    Volume* plate = physics.createVolume("plate", std::string("b1"), VolumeType::Solid);
    plate->createBoundary("skin", std::vector<gtm::Region*>{world.model()->topology()->findRegionById("f1@b1")},
                          BoundaryType::Wall);
    plate->settings()->createThreadBundle(0, ThreadType::Solid, 7, {1})->setZoneIds({3, 4});

    EXPECT_EQ(physics.serialise(), documentedText());
}

// ---- Damaged texts: either refused with reasons and nothing lost, or what came back is sound

/// Tries damaged texts on one full set-up, which is as it was before each.
class Trial {
public:
    const std::string& text() const { return m_text; }
    std::vector<std::string> complaints(const std::string& damaged) const
    {
        return m_set.physics->checkSerialised(damaged);
    }

    /// Whether the text was accepted.
    bool accepts(const std::string& damaged)
    {
        const std::vector<std::string> complaints = m_set.physics->checkSerialised(damaged);
        const bool isAccepted = m_set.physics->restore(damaged);
        EXPECT_EQ(isAccepted, complaints.empty()) << damaged;
        if (isAccepted)
            expectSound(damaged);
        else
            expectRefused(damaged, complaints);
        return isAccepted;
    }

private:
    void expectSound(const std::string& damaged)
    {
        const std::string again = m_set.physics->serialise();
        EXPECT_TRUE(m_set.physics->restore(again)) << damaged;
        EXPECT_EQ(m_set.physics->serialise(), again) << damaged;
        // Anew, since default boundary types that a text does not name stay.
        m_set.physics = std::make_unique<Physics>(m_set.world.model(), true);
        ASSERT_TRUE(m_set.physics->restore(m_text));
    }

    void expectRefused(const std::string& damaged, const std::vector<std::string>& complaints)
    {
        EXPECT_EQ(m_set.physics->serialise(), m_text) << damaged;
        for (const std::string& complaint : complaints) {
            const int line = std::stoi(complaint);
            EXPECT_GE(line, 1) << complaint;
            EXPECT_LE(line, static_cast<int>(linesOf(damaged).size()) + 1) << complaint;
            EXPECT_EQ(complaint.find('\n'), std::string::npos) << complaint;
        }
    }

    FullSetUp m_set;
    const std::string m_text = m_set.physics->serialise();
};

TEST(PhysicsSerialiser, everyDroppedLineIsRefusedOrSound)
{
    Trial trial;
    const std::vector<std::string> lines = linesOf(trial.text());
    for (std::size_t i = 0; i < lines.size(); ++i) {
        std::vector<std::string> damaged = lines;
        damaged.erase(damaged.begin() + static_cast<std::ptrdiff_t>(i));
        trial.accepts(joined(damaged));
    }
}

TEST(PhysicsSerialiser, everyDoubledLineIsRefusedOrSound)
{
    Trial trial;
    const std::vector<std::string> lines = linesOf(trial.text());
    for (std::size_t i = 0; i < lines.size(); ++i) {
        std::vector<std::string> damaged = lines;
        damaged.insert(damaged.begin() + static_cast<std::ptrdiff_t>(i), lines[i]);
        trial.accepts(joined(damaged));
    }
}

TEST(PhysicsSerialiser, everyReplacedFieldIsRefusedOrSound)
{
    Trial trial;
    const std::string& text = trial.text();
    int refusals = 0;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = text.find_first_of(" \n", start);
        for (const char* replacement : {"-1", "0", "1", "2", "2147483647", "99999999999", "word"}) {
            std::string damaged = text;
            damaged.replace(start, end - start, replacement);
            refusals += trial.accepts(damaged) ? 0 : 1;
        }
        start = end + 1;
    }
    EXPECT_GT(refusals, 100);
}

TEST(PhysicsSerialiser, wordInPlaceOfAFieldIsToldWithItsLine)
{
    Trial trial;
    const std::string& text = trial.text();
    int complaints = 0;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = text.find_first_of(" \n", start);
        std::string damaged = text;
        damaged.replace(start, end - start, "word");
        const std::string line =
            std::to_string(std::count(damaged.begin(), damaged.begin() + static_cast<std::ptrdiff_t>(start), '\n') + 1);
        for (const std::string& complaint : trial.complaints(damaged)) {
            EXPECT_EQ(complaint.find(line + ": "), 0U) << complaint << " instead of line " << line;
            EXPECT_NE(complaint.find(" \"word\""), std::string::npos) << complaint;
            ++complaints;
        }
        start = end + 1;
    }
    EXPECT_GT(complaints, 300);
}

TEST(PhysicsSerialiser, everyByteReplacedByZeroIsRefusedOrSound)
{
    Trial trial;
    const std::string& text = trial.text();
    for (std::size_t i = 0; i < text.size(); ++i) {
        std::string damaged = text;
        damaged[i] = '\0';
        trial.accepts(damaged);
    }
}

TEST(PhysicsSerialiser, lineEndsOfAnotherSystemBelongToNames)
{
    Trial trial;
    std::string damaged;
    for (const char c : trial.text())
        damaged += c == '\n' ? std::string("\r\n") : std::string(1, c);

    EXPECT_FALSE(trial.accepts(damaged));
    EXPECT_EQ(trial.complaints(damaged),
              std::vector<std::string>{"10: the geometry has no region \"right?\"; the nearest is \"right\""});
}

TEST(PhysicsSerialiser, nameWithoutALineEndTakesTheRestOfTheText)
{
    Trial trial;
    std::string damaged = trial.text();
    std::replace(damaged.begin(), damaged.end(), '\n', ' ');

    EXPECT_FALSE(trial.accepts(damaged));
    EXPECT_EQ(trial.complaints(damaged),
              std::vector<std::string>{"1: expected the number of interiors (a whole number of 32 bits), found the end "
                                       "of the text"});
}

} // namespace
} // namespace physics
