#include "locationmodel/TopologyFile.h"

#include "gtm/LocationModel.h"
#include "locationmodel/LocationModel.h"
#include "locationmodel/TopologyBuilder.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <string>
#include <vector>

namespace {

using gtm::bundled::LocationModel;
using gtm::bundled::readTopology;
using gtm::bundled::readTopologyText;
using gtm::bundled::TopologyBuilder;
using gtm::bundled::TopologyError;
using gtm::bundled::writeTopology;

std::string textOf(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

std::string refusalOf(const std::string& text)
{
    try {
        readTopologyText(text, "t.json");
    } catch (const TopologyError& error) {
        return error.what();
    }
    return "no error";
}

TEST(TopologyFile, theExampleOfTheDocumentationIsRead)
{
    const std::string page = textOf(std::filesystem::path(PHYSICS_SOURCE_DIR) / "docs/topology-file.md");
    const std::string fence = "```json\n";
    const std::size_t start = page.find(fence) + fence.size();

    const auto model = readTopologyText(page.substr(start, page.find("```", start) - start), "example");

    ASSERT_EQ(model->parts().size(), 1U);
    EXPECT_EQ(model->parts()[0]->bodies().size(), 2U);
    ASSERT_EQ(model->bodies().size(), 3U);
    EXPECT_EQ(model->bodies()[1]->id(), "plate");
    EXPECT_EQ(model->solverZoneMap()->externalBodies(model->bodies()[2]).size(), 2U);
    ASSERT_EQ(model->faces().size(), 5U);
    EXPECT_EQ(model->faceUses().size(), 8U);
    EXPECT_EQ(model->faces()[1]->secondFaceUse()->id(), "hot wall@plate");
    EXPECT_EQ(model->solverZoneMap()->externalFaceSides(model->faces()[1]->secondFaceUse())[0].sideWord, 1);
    EXPECT_EQ(model->faces()[3]->firstFaceUse()->id(), "way out");
    EXPECT_EQ(model->faces()[4]->secondFaceUse()->id(), "baffle@hot#2");
}

TEST(TopologyFile, aModelIsWrittenOneRegionALine)
{
    TopologyBuilder builder;
    builder.addPart("p");
    builder.addPart("q");
    builder.addBody("b", "p", {1, -2});
    builder.addBody("c \"x\"");
    builder.addFace("f", {"b", "", {{7, 0}, {8, 2}}}, TopologyBuilder::Side{"c \"x\"", "own", {}});
    builder.addFace("g", {"b", "", {}}, TopologyBuilder::Side{"b", "", {}});

    EXPECT_EQ(writeTopology(*builder.build()), R"({
  "format": "physics-topology",
  "version": 1,
  "parts": [
    {"id":"p","bodies":["b"]},
    {"id":"q","bodies":[]}
  ],
  "bodies": [
    {"id":"b","zones":[1,-2]},
    {"id":"c \"x\""}
  ],
  "faces": [
    {"id":"f","sides":[{"body":"b","zones":[7,{"zone":8,"side":2}]},{"body":"c \"x\"","id":"own"}]},
    {"id":"g","sides":["b","b"]}
  ]
}
)");
}

TEST(TopologyFile, whatIsWrittenIsReadBackToTheSame)
{
    TopologyBuilder builder;
    builder.addPart("p");
    builder.addBody("b", "p", {1});
    builder.addBody("c", "", {std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()});
    builder.addFace("f", {"b", "left", {{7, 1}}}, TopologyBuilder::Side{"c", "", {{-7, 0}}});
    builder.addFace("\xC3\xA9/*?!\"", {"c", "", {}});
    const std::string text = writeTopology(*builder.build());

    EXPECT_EQ(writeTopology(*readTopologyText(text, "t.json")), text);
}

TEST(TopologyFile, anEmptyModelIsWrittenAndRead)
{
    const std::string text = writeTopology(*TopologyBuilder().build());

    EXPECT_EQ(text, "{\n  \"format\": \"physics-topology\",\n  \"version\": 1,\n  \"parts\": [],\n  \"bodies\": [],\n"
                    "  \"faces\": []\n}\n");
    EXPECT_TRUE(readTopologyText(text, "t.json")->bodies().empty());
}

TEST(TopologyFile, anIdThatIsNotUtf8CannotBeWritten)
{
    TopologyBuilder builder;
    builder.addBody("caf\xE9");
    const auto model = builder.build();

    try {
        writeTopology(*model);
        FAIL() << "no error";
    } catch (const TopologyError& error) {
        EXPECT_STREQ(error.what(), "An id of the topology is not UTF-8, which a topology file cannot hold: "
                                   "{\"id\":\"caf\\ufffd\"}.");
    }
}

TEST(TopologyFile, aFileIsRead)
{
    const std::filesystem::path file = std::filesystem::path(::testing::TempDir()) / "TopologyFileAFileIsRead.json";
    std::ofstream(file) << R"({"format": "physics-topology", "version": 1, "bodies": [{"id": "b"}]})";

    const auto model = readTopology(file);

    ASSERT_EQ(model->bodies().size(), 1U);
    EXPECT_EQ(model->solverZoneMap(), nullptr);
    std::filesystem::remove(file);
}

TEST(TopologyFile, aMissingFileIsRefused)
{
    try {
        readTopology("no/such.json");
        FAIL() << "no error";
    } catch (const TopologyError& error) {
        EXPECT_STREQ(error.what(), "no/such.json: cannot read this file: No such file or directory.");
    }
}

// Each way in which a file can be wrong. The members of `bodies` and `faces` stand on lines of their own.

struct BadFile {
    std::string name;
    std::string text;
    std::string message;
};

void PrintTo(const BadFile& file, std::ostream* stream) { *stream << file.name; }

std::string document(const std::string& parts, const std::string& bodies, const std::string& faces)
{
    return "{\"format\": \"physics-topology\", \"version\": 1,\n\"parts\": [" + parts + "],\n\"bodies\": [" + bodies +
           "],\n\"faces\": [" + faces + "]}";
}

const std::string integers = "expected a whole number from -2147483648 to 2147483647.";
const std::string two = R"({"id": "b"}, {"id": "c"})";

const std::vector<BadFile> badFiles = {
    {"notJson", "topology",
     "t.json:1:2: this is not valid JSON: syntax error while parsing value - invalid literal; "
     "last read: 'to'."},
    {"truncated", "{\"format\": \"physics-topology\"",
     "t.json:1:30: this is not valid JSON: syntax error while parsing object - unexpected end of input; expected '}'."},
    {"aList", "[]", "t.json:1:1: at the top level: read an empty list, expected an object."},
    {"noFormat", "{\"version\": 1}",
     "t.json:1:1: at the top level: read an object, expected an object with the key \"format\"."},
    {"otherFormat", "{\"format\": \"physics-case\", \"version\": 1}",
     "t.json:1:12: at /format: read \"physics-case\", expected \"physics-topology\"."},
    {"otherVersion", "{\"format\": \"physics-topology\", \"version\": 2}",
     "t.json:1:43: at /version: read 2, expected 1, the only version known so far."},
    {"versionInQuotes", "{\"format\": \"physics-topology\", \"version\": \"1\"}",
     "t.json:1:43: at /version: read \"1\", " + integers},
    {"noBodies", "{\"format\": \"physics-topology\", \"version\": 1}",
     "t.json:1:1: at the top level: read an object, expected an object with the key \"bodies\"."},
    {"unknownKey", "{\"format\": \"physics-topology\", \"version\": 1, \"bodys\": []}",
     "t.json:1:46: at /bodys: there is no key \"bodys\" here; did you mean \"bodies\"?"},
    {"keyTwice", "{\"format\": \"physics-topology\", \"version\": 1,\n \"version\": 1}",
     "t.json:2:2: the key \"version\" stands twice in one object; leave only one of them."},
    {"bodyWithoutId", document("", "{}", ""),
     "t.json:3:12: at /bodies/0: read an empty object, expected an object with the key \"id\"."},
    {"bodyAsString", document("", "\"b\"", ""), "t.json:3:12: at /bodies/0: read \"b\", expected an object."},
    {"idNotAString", document("", "{\"id\": 7}", ""), "t.json:3:19: at /bodies/0/id: read 7, expected a string."},
    {"emptyId", document("", "{\"id\": \"\"}", ""),
     "t.json:3:19: at /bodies/0/id: The id \"\" of a body is empty; give it another id."},
    {"idWithComma", document("", "{\"id\": \"a,b\"}", ""),
     "t.json:3:19: at /bodies/0/id: The id \"a,b\" of a body has a comma, which separates the terms of a location; "
     "give it another id."},
    {"idWithLineEnd", document("", "{\"id\": \"a\\nb\"}", ""),
     "t.json:3:19: at /bodies/0/id: The id \"a?b\" of a body has a line end or another control character; give it "
     "another id."},
    {"idWithBlank", document("", "{\"id\": \"b \"}", ""),
     "t.json:3:19: at /bodies/0/id: The id \"b \" of a body begins or ends with a blank; give it another id."},
    {"bodyTwice", document("", "{\"id\": \"b\"}, {\"id\": \"b\"}", ""),
     "t.json:3:32: at /bodies/1/id: The id \"b\" of a body is already the id of a body; every region needs an id of "
     "its own."},
    {"partAndBody", document("{\"id\": \"b\", \"bodies\": []}", "{\"id\": \"b\"}", ""),
     "t.json:3:19: at /bodies/0/id: The id \"b\" of a body is already the id of a part; every region needs an id of "
     "its own."},
    {"zoneNotANumber", document("", "{\"id\": \"b\", \"zones\": [1, \"2\"]}", ""),
     "t.json:3:37: at /bodies/0/zones/1: read \"2\", " + integers},
    {"zoneTooLarge", document("", "{\"id\": \"b\", \"zones\": [3000000000]}", ""),
     "t.json:3:34: at /bodies/0/zones/0: read 3000000000, " + integers},
    {"zonesNotAList", document("", "{\"id\": \"b\", \"zones\": 1}", ""),
     "t.json:3:33: at /bodies/0/zones: read 1, expected a list."},
    {"partWithoutBodies", document("{\"id\": \"p\"}", two, ""),
     "t.json:2:11: at /parts/0: read an object, expected an object with the key \"bodies\"."},
    {"partOfUnknownBody", document("{\"id\": \"p\", \"bodies\": [\"B\"]}", two, ""),
     "t.json:2:34: at /parts/0/bodies/0: read \"B\", expected the id of a body in \"bodies\"; did you mean \"b\"?"},
    {"bodyInTwoParts", document("{\"id\": \"p\", \"bodies\": [\"b\"]}, {\"id\": \"q\", \"bodies\": [\"b\"]}", two, ""),
     "t.json:2:64: at /parts/1/bodies/0: the body \"b\" is already in the part \"p\"; a body is in one part at most."},
    {"faceWithoutSides", document("", two, "{\"id\": \"f\"}"),
     "t.json:4:11: at /faces/0: read an object, expected an object with the key \"sides\"."},
    {"faceWithNoBody", document("", two, "{\"id\": \"f\", \"sides\": []}"),
     "t.json:4:32: at /faces/0/sides: the face has 0 sides, expected one, or two where it separates bodies."},
    {"faceWithThreeBodies", document("", two, R"({"id": "f", "sides": ["b", "c", "b"]})"),
     "t.json:4:32: at /faces/0/sides: the face has 3 sides, expected one, or two where it separates bodies."},
    {"faceOfUnknownBody", document("", two, R"({"id": "f", "sides": ["d"]})"),
     "t.json:4:33: at /faces/0/sides/0: read \"d\", expected the id of a body in \"bodies\"; known are \"b\", \"c\"."},
    {"faceOfAPart", document("{\"id\": \"fluids\", \"bodies\": []}", two, R"({"id": "f", "sides": ["fluids"]})"),
     "t.json:4:33: at /faces/0/sides/0: read \"fluids\", expected the id of a body in \"bodies\"; known are \"b\", "
     "\"c\"."},
    {"sideOfTheWrongKind", document("", two, R"({"id": "f", "sides": [3]})"),
     "t.json:4:33: at /faces/0/sides/0: read 3, expected the id of a body, or an object with the key \"body\"."},
    {"sideWithUnknownKey", document("", two, R"({"id": "f", "sides": [{"body": "b", "zone": 1}]})"),
     "t.json:4:47: at /faces/0/sides/0/zone: there is no key \"zone\" here; did you mean \"zones\"?"},
    {"sideWithEmptyId", document("", two, R"({"id": "f", "sides": [{"body": "b", "id": ""}]})"),
     "t.json:4:53: at /faces/0/sides/0/id: read \"\", expected an id; leave the key out for the usual one."},
    {"sideZoneOfTheWrongKind", document("", two, R"({"id": "f", "sides": [{"body": "b", "zones": [true]}]})"),
     "t.json:4:57: at /faces/0/sides/0/zones/0: read true, expected a zone id, or an object with the keys \"zone\" "
     "and \"side\"."},
    {"sideZoneWithoutSide", document("", two, R"({"id": "f", "sides": [{"body": "b", "zones": [{"zone": 1}]}]})"),
     "t.json:4:57: at /faces/0/sides/0/zones/0: read an object, expected an object with the key \"side\"."},
    {"faceUseIdTaken", document("", two, R"({"id": "f", "sides": [{"body": "b", "id": "c"}]})"),
     "t.json:4:18: at /faces/0/id: The id \"c\" of a face use is already the id of a body; every region needs an id "
     "of its own."},
    {"faceUseIdOfItsFace", document("", two, R"({"id": "f", "sides": [{"body": "b", "id": "f"}]})"),
     "t.json:4:18: at /faces/0/id: The id \"f\" is given to two regions of one face; every region needs an id of its "
     "own."},
    {"bothFaceUsesWithOneId",
     document("", two, R"({"id": "f", "sides": [{"body": "b", "id": "x"}, {"body": "c", "id": "x"}]})"),
     "t.json:4:18: at /faces/0/id: The id \"x\" is given to two regions of one face; every region needs an id of its "
     "own."},
};

class BadTopologyFile : public ::testing::TestWithParam<BadFile> {};

TEST_P(BadTopologyFile, isRefusedWithItsPlaceAndReason) { EXPECT_EQ(refusalOf(GetParam().text), GetParam().message); }

INSTANTIATE_TEST_SUITE_P(Each, BadTopologyFile, ::testing::ValuesIn(badFiles),
                         [](const auto& file) { return file.param.name; });

TEST(TopologyFile, whatIsKnownOfBodiesAndFacesIsKept)
{
    const std::string text = "{\n"
                             "  \"format\": \"physics-topology\",\n"
                             "  \"version\": 1,\n"
                             "  \"parts\": [],\n"
                             "  \"bodies\": [\n"
                             "    {\"id\":\"a\",\"volume\":0.125,\"color\":\"#ff8000\"},\n"
                             "    {\"id\":\"b\"}\n"
                             "  ],\n"
                             "  \"faces\": [\n"
                             "    {\"id\":\"f\",\"sides\":[\"a\"],\"area\":0.1,\"centroid\":[0.0,-1.5,2e-07],\"color\":"
                             "\"#00ff00\"},\n"
                             "    {\"id\":\"g\",\"sides\":[\"b\"]}\n"
                             "  ]\n"
                             "}\n";

    const auto model = readTopologyText(text, "t.json");

    EXPECT_EQ(model->facts(model->bodies()[0]).volume, 0.125);
    EXPECT_EQ(model->facts(model->bodies()[0]).color, "#ff8000");
    EXPECT_EQ(model->facts(model->bodies()[1]), gtm::bundled::BodyFacts());
    EXPECT_EQ(model->facts(model->faces()[0]).area, 0.1);
    EXPECT_EQ(model->facts(model->faces()[0]).centroid, (std::array<double, 3>{0, -1.5, 2e-7}));
    EXPECT_EQ(model->facts(model->faces()[0]).color, "#00ff00");
    EXPECT_EQ(model->facts(model->faces()[1]), gtm::bundled::FaceFacts());
    EXPECT_EQ(writeTopology(*model), text);
}

TEST(TopologyFile, aFactThatCannotBeIsRefusedAtItsPlace)
{
    const auto refusalOfFace = [](const std::string& fact) {
        return refusalOf(R"({"format": "physics-topology", "version": 1, "bodies": [{"id": "a"}], "faces": [)"
                         R"({"id": "f", "sides": ["a"], )" +
                         fact + "}]}");
    };

    EXPECT_EQ(refusalOfFace("\"area\": -1"),
              "t.json:1:88: at /faces/0/id: The face \"f\" has an area that is below zero "
              "or not finite; leave it out where it is not known.");
    EXPECT_EQ(refusalOfFace("\"color\": \"red\""),
              "t.json:1:88: at /faces/0/id: The face \"f\" has the colour \"red\"; write it as \"#rrggbb\" in small "
              "letters.");
    EXPECT_EQ(refusalOfFace("\"centroid\": [1, 2]"),
              "t.json:1:121: at /faces/0/centroid: read a list, expected a list of three numbers.");
}

} // namespace
