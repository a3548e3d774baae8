#include "importers/cgns/Seams.h"

#include <gtest/gtest.h>

namespace {

using gtm::bundled::CgnsDescription;
using gtm::bundled::PatchPlace;
using gtm::bundled::Seams;
using Kind = CgnsDescription::Patch::Kind;
using Selection = CgnsDescription::Selection;
using Numbers = std::vector<std::int64_t>;

CgnsDescription::Zone zone(const std::string& name, const std::vector<CgnsDescription::Patch>& patches)
{
    CgnsDescription::Zone zone;
    zone.name = name;
    zone.vertices = {3, 3, 3};
    zone.patches = patches;
    return zone;
}

CgnsDescription::Patch seam(const std::string& donor, const Numbers& range, const Numbers& donorRange,
                            Kind kind = Kind::OneToOne)
{
    CgnsDescription::Patch patch;
    patch.name = "seam";
    patch.kind = kind;
    patch.selection = {Selection::Location::Vertex, true, range};
    patch.donorZone = donor;
    patch.donor = {Selection::Location::Vertex, true, donorRange};
    return patch;
}

const Numbers low = {1, 1, 1, 1, 3, 3};
const Numbers high = {3, 1, 1, 3, 3, 3};
const Numbers highBackwards = {3, 3, 3, 3, 1, 1};

TEST(Seams, rangesThatAreEachOthersDonorsAnswerWhateverTheirOrder)
{
    CgnsDescription description;
    description.zones = {zone("a", {seam("b", high, low)}), zone("b", {seam("a", low, highBackwards)})};

    const Seams seams(description);

    EXPECT_EQ(seams.answerTo({0, 0}), (PatchPlace{1, 0}));
    EXPECT_EQ(seams.answerTo({1, 0}), (PatchPlace{0, 0}));
}

TEST(Seams, rangesThatDifferDoNotAnswer)
{
    CgnsDescription description;
    description.zones = {zone("a", {seam("b", high, low)}), zone("b", {seam("a", low, {3, 1, 1, 3, 3, 2})})};

    EXPECT_EQ(Seams(description).answerTo({0, 0}), std::nullopt);
}

TEST(Seams, aConnectivityWithinAZoneIsNotItsOwnAnswer)
{
    CgnsDescription description;
    description.zones = {zone("a", {seam("a", high, low), seam("a", low, high)})};

    const Seams seams(description);

    EXPECT_EQ(seams.answerTo({0, 0}), (PatchPlace{0, 1}));
    EXPECT_EQ(seams.answerTo({0, 1}), (PatchPlace{0, 0}));
}

TEST(Seams, equalConnectivitiesAreAnsweredOneByOne)
{
    CgnsDescription description;
    description.zones = {zone("a", {seam("b", high, low), seam("b", high, low)}), zone("b", {seam("a", low, high)})};

    const Seams seams(description);

    EXPECT_EQ(seams.answerTo({0, 0}), (PatchPlace{1, 0}));
    EXPECT_EQ(seams.answerTo({0, 1}), std::nullopt);
}

TEST(Seams, theOnlyAbuttingOnesBetweenTwoZonesAnswerThoughTheirMeshesDoNotFit)
{
    CgnsDescription description;
    description.zones = {zone("a", {seam("b", high, {}, Kind::General)}),
                         zone("b", {seam("a", low, {}, Kind::General)})};

    EXPECT_EQ(Seams(description).answerTo({1, 0}), (PatchPlace{0, 0}));
}

TEST(Seams, whereSeveralCouldNoneAnswers)
{
    CgnsDescription description;
    description.zones = {zone("a", {seam("b", high, {}, Kind::General), seam("b", low, {}, Kind::General)}),
                         zone("b", {seam("a", low, {}, Kind::General)})};

    const Seams seams(description);

    EXPECT_EQ(seams.answerTo({0, 0}), std::nullopt);
    EXPECT_EQ(seams.answerTo({1, 0}), std::nullopt);
}

TEST(Seams, conditionsAndLostDonorsHaveNoAnswer)
{
    CgnsDescription::Patch wall;
    wall.name = "wall";
    CgnsDescription description;
    description.zones = {zone("a", {wall, seam("moon", high, low)})};

    const Seams seams(description);

    EXPECT_EQ(seams.answerTo({0, 0}), std::nullopt);
    EXPECT_EQ(seams.answerTo({0, 1}), std::nullopt);
    EXPECT_EQ(seams.findZone("a"), 0U);
    EXPECT_EQ(seams.findZone("moon"), std::nullopt);
}

} // namespace
