#include "apps/verbs/TypesVerb.h"

#include "physics/TypeManager.h"
#include "physics/TypeNames.h"
#include "tests/apps/ToolRun.h"
#include "tests/golden/Golden.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using nlohmann::json;

/// The entry of a type in a list of entries.
json entry(const json& entries, const std::string& name)
{
    const auto found =
        std::find_if(entries.begin(), entries.end(), [&name](const json& type) { return type.at("name") == name; });
    return found == entries.end() ? json() : *found;
}

bool names(const json& list, const std::string& name)
{
    return std::find(list.begin(), list.end(), name) != list.end();
}

TEST(TypesVerb, theTablesAreListedAsInReports)
{
    const ToolRun run({"types"});

    EXPECT_TRUE(golden::matches(run.out, "report/types.txt"));
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.code, 0);
}

TEST(TypesVerb, aToolFindsEveryRuleInTheTables)
{
    const ToolRun run({"types", "--format=json"});
    const json tables = json::parse(run.out);
    const physics::TypeManager types;

    for (const auto volume : physics::TypeManager().allowedVolumeTypes()) {
        for (const auto boundary : physics::TypeManager().allowedBoundaryTypes()) {
            EXPECT_EQ(names(entry(tables["volumeTypes"], displayName(volume))["boundaryTypes"], displayName(boundary)),
                      types.isAllowedBoundaryType(volume, boundary));
            for (const auto interface : physics::TypeManager().allowedInterfaceTypes()) {
                EXPECT_EQ(
                    names(entry(tables["interfaceTypes"], displayName(interface))["boundaryTypes"][displayName(volume)],
                          displayName(boundary)),
                    types.isAllowedBoundaryType(interface, volume, boundary));
            }
        }
    }
    EXPECT_EQ(run.code, 0);
}

TEST(TypesVerb, aToolLearnsNumbersDefaultsShellsAndSolverNumbers)
{
    const json tables = json::parse(ToolRun({"types", "--format=json"}).out);

    EXPECT_EQ(tables["format"], "physics-types");
    EXPECT_EQ(tables["version"], 1);
    EXPECT_EQ(entry(tables["volumeTypes"], "Porous")["value"], 2);
    EXPECT_EQ(entry(tables["volumeTypes"], "Fluid")["defaultBoundaryType"], "Wall");
    EXPECT_EQ(entry(tables["boundaryTypes"], "Wall")["shellTypes"], json({"HeatConduction"}));
    EXPECT_EQ(entry(tables["boundaryTypes"], "Symmetry")["shellTypes"], json::array());
    EXPECT_EQ(entry(tables["boundaryTypes"], "Fan")["isInternal"], true);
    EXPECT_EQ(entry(tables["boundaryTypes"], "Wall")["isInternal"], false);
    EXPECT_EQ(entry(tables["interfaceTypes"], "Fan")["boundaryTypes"]["Solid"], json::array());
    EXPECT_EQ(entry(tables["shellTypes"], "HeatConduction")["boundaryTypes"], json({"Wall"}));
    EXPECT_EQ(entry(tables["threadTypes"], "Interface")["solverNumber"], 24);
    EXPECT_EQ(entry(tables["periodicities"], "RotationallyPeriodic")["value"], 2);
    EXPECT_EQ(tables["connectivities"].size(), 3U);
    EXPECT_EQ(tables["meshConnectivities"].size(), 2U);
    EXPECT_EQ(tables["domainTypes"].size(), 3U);
    EXPECT_EQ(tables["boundaryTags"], json({{{"name", "Interface"}, {"value", 0}}}));
}

} // namespace
