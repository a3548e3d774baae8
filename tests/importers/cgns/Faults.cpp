#include "tests/importers/cgns/Faults.h"

namespace cgnstests {

namespace {

void addElements(CgnsFileMaker& maker, std::int64_t type, const CgnsFileMaker::Numbers& range,
                 const CgnsFileMaker::Numbers& connectivity)
{
    const auto zone = maker.addHexahedron("cube");
    const auto elements = maker.addNumbers(zone, "More", "Elements_t", {type, 0});
    maker.addNumbers(elements, "ElementRange", "IndexRange_t", range);
    maker.addNumbers(elements, "ElementConnectivity", "DataArray_t", connectivity);
}

void addPeriodic(CgnsFileMaker& maker, const std::vector<double>& angles)
{
    const auto zone = maker.addZone("box");
    const auto node = maker.addConnectivity(zone, "low", "box", {1, 1, 1, 1, 3, 3}, {3, 1, 1, 3, 3, 3});
    const auto property = maker.add(node, "GridConnectivityProperty", "GridConnectivityProperty_t");
    maker.addReals(maker.add(property, "Periodic", "Periodic_t"), "RotationAngle", "DataArray_t", angles);
}

const std::vector<Fault> allFaults = {
    {"noBase", [](CgnsFileMaker&) {}, "the file has no CGNS base; export it again as CGNS.", true, ""},
    {"twoBases", [](CgnsFileMaker& maker) { maker.addBase("Other"); },
     "the file has several bases, among them \"Base\" and \"Other\"; write each into a file of its own."},
    {"aBaseOfSurfaces",
     [](CgnsFileMaker& maker) {
         maker.addBase("Flat", {2, 3});
     },
     "the base \"Flat\" does not hold three-dimensional cells in three-dimensional space; export a volume mesh.", true,
     ""},
    {"noZone", [](CgnsFileMaker&) {}, "the base \"Base\" has no zone; export the mesh too."},
    {"aZoneWithoutType",
     [](CgnsFileMaker& maker) {
         maker.addNumbers(maker.base(), "box", "Zone_t", {3, 3, 3, 2, 2, 2, 0, 0, 0});
     },
     "the zone \"box\" does not say whether it is structured; export the file again."},
    {"aZoneWithoutCoordinates",
     [](CgnsFileMaker& maker) {
         const auto zone = maker.addNumbers(maker.base(), "box", "Zone_t", {3, 3, 3, 2, 2, 2, 0, 0, 0});
         maker.addText(zone, "ZoneType", "ZoneType_t", "Structured");
     },
     "the zone \"box\" has no coordinates; export the mesh too."},
    {"aZoneLargerThanItsCoordinates",
     [](CgnsFileMaker& maker) {
         const auto zone = maker.addNumbers(maker.base(), "box", "Zone_t", {8, 1000000000000, 8, 2, 2, 2, 0, 0, 0});
         maker.addText(zone, "ZoneType", "ZoneType_t", "Structured");
         const auto coordinates = maker.add(zone, "GridCoordinates", "GridCoordinates_t");
         maker.addReals(coordinates, "CoordinateX", "DataArray_t", {1, 2, 3, 4, 5, 6, 7, 8});
     },
     "the zone \"box\" has 1000000000000 vertices along an axis, which does not fit its 8 coordinates; export the file "
     "again."},
    {"aZoneOfWrongSize",
     [](CgnsFileMaker& maker) {
         const auto zone = maker.addNumbers(maker.base(), "box", "Zone_t", {8, 1, 0});
         maker.addText(zone, "ZoneType", "ZoneType_t", "Structured");
         const auto coordinates = maker.add(zone, "GridCoordinates", "GridCoordinates_t");
         maker.addReals(coordinates, "CoordinateX", "DataArray_t", {0});
     },
     "the zone \"box\" has a size of 3 numbers instead of 9; export the file again."},
    {"aRangeOutsideTheZone",
     [](CgnsFileMaker& maker) {
         maker.addCondition(maker.addZone("box"), "wall", {1, 1, 1, 1, 3, 9});
     },
     "Condition \"wall\" of zone \"box\" reaches from (1 1 1) to (1 3 9), outside the zone of (3 3 3) vertices; export "
     "the file again."},
    {"aRangeOfFourNumbers",
     [](CgnsFileMaker& maker) {
         maker.addCondition(maker.addZone("box"), "wall", {1, 1, 1, 3});
     },
     "Condition \"wall\" of zone \"box\": \"PointRange\" has 4 numbers, which does not fit the zone; export the file "
     "again."},
    {"anElementListOutsideTheZone",
     [](CgnsFileMaker& maker) {
         const auto condition = maker.addCondition(maker.addHexahedron("cube"), "wall", {});
         maker.addNumbers(condition, "ElementList", "IndexArray_t", {2, 8});
     },
     "Condition \"wall\" of zone \"cube\" reaches from 2 to 8, outside the zone of 7 elements; export the file again."},
    {"elementsOfUnknownType",
     [](CgnsFileMaker& maker) {
         addElements(maker, 99, {8, 8}, {1});
     },
     "the elements \"More\" of the zone \"cube\" are of the unknown type 99; export the file again."},
    {"elementsWithoutTheirVertices",
     [](CgnsFileMaker& maker) {
         addElements(maker, 5, {8, 8}, {1, 2, 9});
     },
     "the elements \"More\" of the zone \"cube\" use a vertex that the zone has not; export the file again."},
    {"elementsCutShort",
     [](CgnsFileMaker& maker) {
         addElements(maker, 5, {8, 8}, {1, 2});
     },
     "the elements \"More\" of the zone \"cube\" end within an element; export the file again."},
    {"elementsOfOtherNumber",
     [](CgnsFileMaker& maker) {
         addElements(maker, 5, {8, 9}, {1, 2, 3});
     },
     "the elements \"More\" of the zone \"cube\" are 1 in number, but their range has 2; export the file again."},
    {"elementsWithNumbersThatAreTaken",
     [](CgnsFileMaker& maker) {
         addElements(maker, 5, {7, 7}, {1, 2, 3});
     },
     "the elements \"More\" of the zone \"cube\" have numbers that other elements have too; export the file again."},
    {"twoAngles",
     [](CgnsFileMaker& maker) {
         addPeriodic(maker, {1, 2});
     },
     "Connectivity \"low\" of zone \"box\": \"RotationAngle\" is not three numbers; export the file again."},
    {"anAngleWithoutUnit",
     [](CgnsFileMaker& maker) {
         addPeriodic(maker, {0, 0, 1});
     },
     "Connectivity \"low\" of zone \"box\" has an angle without a unit; it is taken to be in radians.", false},
    {"aPeriodicConnectivityWithoutAnswer",
     [](CgnsFileMaker& maker) {
         addPeriodic(maker, {0, 0, 0});
     },
     "Connectivity \"low\" of zone \"box\" is not answered by exactly one connectivity of zone \"box\"; its face has "
     "one side only.",
     false},
    {"aConnectivityToAZoneThatIsNotThere",
     [](CgnsFileMaker& maker) {
         maker.addConnectivity(maker.addZone("box"), "seam", "moon", {1, 1, 1, 1, 3, 3}, {1, 1, 1, 1, 3, 3});
     },
     "Connectivity \"seam\" of zone \"box\" leads to zone \"moon\", which is not in the file; its face has one side "
     "only.",
     false},
    {"aConnectivityWithoutAnswer",
     [](CgnsFileMaker& maker) {
         maker.addConnectivity(maker.addZone("a"), "seam", "b", {1, 1, 1, 1, 3, 3}, {3, 1, 1, 3, 3, 3});
         maker.addZone("b");
     },
     "Connectivity \"seam\" of zone \"a\" is not answered by zone \"b\"; its face has both sides all the same.", false},
    {"sidesOfDifferentSize",
     [](CgnsFileMaker& maker) {
         maker.addConnectivity(maker.addZone("a"), "seam", "b", {1, 1, 1, 1, 3, 3}, {3, 1, 1, 3, 3, 2});
         maker.addZone("b");
     },
     "Connectivity \"seam\" of zone \"a\" has 4 cell faces on one side and 2 on the other, though it is one to one.",
     false},
    {"overlappingPatches",
     [](CgnsFileMaker& maker) {
         const auto zone = maker.addZone("box");
         maker.addCondition(zone, "wall", {1, 1, 1, 1, 3, 3});
         maker.addCondition(zone, "inlet", {1, 1, 1, 1, 3, 2});
     },
     "Zone \"box\": 2 cell faces of its surface are in \"wall\" and in \"inlet\" too; check which of the two they "
     "belong to.",
     false},
    {"aConditionWithoutPoints", [](CgnsFileMaker& maker) { maker.addCondition(maker.addZone("box"), "wall", {}); },
     "Condition \"wall\" of zone \"box\" names no points; only 0 cell faces of it are known.", false},
    {"aConditionOnALine",
     [](CgnsFileMaker& maker) {
         maker.addCondition(maker.addZone("box"), "wall", {1, 1, 1, 1, 1, 3});
     },
     "Condition \"wall\" of zone \"box\" names points that are not cell faces; only 0 cell faces of it are known.",
     false},
    {"aFamilyThatIsNotThere",
     [](CgnsFileMaker& maker) {
         const auto wall = maker.addCondition(maker.addZone("box"), "wall", {1, 1, 1, 1, 3, 3}, "FamilySpecified");
         maker.addText(wall, "FamilyName", "FamilyName_t", "Walls");
     },
     "Condition \"wall\" of zone \"box\" leaves its type to the family \"Walls\", which has none; the type is not "
     "known.",
     false},
    {"polyhedra",
     [](CgnsFileMaker& maker) {
         addElements(maker, 22, {8, 8}, {3, 1, 2, 3});
     },
     "Zone \"cube\" has polyhedra and other cells beside them; its coverage is not known.", false},
    {"overset",
     [](CgnsFileMaker& maker) {
         const auto seams = maker.add(maker.addZone("box"), "ZoneGridConnectivity", "ZoneGridConnectivity_t");
         const auto seam = maker.addText(seams, "hole", "GridConnectivity_t", "box");
         maker.addText(seam, "GridConnectivityType", "GridConnectivityType_t", "Overset");
     },
     "Connectivity \"hole\" of zone \"box\" is of the kind overset, in which zones overlap; it is left out.", false},
    {"aNodeInAnotherFile",
     [](CgnsFileMaker& maker) {
         maker.addLink(maker.addZone("box"), "GridCoordinates2", "grid.cgns", "/Base/box/GridCoordinates");
     },
     "the node \"GridCoordinates2\" lies in another file, \"grid.cgns\"; write everything into one file."},
    {"aNameWithControlCharacters",
     [](CgnsFileMaker& maker) {
         maker.addCondition(maker.addZone("box\x1b[2J"), "wall", {1, 1, 1, 1, 3, 9});
     },
     "Condition \"wall\" of zone \"box\\u001b[2J\" reaches from (1 1 1) to (1 3 9), outside the zone of (3 3 3) "
     "vertices; export the file again."},
    {"aFamilyNameOfMoreThanThirtyTwoCharacters",
     [](CgnsFileMaker& maker) {
         const auto wall = maker.addCondition(maker.addZone("box"), "wall", {1, 1, 1, 1, 3, 3}, "FamilySpecified");
         maker.addText(wall, "FamilyName", "FamilyName_t", std::string(40, 'f'));
     },
     "Condition \"wall\" of zone \"box\" leaves its type to the family \"" + std::string(40, 'f') +
         "\", which has none; the type is not known.",
     false},
    {"aDonorNamedWithItsBaseThatIsNotThere",
     [](CgnsFileMaker& maker) {
         maker.addConnectivity(maker.addZone("box"), "seam", "Base/" + std::string(32, 'z'), {1, 1, 1, 1, 3, 3},
                               {1, 1, 1, 1, 3, 3});
     },
     "Connectivity \"seam\" of zone \"box\" leads to zone \"" + std::string(32, 'z') +
         "\", which is not in the file; its face has one side only.",
     false},
    {"aTextWhereNumbersShouldBe",
     [](CgnsFileMaker& maker) {
         maker.addText(maker.addCondition(maker.addZone("box"), "wall", {}), "PointList", "IndexArray_t", "1 2 3");
     },
     "the node \"PointList\" should hold whole numbers but is of type \"C1\"; export the file again."},
    {"cellsWithoutTheirPolygons",
     [](CgnsFileMaker& maker) {
         addElements(maker, 23, {8, 8}, {1, 9});
     },
     "the elements \"More\" of the zone \"cube\" use a polygon that the zone has not; export the file again."},
    {"anOrdinalThatIsNoNumberOfAZone",
     [](CgnsFileMaker& maker) { maker.addNumbers(maker.addZone("box"), "Ordinal", "Ordinal_t", {-3}); },
     "Zone \"box\" has the ordinal -3, which cannot be the number of a solver zone; it gets another number.", false},
    {"cellsOfAnEdge",
     [](CgnsFileMaker& maker) {
         maker.addText(maker.addCondition(maker.addZone("box"), "wall", {1, 1, 1, 1, 1, 2}), "GridLocation",
                       "GridLocation_t", "CellCenter");
     },
     "Condition \"wall\" of zone \"box\" names points that are not cell faces; only 0 cell faces of it are known.",
     false},
};

} // namespace

void PrintTo(const Fault& fault, std::ostream* stream) { *stream << fault.name; }

const std::vector<Fault>& faults() { return allFaults; }

} // namespace cgnstests
