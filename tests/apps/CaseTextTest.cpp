#include "apps/CaseText.h"

#include "apps/CaseReader.h"
#include "apps/Complaints.h"
#include "apps/InputError.h"
#include "support/JsonSource.h"
#include "tests/apps/ToolRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <string>

namespace {

using gtm::support::JsonSource;
using namespace physics::apps;
using testing::IsEmpty;

CaseFile read(const std::string& text)
{
    Complaints complaints;
    CaseFile file = readCase(JsonSource::fromText(text, "a.json"), complaints);
    EXPECT_THAT(complaints.lines(), IsEmpty());
    return file;
}

TEST(CaseText, everyKeyOfACaseComesBack)
{
    const std::string original = contentOf(sourceFile("tests/data/good-cases/everything.json"));
    nlohmann::json expected = nlohmann::json::parse(original);
    expected.erase("$schema");
    expected.erase("description");

    nlohmann::json written = nlohmann::json::parse(writeCase(read(original)));

    // What the file leaves to its defaults and the writer says aloud, or the other way round.
    expected["geometry"] = expected["geometry"]["file"];
    expected.erase("enforceRestrictions");
    expected["masked"].erase("bodies");
    const nlohmann::json patch = nlohmann::json::diff(expected, written);
    for (const nlohmann::json& step : patch) {
        EXPECT_EQ(step["op"], "add") << step;
        EXPECT_EQ(step["path"].get<std::string>().substr(step["path"].get<std::string>().rfind('/')), "/index") << step;
    }
}

TEST(CaseText, whatIsWrittenIsReadBackToTheSame)
{
    int noOfCases = 0;
    for (const auto& entry : std::filesystem::directory_iterator(sourceFile("tests/data/good-cases"))) {
        const std::string original = contentOf(entry.path());
        if (original.find("\"physics-case\"") != std::string::npos) {
            const std::string written = writeCase(read(original));
            EXPECT_EQ(writeCase(read(written)), written) << entry.path();
            ++noOfCases;
        }
    }
    EXPECT_GE(noOfCases, 2);
}

TEST(CaseText, howTheGeometryIsReadComesBack)
{
    CaseFile file;
    file.geometry = {"", "a.cgns", {std::nullopt, true}};

    const nlohmann::json geometry = nlohmann::json::parse(writeCase(file))["geometry"];

    EXPECT_EQ(geometry, (nlohmann::json{{"file", "a.cgns"}, {"bodiesAreFamilies", true}}));
    EXPECT_TRUE(read(writeCase(file)).geometry.reading.bodiesAreFamilies);
}

TEST(CaseText, aNameThatIsNotUtf8IsRefused)
{
    CaseFile file;
    file.volumes.emplace_back().name = "caf\xE9";

    try {
        writeCase(file);
        FAIL() << "was written";
    } catch (const InputError& error) {
        EXPECT_STREQ(error.what(), "a case file cannot hold names that are not UTF-8; rename what is called so in the "
                                   "geometry file, or make a topology file of it.");
    }
}

} // namespace
