#include "importers/cgns/CgnsFile.h"

#include "importers/cgns/CgnsReader.h"
#include "tests/importers/cgns/MemoryTree.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using cgnstests::MemoryNode;
using cgnstests::MemoryTree;
using cgnstests::Numbers;
using cgnstests::Reals;
using gtm::bundled::CgnsDescription;
using gtm::bundled::CgnsError;
using Kind = CgnsDescription::Patch::Kind;
using Strings = std::vector<std::string>;

MemoryTree zone(const std::string& name, std::vector<MemoryTree> children)
{
    const MemoryTree coordinates{"CoordinateX", "DataArray_t", Reals(27)};
    children.push_back({"ZoneType", "ZoneType_t", "Structured"});
    children.push_back({"GridCoordinates", "GridCoordinates_t", {}, {coordinates}});
    return {name, "Zone_t", Numbers{3, 3, 3, 2, 2, 2, 0, 0, 0}, std::move(children)};
}

CgnsDescription describe(std::vector<MemoryTree> inBase)
{
    const MemoryTree base{"Base", "CGNSBase_t", Numbers{3, 3}, std::move(inBase)};
    const MemoryTree root{"root", "", {}, {{"Version", "CGNSLibraryVersion_t", Reals{4.4}}, base}};
    return gtm::bundled::describe(MemoryNode(root));
}

MemoryTree condition(const std::string& type, const std::string& family)
{
    std::vector<MemoryTree> children = {{"PointRange", "IndexRange_t", Numbers{1, 1, 1, 1, 3, 3}}};
    if (!family.empty()) {
        children.push_back({"FamilyName", "FamilyName_t", family});
    }
    return {"wall", "BC_t", type, std::move(children)};
}

TEST(CgnsFile, aConditionHasItsOwnTypeOrThatOfItsFamily)
{
    const MemoryTree family{"Walls", "Family_t", {}, {{"FamilyBC", "FamilyBC_t", "BCWallViscous"}}};
    const auto typeOf = [&](const std::string& type, const std::string& name) {
        const CgnsDescription description =
            describe({family, zone("box", {{"ZoneBC", "ZoneBC_t", {}, {condition(type, name)}}})});
        EXPECT_EQ(description.zones.at(0).patches.at(0).family, name);
        return description.zones.at(0).patches.at(0).type;
    };

    EXPECT_EQ(typeOf("BCInflow", ""), "BCInflow");
    EXPECT_EQ(typeOf("BCInflow", "Walls"), "BCInflow");
    EXPECT_EQ(typeOf("FamilySpecified", "Walls"), "BCWallViscous");
    EXPECT_EQ(typeOf("FamilySpecified", "Other"), "FamilySpecified");
    EXPECT_EQ(typeOf("FamilySpecified", ""), "FamilySpecified");
}

TEST(CgnsFile, connectivitiesAreToldApartByTheirKind)
{
    const auto general = [](const std::string& name, const std::string& kind) -> MemoryTree {
        return {name, "GridConnectivity_t", "Base/b", {{"Kind", "GridConnectivityType_t", kind}}};
    };
    const CgnsDescription description = describe({zone("a", {{"Seams",
                                                              "ZoneGridConnectivity_t",
                                                              {},
                                                              {{"fitting", "GridConnectivity1to1_t", "b"},
                                                               general("abutting", "Abutting"),
                                                               general("listed", "Abutting1to1"),
                                                               general("overlapping", "Overset")}}})});

    const std::vector<CgnsDescription::Patch>& patches = description.zones.at(0).patches;
    ASSERT_EQ(patches.size(), 3U);
    EXPECT_EQ(patches[0].kind, Kind::OneToOne);
    EXPECT_EQ(patches[1].kind, Kind::General);
    EXPECT_EQ(patches[1].donorZone, "b") << "without its base";
    EXPECT_EQ(patches[2].kind, Kind::OneToOne);
    EXPECT_EQ(description.notes, (Strings{"Connectivity \"overlapping\" of zone \"a\" is of the kind overset, in which "
                                          "zones overlap; it is left out."}));
}

TEST(CgnsFile, whatSaysNothingAboutBodiesAndFacesIsCounted)
{
    const MemoryTree solution{"Flow", "FlowSolution_t", {}, {{"Density", "DataArray_t", Reals{1}}}};
    const CgnsDescription description = describe({{"State", "ReferenceState_t"},
                                                  zone("a", {solution}),
                                                  zone("b", {solution, {"More", "FlowSolution_t"}}),
                                                  {"nameless", ""}});

    EXPECT_EQ(description.notes, (Strings{"Nodes that say nothing about bodies and faces are left out: 3 "
                                          "FlowSolution_t, 1 ReferenceState_t, 1 unnamed."}));
}

TEST(CgnsFile, elementsComeWithTheirStartsAndParents)
{
    const MemoryTree polygons{"Polygons",
                              "Elements_t",
                              Numbers{22, 0},
                              {{"ElementRange", "IndexRange_t", Numbers{1, 1}},
                               {"ElementConnectivity", "DataArray_t", Numbers{1, 2, 3}},
                               {"ElementStartOffset", "DataArray_t", Numbers{0, 3}},
                               {"ParentElements", "DataArray_t", Numbers{7, 0}}}};
    const CgnsDescription::Section section = describe({zone("a", {polygons})}).zones.at(0).sections.at(0);

    EXPECT_EQ(section.type, 22);
    EXPECT_EQ(section.first, 1);
    EXPECT_EQ(section.last, 1);
    EXPECT_EQ(section.connectivity, (Numbers{1, 2, 3}));
    EXPECT_EQ(section.offsets, (Numbers{0, 3}));
    EXPECT_EQ(section.parents, (Numbers{7, 0}));
}

TEST(CgnsFile, ordinalsAreNumbersFromOneUp)
{
    const auto ordinalOf = [](std::int64_t value) {
        return describe({zone("a", {{"Ordinal", "Ordinal_t", Numbers{value}}})}).zones.at(0).ordinal;
    };

    EXPECT_EQ(ordinalOf(1), 1);
    EXPECT_EQ(ordinalOf(INT32_MAX), INT32_MAX);
    EXPECT_EQ(ordinalOf(0), std::nullopt);
    EXPECT_EQ(ordinalOf(INT64_C(1) + INT32_MAX), std::nullopt);
}

TEST(CgnsFile, elementsThatAreIncompleteAreRefused)
{
    const auto refusalOf = [](std::vector<MemoryTree> children) -> std::string {
        try {
            describe({zone("a", {{"Cells", "Elements_t", Numbers{17, 0}, std::move(children)}})});
        } catch (const CgnsError& error) {
            return error.what();
        }
        return {};
    };
    const MemoryTree connectivity{"ElementConnectivity", "DataArray_t", Numbers{1, 2, 3}};

    EXPECT_EQ(refusalOf({connectivity}), "the elements \"Cells\" of the zone \"a\" have no type, no range or no "
                                         "connectivity; export the file again.");
    EXPECT_EQ(refusalOf({connectivity, {"ElementRange", "IndexRange_t", Numbers{3, 1}}}),
              "the elements \"Cells\" of the zone \"a\" have a range that is not two numbers in order; export the file "
              "again.");
}

} // namespace
