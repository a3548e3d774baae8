// The tables of examples in docs/locations.md, row by row.

#include "gtm/LocationModel.h"
#include "locationmodel/LocationModel.h"
#include "locationmodel/TopologyFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace {

using Row = std::vector<std::string>;

std::string page()
{
    std::ifstream stream(std::filesystem::path(PHYSICS_SOURCE_DIR) / "docs/locations.md", std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

/// The text between the first line that begins with `start` and the next that begins with `end`.
std::string between(const std::string& text, const std::string& start, const std::string& end)
{
    const std::size_t first = text.find('\n', text.find("\n" + start) + 1) + 1;
    return text.substr(first, text.find("\n" + end, first) - first);
}

/// A cell without the blanks and the code marks around it.
std::string plain(std::string cell)
{
    const std::size_t first = cell.find_first_not_of(' ');
    cell = first == std::string::npos ? "" : cell.substr(first, cell.find_last_not_of(' ') - first + 1);
    const bool isCode = cell.size() >= 2 && cell.front() == '`' && cell.back() == '`';
    return isCode ? cell.substr(1, cell.size() - 2) : cell;
}

/// The rows of the table whose head begins with `head`.
std::vector<Row> table(const std::string& head)
{
    std::istringstream lines(between(page(), "| " + head, "\n") + "\n");
    std::vector<Row> rows;
    std::string line;
    std::getline(lines, line); // the rule under the head
    while (std::getline(lines, line) && !line.empty()) {
        std::istringstream cells(line.substr(1));
        Row& row = rows.emplace_back();
        for (std::string cell; std::getline(cells, cell, '|');) {
            row.push_back(plain(cell));
        }
    }
    return rows;
}

std::string stateWord(gtm::Interior::State state)
{
    switch (state) {
    case gtm::Interior::State::Empty:
        return "empty";
    case gtm::Interior::State::Unresolvable:
        return "unresolvable";
    case gtm::Interior::State::Inconsistent:
        return "inconsistent";
    default:
        return "not expected";
    }
}

class Locations : public ::testing::Test {
protected:
    /// What the last column says about a location: ids, or state and reason.
    template <class Entity, class State>
    std::string outcome(const std::pair<Entity*, State>& made) const
    {
        return made.first != nullptr
                   ? made.first->location()->locationString(true)
                   : stateWord(gtm::Interior::State(static_cast<int>(made.second))) + ": " + model->lastRefusal();
    }

    std::unique_ptr<gtm::bundled::LocationModel> model =
        gtm::bundled::readTopologyText(between(page(), "```json", "```"), "docs/locations.md");
    gtm::VirtualTopology copy{model->topology(), "", 0};
};

TEST_F(Locations, ofVolumesAreAsDocumented)
{
    const std::vector<Row> rows = table("location of a volume");
    ASSERT_GE(rows.size(), 25U);

    for (const Row& row : rows) {
        ASSERT_EQ(row.size(), 2U);
        copy.clear();
        EXPECT_EQ(outcome(copy.createInterior("volume", row[0], false, true)), row[1]) << row[0];
    }
}

TEST_F(Locations, ofBoundariesAreAsDocumented)
{
    const std::vector<Row> rows = table("volume | location of a boundary");
    ASSERT_GE(rows.size(), 30U);

    for (const Row& row : rows) {
        ASSERT_EQ(row.size(), 3U);
        copy.clear();
        gtm::Interior* volume = copy.createInterior("volume", row[0], false, true).first;
        ASSERT_NE(volume, nullptr) << row[0];
        EXPECT_EQ(outcome(volume->createBoundary("boundary", row[1], true)), row[2]) << row[0] << " | " << row[1];
    }
}

} // namespace
