#include "apps/CaseReader.h"

#include "apps/CaseReferences.h"
#include "apps/Complaints.h"
#include "physics/TypeNames.h"
#include "support/JsonSource.h"
#include "tests/apps/ToolRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace {

using gtm::support::JsonSource;
using physics::apps::CaseFile;
using physics::apps::checkReferences;
using physics::apps::Complaints;
using physics::apps::readCase;
using testing::ElementsAre;
using testing::IsEmpty;

/// A file with these members at the top.
std::string fileWith(const std::string& members)
{
    return R"({"format": "physics-case", "version": 1, "geometry": "g.json", )" + members + "}";
}

/// What a good file says; a failure of the test when there is anything wrong with it.
CaseFile read(const std::string& text)
{
    Complaints complaints;
    const CaseFile file = readCase(JsonSource::fromText(text, "a.json"), complaints);
    EXPECT_THAT(complaints.lines(), IsEmpty());
    EXPECT_THAT(checkReferences(file), IsEmpty());
    return file;
}

TEST(CaseReader, aFileThatSaysNothingHasTheDefaults)
{
    const CaseFile file = read(R"({"format": "physics-case", "version": 1, "geometry": "g.json"})");

    EXPECT_EQ(file.geometry.file, "g.json");
    EXPECT_FALSE(file.geometry.reading.imprint.has_value());
    EXPECT_FALSE(file.geometry.reading.bodiesAreFamilies);
    EXPECT_TRUE(file.enforceRestrictions);
    EXPECT_THAT(file.models, IsEmpty());
    EXPECT_THAT(file.volumes, IsEmpty());
    EXPECT_THAT(file.interfaces, IsEmpty());
    EXPECT_THAT(file.deactivated, IsEmpty());
}

TEST(CaseReader, theGeometryMayBeAnObjectWithAChoice)
{
    const CaseFile file =
        read(R"({"format": "physics-case", "version": 1, "geometry": {"file": "a.step", "imprint": false}})");

    EXPECT_EQ(file.geometry.path, "/geometry");
    EXPECT_EQ(file.geometry.file, "a.step");
    EXPECT_EQ(file.geometry.reading.imprint, false);
}

TEST(CaseReader, theBodiesOfAMeshMayBeItsFamilies)
{
    const CaseFile file =
        read(R"({"format": "physics-case", "version": 1, "geometry": {"file": "a.cgns", "bodiesAreFamilies": true}})");

    EXPECT_TRUE(file.geometry.reading.bodiesAreFamilies);
    EXPECT_FALSE(file.geometry.reading.imprint.has_value());
}

TEST(CaseReader, aVolumeIsReadWithItsBoundariesAndThreads)
{
    const CaseFile file = read(fileWith(R"("models": [{"name": "m"}], "volumes": [{
        "name": "v", "location": "a, !b", "type": "Porous", "model": "m",
        "threads": [{"type": "Fluid", "threadId": 3, "domains": [1], "zones": [8, -9]}],
        "internalThreads": [{"type": "Interior", "threadId": 4, "index": 2}],
        "boundaries": [{"name": "b", "location": ["f", "g"], "type": "Fan", "tags": ["Interface"],
                        "threads": [{"type": "Fan", "threadId": 5}]}]}])"));

    const CaseFile::Volume& volume = file.volumes.at(0);
    EXPECT_EQ(volume.path, "/volumes/0");
    EXPECT_EQ(volume.name, "v");
    EXPECT_EQ(std::get<std::string>(volume.location.value()), "a, !b");
    EXPECT_EQ(volume.type, physics::VolumeType::Porous);
    EXPECT_EQ(volume.model, "m");
    const CaseFile::Thread& thread = volume.threads.at(0);
    EXPECT_EQ(thread.path, "/volumes/0/threads/0");
    EXPECT_EQ(thread.index, 0);
    EXPECT_EQ(thread.type, physics::ThreadType::Fluid);
    EXPECT_EQ(thread.threadId, 3);
    EXPECT_THAT(thread.domains, ElementsAre(1));
    EXPECT_THAT(thread.zones, ElementsAre(8, -9));
    EXPECT_EQ(volume.internalThreads.at(0).index, 2);
    const CaseFile::Boundary& boundary = volume.boundaries.at(0);
    EXPECT_EQ(boundary.path, "/volumes/0/boundaries/0");
    EXPECT_THAT(std::get<std::vector<std::string>>(boundary.location.value()), ElementsAre("f", "g"));
    EXPECT_EQ(boundary.type, physics::BoundaryType::Fan);
    EXPECT_THAT(boundary.tags, ElementsAre(physics::BoundaryTag::Interface));
    EXPECT_EQ(boundary.threads.at(0).threadId, 5);
    EXPECT_FALSE(boundary.shell.has_value());
}

