#include "importers/cgns/CgnsModel.h"

#include "gtm/Body.h"
#include "gtm/Face.h"
#include "gtm/FaceUse.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace {

using gtm::bundled::buildModel;
using gtm::bundled::CgnsDescription;
using gtm::bundled::CgnsPeriodic;
using gtm::bundled::CgnsResult;
using testing::Contains;
using testing::Not;
using Periodicity = CgnsDescription::Periodicity;
using Selection = CgnsDescription::Selection;
using Strings = std::vector<std::string>;

CgnsDescription::Zone block(const std::string& name, const std::vector<CgnsDescription::Patch>& patches = {})
{
    CgnsDescription::Zone zone;
    zone.name = name;
    zone.vertices = {3, 3, 3};
    zone.patches = patches;
    return zone;
}

/// A connectivity of the zone with itself, from its low to its high end or back.
CgnsDescription::Patch around(const std::string& name, bool isLow, const std::optional<Periodicity>& periodicity)
{
    const std::vector<std::int64_t> low = {1, 1, 1, 1, 3, 3};
    const std::vector<std::int64_t> high = {3, 1, 1, 3, 3, 3};
    CgnsDescription::Patch patch;
    patch.name = name;
    patch.kind = CgnsDescription::Patch::Kind::OneToOne;
    patch.selection = {Selection::Location::Vertex, true, isLow ? low : high};
    patch.donorZone = "ring";
    patch.donor = {Selection::Location::Vertex, true, isLow ? high : low};
    patch.periodicity = periodicity;
    return patch;
}

CgnsResult ringWith(const std::optional<Periodicity>& there, const std::optional<Periodicity>& back)
{
    CgnsDescription description;
    description.zones = {block("ring", {around("there", true, there), around("back", false, back)})};
    return buildModel(description, {});
}

const Periodicity along = {{}, {}, {2, 0, 0}};
const Periodicity backAgain = {{}, {}, {-2, 0, 0}};
const std::string names = "Connectivity \"there\" of zone \"ring\" and Connectivity \"back\" of zone \"ring\"";

TEST(CgnsModel, periodicConnectivitiesThatUndoEachOtherAreBeyondDoubt)
{
    const CgnsResult result = ringWith(along, backAgain);

    ASSERT_EQ(result.periodics.size(), 1U);
    EXPECT_EQ(result.periodics[0].firstFace, "ring/there");
    EXPECT_EQ(result.periodics[0].secondFace, "ring/back");
    EXPECT_EQ(result.periodics[0].kind, CgnsPeriodic::Kind::Translation);
    EXPECT_EQ(result.periodics[0].translation, (std::array<double, 3>{2, 0, 0}));
    EXPECT_EQ(result.notes.size(), 2U) << "the pair, and what is uncovered";
}

TEST(CgnsModel, periodicConnectivitiesThatDoNotUndoEachOtherAreDoubted)
{
    const std::string doubt = names + " are periodic, but do not undo each other; what the first says is taken.";
    const Periodicity turned = {{}, {0, 0, 1}, {}};
    const Periodicity turnedBack = {{}, {0, 0, -1.00001}, {}};

    EXPECT_THAT(ringWith(along, along).notes, Contains(doubt));
    EXPECT_THAT(ringWith(along, turned).notes, Contains(doubt));
    EXPECT_THAT(ringWith(turned, turned).notes, Contains(doubt));
    EXPECT_THAT(ringWith(turned, turnedBack).notes, Not(Contains(doubt)));
    EXPECT_EQ(ringWith(along, along).periodics.at(0).translation, along.translation);
}

TEST(CgnsModel, whenOneOfTwoConnectivitiesIsPeriodicItIsTaken)
{
    const CgnsResult first = ringWith(along, std::nullopt);
    const CgnsResult second = ringWith(std::nullopt, backAgain);

    EXPECT_THAT(first.notes, Contains("Only the first of " + names + " is periodic; what it says is taken."));
    EXPECT_EQ(first.periodics.at(0).firstFace, "ring/there");
    EXPECT_THAT(second.notes, Contains("Only the second of " + names + " is periodic; what it says is taken."));
    EXPECT_EQ(second.periodics.at(0).firstFace, "ring/back");
    EXPECT_EQ(second.periodics.at(0).translation, backAgain.translation);
}

TEST(CgnsModel, aZoneWhoseSurfaceIsNotKnownHasNoUncoveredFace)
{
    CgnsDescription description;
    CgnsDescription::Zone zone = block("cloud");
    zone.isStructured = false;
    zone.vertices = {8};
    zone.patches.emplace_back().name = "wall";
    description.zones = {zone};

    const CgnsResult result = buildModel(description, {});

    ASSERT_EQ(result.model->faces().size(), 1U);
    EXPECT_EQ(result.model->faces().at(0)->id(), "cloud/wall");
    EXPECT_EQ(result.notes, (Strings{"Zone \"cloud\" has no cells; its coverage is not known."}));
}

TEST(CgnsModel, zonesThatAreCalledAlikeStayApart)
{
    CgnsDescription description;
    description.zones = {block("a,b"), block("a_b"), block("NONE"), block("")};

    const CgnsResult result = buildModel(description, {});

    Strings ids;
    for (const gtm::Body* body : result.model->bodies()) {
        ids.push_back(body->id());
    }
    EXPECT_EQ(ids, (Strings{"a_b", "a_b-2", "zone-3", "zone-4"}));
    EXPECT_EQ(result.renamed, (std::map<std::string, std::string>{
                                  {"a_b", "a,b"}, {"a_b-2", "a_b"}, {"zone-3", "NONE"}, {"zone-4", ""}}));
}

TEST(CgnsModel, aFamilyMayBeCalledLikeAZone)
{
    CgnsDescription description;
    description.zones = {block("a"), block("b"), block("c")};
    description.zones[1].family = "a";
    description.zones[2].family = "a";

    const CgnsResult result = buildModel(description, {true});

    ASSERT_EQ(result.model->bodies().size(), 2U);
    EXPECT_EQ(result.zones.at(0).body, "a");
    EXPECT_EQ(result.zones.at(1).body, "a-2");
    EXPECT_EQ(result.zones.at(2).body, "a-2");
    EXPECT_EQ(result.renamed, (std::map<std::string, std::string>{{"a-2", "a"}}));
    EXPECT_EQ(result.model->faces().at(2)->id(), "c/uncovered");
}

} // namespace
