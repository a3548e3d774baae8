#include "apps/gmsh/MeshDescription.h"

#include "locationmodel/TopologyBuilder.h"
#include "locationmodel/TopologyFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace {

using physics::apps::buildModel;
using physics::apps::MeshDescription;
using physics::apps::MeshTopology;
using testing::ElementsAre;
using testing::IsEmpty;
using Strings = std::vector<std::string>;

MeshDescription::Surface surface(int tag, const Strings& groups, const std::vector<MeshDescription::Use>& uses)
{
    MeshDescription::Surface result;
    result.tag = tag;
    result.groups = groups;
    result.uses = uses;
    return result;
}

/// The bodies and faces, one a line.
std::string listingOf(const MeshTopology& topology)
{
    const std::string text = writeTopology(*topology.model);
    return text.substr(text.find("\"parts\""));
}

TEST(MeshDescription, groupsNameBodiesPartsAndFaces)
{
    MeshDescription mesh;
    mesh.volumes = {{1, "", {"air"}}, {2, "", {"steel"}}, {5, "fin", {"steel"}}};
    mesh.surfaces = {surface(3, {"inlet"}, {{1, true}}), surface(4, {}, {{1, false}, {2, true}}),
                     surface(6, {"skin"}, {{5, true}})};

    const MeshTopology topology = buildModel(mesh);

    EXPECT_EQ(listingOf(topology), R"("parts": [
    {"id":"steel","bodies":["volume-2","fin"]}
  ],
  "bodies": [
    {"id":"air"},
    {"id":"volume-2"},
    {"id":"fin"}
  ],
  "faces": [
    {"id":"air/inlet","sides":["air"]},
    {"id":"air/face-4","sides":["volume-2","air"]},
    {"id":"fin/skin","sides":["fin"]}
  ]
}
)");
    EXPECT_THAT(topology.notes, IsEmpty());
}

TEST(MeshDescription, whatHasNoPlaceIsTold)
{
    MeshDescription mesh;
    mesh.volumes = {{1, "", {"air", "all"}}};
    mesh.surfaces = {surface(3, {"inlet", "ends"}, {{1, true}}), surface(4, {"baffle"}, {}),
                     surface(5, {"inlet"}, {{1, true}})};
    mesh.uncovered = {{{1}, 12}};
    mesh.periodics = {{5, 3, {1, 0, 0, 0, 0, 1, 0, 1, 0, 0, 1, 0, 0, 0, 0, 1}},
                      {3, 5, {0, -1, 0, 2.5, 1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}},
                      {3, 5, {}},
                      {5, 4, {}}};

    EXPECT_THAT(
        buildModel(mesh).notes,
        ElementsAre("Body \"air\" is also in the group \"all\"; that name is left out.",
                    "Face \"air/inlet\" is also in the group \"ends\"; that name is left out.",
                    "Surface 4 (\"baffle\") bounds no volume and is left out.",
                    "Face \"air/inlet\" is called \"air/inlet-2\" here, because \"air/inlet\" is taken.",
                    "Body \"air\": 12 element faces of its surface are on no surface of the file; they are the "
                    "face \"air/uncovered\".",
                    "The file maps the face \"air/inlet\" onto \"air/inlet-2\" by the translation (0, 1, 0); "
                    "only a periodic interface of a case can say so.",
                    "The file maps the face \"air/inlet-2\" onto \"air/inlet\" by the matrix with the rows "
                    "(0, -1, 0), (1, 0, 0), (0, 0, 1) and then the translation (2.5, 0, 0); only a periodic "
                    "interface of a case can say so.",
                    "The file maps the face \"air/inlet-2\" onto \"air/inlet\" by a transformation that it does "
                    "not tell; only a periodic interface of a case can say so."));
}

TEST(MeshDescription, threeVolumesAtOneSurfaceAreRefused)
{
    MeshDescription mesh;
    mesh.volumes = {{1, "", {}}, {2, "", {}}, {3, "", {}}};
    mesh.surfaces = {surface(7, {}, {{1, true}, {2, false}, {3, true}})};

    try {
        buildModel(mesh);
        FAIL() << "was built";
    } catch (const gtm::bundled::TopologyError& error) {
        EXPECT_STREQ(error.what(),
                     "of the volumes at surface 7, two are on the same side, so they overlap; make them disjoint.");
    }
}

} // namespace