TEST(CaseReader, whatHasNoLocationIsTheDefault)
{
    const CaseFile file = read(fileWith(R"("volumes": [{"name": "v", "default": true, "type": "Solid",
                                                        "boundaries": [{"name": "b", "default": true}]}])"));

    EXPECT_FALSE(file.volumes.at(0).location.has_value());
    EXPECT_FALSE(file.volumes.at(0).boundaries.at(0).location.has_value());
    EXPECT_EQ(file.volumes.at(0).boundaries.at(0).type, physics::BoundaryType::Unset);
}

TEST(CaseReader, theThreadsOfAListAreNumberedUnlessTheyHaveAnIndex)
{
    const CaseFile file = read(fileWith(R"("volumes": [{"name": "v", "default": true, "type": "Solid", "threads": [
        {"type": "Solid", "threadId": 1}, {"type": "Solid", "threadId": 2},
        {"type": "Solid", "threadId": 3, "index": 7}]}])"));

    EXPECT_EQ(file.volumes.at(0).threads.at(0).index, 0);
    EXPECT_EQ(file.volumes.at(0).threads.at(1).index, 1);
    EXPECT_EQ(file.volumes.at(0).threads.at(2).index, 7);
}

TEST(CaseReader, anInterfaceIsReadWithEverythingOnItsSides)
{
    const CaseFile file =
        read(fileWith(R"("models": [{"name": "m", "domains": [{"id": 2, "type": "Phase", "name": "p"}]}],
        "volumes": [{"name": "v", "default": true, "type": "Fluid", "boundaries": [
            {"name": "a", "location": "a", "shell": {"type": "HeatConduction", "model": "m",
             "threads": [{"type": "Solid", "threadId": 1}]}},
            {"name": "b", "location": "b"}]}],
        "interfaces": [{"name": "i", "type": "Radiator", "model": "m", "meshConnectivity": "NonConformal",
            "between": [{"boundary": "v::a", "threads": [{"type": "Wall", "threadId": 2, "domains": [2]}],
                         "shellThreads": [{"type": "Solid", "threadId": 3}]}, "v::b"],
            "rotation": {"angle": 12.5, "origin": [1, 2, 3], "direction": [0, 0, 1]},
            "isMapped": true, "isStatic": true, "isMeshValid": true,
            "threads": [{"type": "Radiator", "threadId": 4}]}],
        "deactivated": [["v"]], "masked": {"parts": ["p"], "bodies": ["q", "r"]}, "enforceRestrictions": false)"));

    const CaseFile::Shell& shell = file.volumes.at(0).boundaries.at(0).shell.value();
    EXPECT_EQ(shell.type, physics::ShellType::HeatConduction);
    EXPECT_EQ(shell.model, "m");
    EXPECT_EQ(shell.threads.at(0).threadId, 1);
    const CaseFile::Interface& interface = file.interfaces.at(0);
    EXPECT_EQ(interface.path, "/interfaces/0");
    EXPECT_EQ(interface.type, physics::InterfaceType::Radiator);
    EXPECT_EQ(interface.meshConnectivity, physics::MeshConnectivity::NonConformal);
    EXPECT_EQ(interface.sides[0].boundary, "v::a");
    EXPECT_EQ(interface.sides[0].threads.at(0).threadId, 2);
    EXPECT_EQ(interface.sides[0].shellThreads.at(0).threadId, 3);
    EXPECT_EQ(interface.sides[1].boundary, "v::b");
    EXPECT_EQ(interface.sides[1].path, "/interfaces/0/between/1");
    EXPECT_EQ(interface.rotation.value().angle, 12.5);
    EXPECT_THAT(interface.rotation.value().origin, ElementsAre(1, 2, 3));
    EXPECT_THAT(interface.rotation.value().direction, ElementsAre(0, 0, 1));
    EXPECT_FALSE(interface.translation.has_value());
    EXPECT_TRUE(interface.isMapped && interface.isStatic && interface.isMeshValid);
    EXPECT_EQ(interface.threads.at(0).threadId, 4);
    EXPECT_THAT(file.models.at(0).domains.value(), testing::SizeIs(1));
    EXPECT_THAT(file.deactivated.at(0).volumes, ElementsAre("v"));
    EXPECT_THAT(file.maskedParts, ElementsAre("p"));
    EXPECT_THAT(file.maskedBodies, ElementsAre("q", "r"));
    EXPECT_FALSE(file.enforceRestrictions);
}

TEST(CaseReader, everyTypeIsReadByItsDisplayNameExceptUnset)
{
    for (const physics::BoundaryType type : physics::enumerators<physics::BoundaryType>()) {
        if (type != physics::BoundaryType::Unset) {
            const std::string name = physics::displayName(type);
            const CaseFile file = read(fileWith(R"("volumes": [{"name": "v", "default": true, "type": "Fluid",
                "boundaries": [{"name": "b", "default": true, "type": ")" +
                                                name + "\"}]}]"));
            EXPECT_EQ(file.volumes.at(0).boundaries.at(0).type, type);
        }
    }
}

TEST(CaseReader, anEndlessListOfMistakesIsCutOff)
{
    std::string volumes;
    for (int i = 0; i < 100; ++i) {
        volumes += std::string(i == 0 ? "" : ", ") + "7";
    }
    const TemporaryFile file("many-mistakes.json", fileWith("\"volumes\": [" + volumes + "]"));

    const ToolRun run({"build", file.path()});

    EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 51);
    EXPECT_THAT(run.err, testing::EndsWith("\n" + file.path() + ": there may be more; these are the first 50.\n"));
    EXPECT_EQ(run.code, 2);
}

TEST(CaseReader, deepNestingIsOnlyAMistake)
{
    const std::size_t depth = 200000;
    const TemporaryFile file("deep.json",
                             fileWith("\"volumes\": " + std::string(depth, '[') + std::string(depth, ']')));

    const ToolRun run({"build", file.path()});

    EXPECT_THAT(run.err, testing::EndsWith(": at /volumes/0: read a list, expected an object.\n"));
    EXPECT_EQ(run.code, 2);
}

/// Every beginning of a good file, and the file with any one byte replaced by something nasty: whatever comes
/// of it, it is not a fault of the program.
TEST(CaseReader, noDamageToAFileIsAFaultOfOurs)
{
    const std::string good = contentOf(sourceFile("tests/data/good-cases/channel.json"));
    for (std::size_t i = 0; i < good.size(); ++i) {
        for (const std::string& damaged :
             {good.substr(0, i), good.substr(0, i) + '\0' + good.substr(i + 1),
              good.substr(0, i) + '\xFF' + good.substr(i + 1), good.substr(0, i) + '"' + good.substr(i + 1),
              good.substr(0, i) + good.substr(i + 1)}) {
            const TemporaryFile file("damaged.json", damaged);
            const ToolRun run({"build", file.path()});
            ASSERT_NE(run.code, 3) << damaged;
            ASSERT_TRUE(run.code == 0 || !run.err.empty()) << damaged;
        }
    }
}

} // namespace
