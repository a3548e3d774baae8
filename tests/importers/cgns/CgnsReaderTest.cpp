#include "importers/cgns/CgnsReader.h"

#include "gtm/Body.h"
#include "gtm/Face.h"
#include "gtm/FaceUse.h"
#include "gtm/TopologyMap.h"
#include "tests/importers/cgns/CgnsFileMaker.h"

#include <gtest/gtest.h>

#include <map>
#include <ostream>
#include <string>

namespace {

using cgnstests::CgnsFileMaker;
using gtm::bundled::CgnsPeriodic;
using gtm::bundled::CgnsResult;
using gtm::bundled::readCgns;
using Strings = std::vector<std::string>;

Strings bodiesOf(const CgnsResult& result)
{
    Strings ids;
    for (const gtm::Body* body : result.model->bodies()) {
        ids.push_back(body->id());
    }
    return ids;
}

/// "ID: BODY" or "ID: BODY | BODY" of each face.
Strings facesOf(const CgnsResult& result)
{
    Strings faces;
    for (const gtm::Face* face : result.model->faces()) {
        faces.push_back(face->id() + ": " + face->firstFaceUse()->body()->id() +
                        (face->secondFaceUse() ? " | " + face->secondFaceUse()->body()->id() : ""));
    }
    return faces;
}

std::size_t noOfSharedFaces(const CgnsResult& result)
{
    std::size_t count = 0;
    for (const gtm::Face* face : result.model->faces()) {
        count += face->secondFaceUse() ? 1 : 0;
    }
    return count;
}

bool isUncovered(const gtm::Face* face) { return face->id().find("/uncovered") != std::string::npos; }

struct Counts {
    std::string file;
    std::size_t bodies;
    std::size_t conditions;
    std::size_t shared;
    std::size_t periodics;
    std::size_t uncovered;
};

void PrintTo(const Counts& counts, std::ostream* stream) { *stream << counts.file; }

class PublicFile : public testing::TestWithParam<Counts> {
protected:
    void SetUp() override
    {
        if (!std::filesystem::exists(path())) {
            GTEST_SKIP() << "no file " << path();
        }
    }

