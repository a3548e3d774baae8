#include "apps/proposal/TypeMapping.h"

#include "physics/TypeNames.h"
#include "tests/apps/ToolRun.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace {

using namespace physics::apps;
using physics::BoundaryType;
using physics::VolumeType;

using Row = std::vector<std::string>;

/// The rows of the table of docs/mapping.md whose first column has this title.
std::vector<Row> rowsOf(const std::string& title)
{
    std::istringstream page(contentOf(sourceFile("docs/mapping.md")));
    std::vector<Row> rows;
    bool isInside = false;
    for (std::string line; std::getline(page, line);) {
        if (line.rfind("| " + title + " |", 0) == 0) {
            isInside = true;
        } else if (line.empty()) {
            isInside = false;
        } else if (isInside && line.rfind("| ---", 0) != 0) {
            Row& row = rows.emplace_back();
            std::istringstream cells(line.substr(2));
            for (std::string cell; std::getline(cells, cell, '|');) {
                row.push_back(cell.substr(0, cell.find_last_not_of(' ') + 1).erase(0, cell.find_first_not_of(' ')));
            }
        }
    }
    return rows;
}

template <class Type>
std::vector<Row> asRows(const std::vector<TypeMapping<Type>>& mappings)
{
    std::vector<Row> rows;
    for (const TypeMapping<Type>& mapping : mappings) {
        rows.push_back({std::string(mapping.said), mapping.type == Type::Unset ? "-" : displayName(mapping.type),
                        std::string(inWords(mapping.fidelity)),
                        mapping.lost.empty() ? "-" : std::string(mapping.lost)});
    }
    return rows;
}

TEST(TypeMapping, thePageListsEveryRowOfTheTables)
{
    EXPECT_EQ(rowsOf("condition type (CGNS)"), asRows(conditionTypes()));
    EXPECT_EQ(rowsOf("words in the name"), asRows(boundaryWords()));
    EXPECT_EQ(rowsOf("word in the name"), asRows(volumeWords()));
}

TEST(TypeMapping, everyConditionTypeIsFoundByItsName)
{
    for (const BoundaryMapping& row : conditionTypes()) {
        EXPECT_EQ(&mappingOfCondition(row.said), &row) << row.said;
    }
    EXPECT_EQ(mappingOfCondition("BCFromTheFuture").said, "UserDefined");
}

TEST(TypeMapping, noRowIsHiddenByAnEarlierOne)
{
    for (const BoundaryMapping& row : boundaryWords()) {
        EXPECT_EQ(boundaryMappingOfName(row.said), &row) << row.said;
    }
    for (const VolumeMapping& row : volumeWords()) {
        EXPECT_EQ(volumeMappingOfName(row.said), &row) << row.said;
    }
}

TEST(TypeMapping, onlyWhatIsNotPossibleHasNoType)
{
    for (const BoundaryMapping& row : conditionTypes()) {
        EXPECT_EQ(row.type == BoundaryType::Unset, row.fidelity == Fidelity::NotPossible) << row.said;
        EXPECT_EQ(row.lost.empty(), row.fidelity == Fidelity::Exact) << row.said;
    }
}

TEST(TypeMapping, wordsEndAtWhateverIsNoLetterAndBeginWithCapitals)
{
    const auto typeOf = [](const char* name) {
        const BoundaryMapping* mapping = boundaryMappingOfName(name);
        return mapping == nullptr ? BoundaryType::Unset : mapping->type;
    };

    EXPECT_EQ(typeOf("hotInlet_2"), BoundaryType::VelocityInlet);
    EXPECT_EQ(typeOf("MASS-FLOW-OUTLET"), BoundaryType::MassFlowOutlet);
    EXPECT_EQ(typeOf("MassFlowInlet3"), BoundaryType::MassFlowInlet);
    EXPECT_EQ(typeOf("wall.left"), BoundaryType::Wall);
    EXPECT_EQ(typeOf("drywall"), BoundaryType::Unset);
    EXPECT_EQ(typeOf(""), BoundaryType::Unset);
    EXPECT_EQ(volumeMappingOfName("SOLID_1")->type, VolumeType::Solid);
    EXPECT_EQ(volumeMappingOfName("airbag"), nullptr);
}

} // namespace
