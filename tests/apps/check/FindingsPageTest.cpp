#include "apps/check/FindingKind.h"
#include "tests/apps/ToolRun.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <ostream>
#include <set>
#include <sstream>
#include <string>

// docs/findings.md against the program: its sections, and its examples on the geometry that it shows.

namespace physics::apps {

/// What a failed test shows of its parameter.
static void PrintTo(const FindingRow& row, std::ostream* out) { *out << row.id; }

namespace {

const std::string page = contentOf(sourceFile("docs/findings.md"));

/// What stands between `begin` and `end`, from a place on; the place is moved behind it.
std::string between(const std::string& text, const std::string& begin, const std::string& end, std::size_t& place)
{
    const std::size_t first = text.find(begin, place);
    if (first == std::string::npos) {
        return {};
    }
    const std::size_t last = text.find(end, first + begin.size());
    place = last + end.size();
    return text.substr(first + begin.size(), last - first - begin.size());
}

std::string jsonAfter(const std::string& text, const std::string& mark)
{
    std::size_t place = text.find(mark);
    return place == std::string::npos ? std::string() : between(text, "```json\n", "```", place);
}

/// The ids of the findings that a check of an example gives, each once.
std::set<std::string> findingsOf(const std::string& example)
{
    std::size_t begin = 0;
    const TemporaryFile topology("findings-topology.json", between(page, "```json\n", "```", begin));
    nlohmann::json json = nlohmann::json::parse(example);
    json["format"] = "physics-case";
    json["version"] = 1;
    json["geometry"] = std::filesystem::path(topology.path()).filename().string();
    const TemporaryFile file("findings-case.json", json.dump());

    const ToolRun run({"check", file.path(), "--format=json"});

    EXPECT_EQ(run.err, "");
    std::set<std::string> ids;
    const nlohmann::json report = nlohmann::json::parse(run.out);
    for (const auto& finding : report.at("findings")) {
        ids.insert(finding.at("id").get<std::string>());
    }
    return ids;
}

TEST(FindingsPage, hasASectionForEveryKindInTheOrderOfTheirIds)
{
    std::string headings;
    for (const FindingRow& row : allFindingKinds()) {
        headings += std::string(row.id) + " " + std::string(row.title) + "\n";
    }
    std::string found;
    std::istringstream lines(page);
    for (std::string line; std::getline(lines, line);) {
        if (line.rfind("## PS", 0) == 0) {
            found += line.substr(3) + "\n";
        }
    }

    EXPECT_EQ(found, headings);
}

class Section : public testing::TestWithParam<FindingRow> {
protected:
    std::string id() const { return std::string(GetParam().id); }
    std::string text() const { return explanationOf(id()); }
};

TEST_P(Section, isTheExplanationFromItsHeadingToTheNextOne)
{
    const std::string explanation = text();

    EXPECT_EQ(explanation.find("## " + id() + " " + std::string(GetParam().title) + "\n"), 0U);
    EXPECT_EQ(explanation.find("\n## "), std::string::npos);
    EXPECT_NE(page.find(explanation), std::string::npos);
    EXPECT_EQ(ToolRun({"check", "--explain", id()}).out, explanation);
}

TEST_P(Section, beginsWithTheSeverity)
{
    const std::string begin = GetParam().severity == Severity::Error ? "\n\nError. " : "\n\nWarning. ";

    EXPECT_EQ(text().find("\n\n"), text().find(begin));
}

TEST_P(Section, showsABadExampleThatGivesTheFindingAndAGoodOneThatGivesNone)
{
    if (id() == "PS010" || id() == "PS018") {
        EXPECT_EQ(text().find("```"), std::string::npos) << "no case file can ask for it";
        return;
    }
    std::set<std::string> expected = {id()};
    const std::string section = text();
    std::size_t begin = 0;
    if (const std::string also = between(section, "**Bad** (also ", ")\n", begin); !also.empty()) {
        expected.insert(also);
    }

    EXPECT_EQ(findingsOf(jsonAfter(section, "**Bad**")), expected);
    EXPECT_EQ(findingsOf(jsonAfter(section, "**Good**")), std::set<std::string>{});
}

std::string nameOf(const testing::TestParamInfo<FindingRow>& info) { return std::string(info.param.id); }

INSTANTIATE_TEST_SUITE_P(Findings, Section, testing::ValuesIn(allFindingKinds()), nameOf);

TEST(FindingKind, rowsStandInTheOrderOfTheEnumeration)
{
    for (std::size_t i = 0; i < allFindingKinds().size(); ++i) {
        EXPECT_EQ(static_cast<std::size_t>(allFindingKinds()[i].kind), i);
        EXPECT_EQ(&rowOf(allFindingKinds()[i].kind), &allFindingKinds()[i]);
    }
}

TEST(FindingKind, anUnknownIdIsRefusedWithTheNearestOne)
{
    const ToolRun run({"check", "--explain", "PS04"});

    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "physics-case: there is no kind of finding \"PS04\"; did you mean \"PS004\"?\n");
    EXPECT_EQ(run.code, 2);
}

} // namespace
} // namespace physics::apps