    static std::filesystem::path path() { return std::filesystem::path(PHYSICS_TEST_DATA) / GetParam().file; }
};

TEST_P(PublicFile, hasTheBodiesAndFacesThatItIsKnownToHave)
{
    const CgnsResult result = readCgns(path());

    std::size_t uncovered = 0;
    for (const gtm::Face* face : result.model->faces()) {
        uncovered += isUncovered(face) ? 1 : 0;
    }
    const Counts& known = GetParam();
    EXPECT_EQ(result.model->bodies().size(), known.bodies);
    EXPECT_EQ(result.conditions.size(), known.conditions);
    EXPECT_EQ(noOfSharedFaces(result), known.shared);
    EXPECT_EQ(result.periodics.size(), known.periodics);
    EXPECT_EQ(uncovered, known.uncovered);
    EXPECT_EQ(result.model->faces().size(), known.conditions + known.shared + 2 * known.periodics + known.uncovered);
}

TEST_P(PublicFile, givesTheSameIdsAndNotesOnEveryReading)
{
    const CgnsResult once = readCgns(path());
    const CgnsResult again = readCgns(path());

    EXPECT_EQ(bodiesOf(once), bodiesOf(again));
    EXPECT_EQ(facesOf(once), facesOf(again));
    EXPECT_EQ(once.notes, again.notes);
}

INSTANTIATE_TEST_SUITE_P(CgnsReader, PublicFile,
                         testing::Values(Counts{"cgns/717_wl_L2.cgns", 5, 14, 8, 0, 0},
                                         Counts{"cgns/cgnslib_vers-3420.cgns", 1, 3, 0, 0, 0},
                                         Counts{"cgns/cgnslib_vers-4400.cgns", 1, 3, 0, 0, 0},
                                         Counts{"own/three_zones_periodic_hdf5.cgns", 3, 1, 2, 1, 3},
                                         Counts{"own/three_zones_periodic_adf.cgns", 3, 1, 2, 1, 3}));

TEST(CgnsReader, bothBackEndsGiveTheSame)
{
    const std::filesystem::path folder = std::filesystem::path(PHYSICS_TEST_DATA) / "own";
    if (!std::filesystem::exists(folder)) {
        GTEST_SKIP() << "no folder " << folder;
    }

    const CgnsResult hdf5 = readCgns(folder / "three_zones_periodic_hdf5.cgns");
    const CgnsResult adf = readCgns(folder / "three_zones_periodic_adf.cgns");

    EXPECT_EQ(bodiesOf(hdf5), bodiesOf(adf));
    EXPECT_EQ(facesOf(hdf5), facesOf(adf));
    EXPECT_EQ(hdf5.notes, adf.notes);
    EXPECT_EQ(hdf5.conditions.at(0).type, "BCInflowSubsonic");
    EXPECT_EQ(hdf5.conditions.at(0).family, "Inlet");
    EXPECT_EQ(
        hdf5.notes,
        (Strings{"Nodes that say nothing about bodies and faces are left out: 1 GeometryReference_t, 1 "
                 "UserDefinedData_t.",
                 "The file maps the face \"Zone1/per_lo\" onto \"Zone1/per_hi\" by the translation (0, 1, 0); only a "
                 "periodic interface of a case can say so.",
                 "Zone \"Zone1\": 32 of the 96 cell faces of its surface are in no condition and no connectivity; "
                 "they are the face \"Zone1/uncovered\".",
                 "Zone \"Zone2\": 64 of the 96 cell faces of its surface are in no condition and no connectivity; "
                 "they are the face \"Zone2/uncovered\".",
                 "Zone \"Zone3\": 80 of the 96 cell faces of its surface are in no condition and no connectivity; "
                 "they are the face \"Zone3/uncovered\"."}));
}

class BackEnd : public testing::TestWithParam<int> {};

INSTANTIATE_TEST_SUITE_P(CgnsReader, BackEnd, testing::Values(CGIO_FILE_HDF5, CGIO_FILE_ADF));

TEST_P(BackEnd, connectivitiesThatAnswerEachOtherAreOneFaceOfTwoBodies)
{
    CgnsFileMaker maker("Base", GetParam());
    const auto left = maker.addZone("left");
    maker.addConnectivity(left, "to-right", "right", {3, 1, 1, 3, 3, 3}, {1, 3, 1, 1, 1, 3});
    const auto right = maker.addZone("right");
    maker.addConnectivity(right, "to-left", "left", {1, 1, 1, 1, 3, 3}, {3, 3, 1, 3, 1, 3});

    const CgnsResult result = readCgns(maker.finish());

    EXPECT_EQ(bodiesOf(result), (Strings{"left", "right"}));
    EXPECT_EQ(facesOf(result),
              (Strings{"left/to-right: left | right", "left/uncovered: left", "right/uncovered: right"}));
    EXPECT_EQ(result.notes,
              (Strings{"Zone \"left\": 20 of the 24 cell faces of its surface are in no condition and no "
                       "connectivity; they are the face \"left/uncovered\".",
                       "Zone \"right\": 20 of the 24 cell faces of its surface are in no condition and no "
                       "connectivity; they are the face \"right/uncovered\"."}));
}

TEST_P(BackEnd, theOrderOfTheFileIsKept)
{
    CgnsFileMaker maker("Base", GetParam());
    const auto second = maker.addZone("z");
    const auto first = maker.addZone("a");
    maker.addCondition(first, "y", {1, 1, 1, 1, 3, 3});
    maker.addCondition(first, "b", {3, 1, 1, 3, 3, 3});
    maker.addCondition(second, "x", {1, 1, 1, 1, 3, 3});

    const CgnsResult result = readCgns(maker.finish());

    EXPECT_EQ(bodiesOf(result), (Strings{"z", "a"}));
    EXPECT_EQ(facesOf(result), (Strings{"z/x: z", "a/y: a", "a/b: a", "z/uncovered: z", "a/uncovered: a"}));
}

TEST(CgnsReader, aZoneCoveredAllAroundHasNoUncoveredFace)
{
    CgnsFileMaker maker;
    const auto zone = maker.addZone("box", {2, 3, 4});
    maker.addCondition(zone, "i1", {1, 1, 1, 1, 3, 4});
    maker.addCondition(zone, "i2", {2, 1, 1, 2, 3, 4});
    maker.addCondition(zone, "j1", {1, 1, 1, 2, 1, 4});
    maker.addCondition(zone, "j2", {1, 3, 1, 2, 3, 4});
    maker.addCondition(zone, "k1", {1, 1, 1, 2, 3, 1});
    maker.addCondition(zone, "k2", {2, 3, 4, 1, 1, 4});

    const CgnsResult result = readCgns(maker.finish());

    EXPECT_EQ(facesOf(result),
              (Strings{"box/i1: box", "box/i2: box", "box/j1: box", "box/j2: box", "box/k1: box", "box/k2: box"}));
    EXPECT_EQ(result.notes, Strings{});
}

TEST(CgnsReader, aConnectivityWithinAZoneIsAnInternalFace)
{
    CgnsFileMaker maker;
    const auto zone = maker.addZone("ring");
    maker.addConnectivity(zone, "cut", "ring", {1, 1, 1, 1, 3, 3}, {3, 1, 1, 3, 3, 3});
    maker.addConnectivity(zone, "back", "ring", {3, 1, 1, 3, 3, 3}, {1, 1, 1, 1, 3, 3});

    const CgnsResult result = readCgns(maker.finish());

    EXPECT_EQ(facesOf(result), (Strings{"ring/cut: ring | ring", "ring/uncovered: ring"}));
}

TEST(CgnsReader, aConditionInsideAZoneHasBothSidesInItsBody)
{
    CgnsFileMaker maker;
    maker.addCondition(maker.addZone("box"), "baffle", {2, 1, 1, 2, 3, 3});

    const CgnsResult result = readCgns(maker.finish());

    EXPECT_EQ(facesOf(result), (Strings{"box/baffle: box | box", "box/uncovered: box"}));
    EXPECT_EQ(result.notes.at(0), "Condition \"baffle\" of zone \"box\" lies inside the zone, with 4 cell faces; both "
                                  "sides of its face belong to the same body.");
}

TEST(CgnsReader, oneOfManyFamiliesIsOneBody)
{
    CgnsFileMaker maker;
    for (const char* name : {"a", "b", "c"}) {
        const auto zone = maker.addZone(name);
        if (std::string(name) != "b") {
            maker.addText(zone, "FamilyName", "FamilyName_t", "Fluid");
        }
    }

    const CgnsResult result = readCgns(maker.finish(), {true});

    EXPECT_EQ(bodiesOf(result), (Strings{"Fluid", "b"}));
    EXPECT_EQ(facesOf(result), (Strings{"a/uncovered: Fluid", "b/uncovered: b", "c/uncovered: Fluid"}));
}

struct Angle {
    std::string unit;
    double stored;
    double radians;
    std::string inWords;
};

class AngleUnit : public testing::TestWithParam<Angle> {};

INSTANTIATE_TEST_SUITE_P(CgnsReader, AngleUnit,
                         testing::Values(Angle{"Degree", 180, 3.14159265358979323846, "3.14159265"},
                                         Angle{"Radian", 0.5, 0.5, "0.5"}));

TEST_P(AngleUnit, ofTheBaseHoldsForPeriodicConnectivities)
{
    CgnsFileMaker maker;
    std::string units;
    for (const std::string& unit : {std::string("Kilogram"), std::string("Meter"), std::string("Second"),
                                    std::string("Kelvin"), GetParam().unit}) {
        units += unit + std::string(32 - unit.size(), ' ');
    }
    maker.addText(maker.base(), "DimensionalUnits", "DimensionalUnits_t", units);
    const auto zone = maker.addZone("sector");
    const auto low = maker.addConnectivity(zone, "low", "sector", {1, 1, 1, 1, 3, 3}, {3, 1, 1, 3, 3, 3});
    const auto property = maker.add(low, "GridConnectivityProperty", "GridConnectivityProperty_t");
    const auto periodic = maker.add(property, "Periodic", "Periodic_t");
    maker.addReals(periodic, "RotationCenter", "DataArray_t", {1, 2, 3});
    maker.addReals(periodic, "RotationAngle", "DataArray_t", {0, 0, GetParam().stored});
    maker.addReals(periodic, "Translation", "DataArray_t", {0, 0, 7});
    maker.addConnectivity(zone, "high", "sector", {3, 1, 1, 3, 3, 3}, {1, 1, 1, 1, 3, 3});

    const CgnsResult result = readCgns(maker.finish());

    EXPECT_EQ(facesOf(result), (Strings{"sector/low: sector", "sector/high: sector", "sector/uncovered: sector"}));
    ASSERT_EQ(result.periodics.size(), 1U);
    const CgnsPeriodic& pair = result.periodics.front();
    EXPECT_EQ(pair.name, "low");
    EXPECT_EQ(pair.firstFace, "sector/low");
    EXPECT_EQ(pair.secondFace, "sector/high");
    EXPECT_EQ(pair.kind, CgnsPeriodic::Kind::Rotation);
    EXPECT_EQ(pair.rotationCentre, (std::array<double, 3>{1, 2, 3}));
    EXPECT_DOUBLE_EQ(pair.rotationAngle[2], GetParam().radians);
    EXPECT_EQ(pair.translation, (std::array<double, 3>{0, 0, 7}));
    EXPECT_EQ(result.notes.at(0), "The file maps the face \"sector/low\" onto \"sector/high\" by the angles (0, 0, " +
                                      GetParam().inWords +
                                      ") in radians about axes through (1, 2, 3) and then the translation (0, 0, 7); "
                                      "only a periodic interface of a case can say so.");
}

TEST(CgnsReader, elementsAndVerticesOfAnUnstructuredZoneStandForCellFaces)
{
    CgnsFileMaker maker;
    const auto zone = maker.addHexahedron("cube");
    const auto byList = maker.addCondition(zone, "list", {}, "BCInflow");
    maker.addNumbers(byList, "ElementList", "IndexArray_t", {2, 7});
    const auto byRange = maker.addCondition(zone, "range", {3, 4});
    maker.addText(byRange, "GridLocation", "GridLocation_t", "FaceCenter");
    const auto byVertices = maker.addCondition(zone, "vertices", {});
    maker.addNumbers(byVertices, "PointList", "IndexArray_t", {8, 1, 5, 4});

    const CgnsResult result = readCgns(maker.finish());

    EXPECT_EQ(facesOf(result),
              (Strings{"cube/list: cube", "cube/range: cube", "cube/vertices: cube", "cube/uncovered: cube"}));
    EXPECT_EQ(result.notes, (Strings{"Zone \"cube\": 1 of the 6 cell faces of its surface are in no condition and no "
                                     "connectivity; they are the face \"cube/uncovered\"."}));
}

TEST(CgnsReader, listsOfVerticesAndCellFacesOfAStructuredZoneStandForCellFaces)
{
    CgnsFileMaker maker;
    const auto zone = maker.addZone("box", {2, 2, 2});
    const auto byVertices = maker.addCondition(zone, "vertices", {});
    maker.addNumbers(byVertices, "PointList", "IndexArray_t", {1, 1, 1, 1, 2, 1, 1, 1, 2, 1, 2, 2});
    const auto byFaces = maker.addCondition(zone, "faces", {});
    maker.addNumbers(byFaces, "PointList", "IndexArray_t", {1, 2, 1, 1, 1, 1});
    maker.addText(byFaces, "GridLocation", "GridLocation_t", "JFaceCenter");

    const CgnsResult result = readCgns(maker.finish());

    EXPECT_EQ(result.notes, (Strings{"Zone \"box\": 3 of the 6 cell faces of its surface are in no condition and no "
                                     "connectivity; they are the face \"box/uncovered\"."}));
}

TEST(CgnsReader, abuttingMeshesThatDoNotFitMeetInOneFace)
{
    CgnsFileMaker maker;
    for (const char* name : {"cube", "other"}) {
        const auto zone = maker.addHexahedron(name);
        const auto seams = maker.add(zone, "ZoneGridConnectivity", "ZoneGridConnectivity_t");
        const std::string donor = std::string(name) == "cube" ? "other" : "cube";
        const auto seam = maker.addText(seams, "to-" + donor, "GridConnectivity_t", donor);
        maker.addText(seam, "GridConnectivityType", "GridConnectivityType_t", "Abutting");
        maker.addText(seam, "GridLocation", "GridLocation_t", "FaceCenter");
        maker.addNumbers(seam, "PointList", "IndexArray_t", {2});
    }

    const CgnsResult result = readCgns(maker.finish());

    EXPECT_EQ(facesOf(result),
              (Strings{"cube/to-other: cube | other", "cube/uncovered: cube", "other/uncovered: other"}));
}

TEST(CgnsReader, ordinalsAreTheNumbersOfSolverZonesAndTheRestGetsFreeOnes)
{
    CgnsFileMaker maker;
    const auto left = maker.addZone("left");
    maker.addNumbers(left, "Ordinal", "Ordinal_t", {3});
    const auto right = maker.addZone("right");
    const auto wall = maker.addCondition(left, "wall", {1, 1, 1, 1, 3, 3});
    maker.addNumbers(wall, "Ordinal", "Ordinal_t", {1});
    maker.addConnectivity(left, "seam", "right", {3, 1, 1, 3, 3, 3}, {1, 1, 1, 1, 3, 3});
    maker.addConnectivity(right, "back", "left", {1, 1, 1, 1, 3, 3}, {3, 1, 1, 3, 3, 3});

    const CgnsResult result = readCgns(maker.finish());

    const gtm::TopologyMap* zones = result.model->solverZoneMap();
    std::vector<std::int32_t> numbers;
    for (const gtm::Body* body : result.model->bodies()) {
        numbers.push_back(zones->externalBodies(body).at(0).zoneId);
    }
    for (const gtm::FaceUse* side : result.model->faceUses()) {
        const gtm::ExternalFaceSide zone = zones->externalFaceSides(side).at(0);
        numbers.push_back(zone.sideWord == 0 ? zone.zoneId : -zone.zoneId);
    }
    // Zones left and right, wall, both sides of seam, what is uncovered of left and of right.
    EXPECT_EQ(numbers, (std::vector<std::int32_t>{3, 2, 1, 4, -4, 5, 6}));
}

TEST(CgnsReader, anOrdinalGivenTwiceIsNoted)
{
    CgnsFileMaker maker;
    maker.addNumbers(maker.addZone("a"), "Ordinal", "Ordinal_t", {7});
    maker.addNumbers(maker.addZone("b"), "Ordinal", "Ordinal_t", {7});

    EXPECT_EQ(readCgns(maker.finish()).notes.at(0),
              "Zone \"b\" has the same ordinal as Zone \"a\", 7; both keep it as the number of their solver zone.");
}

TEST(CgnsReader, manyConditionsAreReadEachOnce)
{
    constexpr std::int64_t count = 30;
    CgnsFileMaker maker("Base", CGIO_FILE_ADF);
    const auto zone = maker.addZone("box", {count + 1, count + 1, 2});
    for (std::int64_t j = 1; j <= count; ++j) {
        for (std::int64_t i = 1; i <= count; ++i) {
            maker.addCondition(zone, "bc " + std::to_string(j) + " " + std::to_string(i), {i, j, 1, i + 1, j + 1, 1});
        }
    }

    const CgnsResult result = readCgns(maker.finish());

    EXPECT_EQ(result.conditions.size(), 900U);
    EXPECT_EQ(result.notes, (Strings{"Zone \"box\": 1020 of the 1920 cell faces of its surface are in no condition and "
                                     "no connectivity; they are the face \"box/uncovered\"."}));
}

TEST(CgnsReader, namesThatCannotBeIdsAreMappedByOneRule)
{
    CgnsFileMaker maker;
    const std::string longName(32, 'n');
    const auto zone = maker.addZone(longName);
    maker.addCondition(zone, "wall, hot", {1, 1, 1, 1, 3, 3});
    maker.addCondition(zone, "wall_ hot", {3, 1, 1, 3, 3, 3});
    maker.addCondition(zone, "uncovered", {1, 1, 1, 3, 1, 3});

    const CgnsResult result = readCgns(maker.finish());

    EXPECT_EQ(facesOf(result), (Strings{longName + "/wall_ hot: " + longName, longName + "/wall_ hot-2: " + longName,
                                        longName + "/uncovered: " + longName, longName + "/uncovered-2: " + longName}));
    EXPECT_EQ(result.notes.at(0), "Face \"" + longName + "/wall, hot\" is called \"" + longName +
                                      "/wall_ hot\" here, because an id has no comma, no control character and no "
                                      "blank at its ends.");
    EXPECT_EQ(result.renamed,
              (std::map<std::string, std::string>{{longName + "/wall_ hot", longName + "/wall, hot"},
                                                  {longName + "/wall_ hot-2", longName + "/wall_ hot"}}));
    EXPECT_EQ(result.conditions.at(1).name, "wall_ hot");
}

TEST(CgnsReader, zonesTellTheirBodyTheirNameAndTheirFamily)
{
    CgnsFileMaker maker;
    maker.addText(maker.addZone("a,b"), "FamilyName", "FamilyName_t", "Water");
    maker.addText(maker.addZone("c"), "FamilyName", "FamilyName_t", "Water");
    maker.addZone("d,e");
    const std::filesystem::path& file = maker.finish();
    const auto zonesOf = [](const CgnsResult& result) {
        Strings zones;
        for (const gtm::bundled::CgnsZone& zone : result.zones) {
            zones.push_back(zone.body + ": " + zone.name + " of " + zone.family);
        }
        return zones;
    };

    const CgnsResult zones = readCgns(file);
    const CgnsResult families = readCgns(file, {true});

    EXPECT_EQ(zonesOf(zones), (Strings{"a_b: a,b of Water", "c: c of Water", "d_e: d,e of "}));
    EXPECT_EQ(zones.renamed, (std::map<std::string, std::string>{{"a_b", "a,b"}, {"d_e", "d,e"}}));
    EXPECT_EQ(zonesOf(families), (Strings{"Water: a,b of Water", "Water: c of Water", "d_e: d,e of "}));
    EXPECT_EQ(families.renamed, (std::map<std::string, std::string>{{"d_e", "d,e"}}));
}

} // namespace
