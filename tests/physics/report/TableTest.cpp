#include "physics/report/Table.h"

#include <gtest/gtest.h>

#include <string>

namespace physics {
namespace {

using enum Table::Align;

std::string shown(const Table& table, std::string_view prefix = "", std::size_t gap = 2)
{
    std::string text;
    table.appendTo(text, prefix, gap);
    return text;
}

TEST(Table, columnsAreAsWideAsTheirWidestEntry)
{
    Table table({{"Id", Right}, {"Name"}, {"Count", Right}});
    table.addHeader();
    table.addRow({"1", "a", "12345678"});
    table.addRow({"1000", "a long name", "2"});

    EXPECT_EQ(shown(table), "  Id  Name            Count\n"
                            "   1  a            12345678\n"
                            "1000  a long name         2\n");
}

TEST(Table, separatorsFollowTheWidthsAndBeginAsTheRuleSays)
{
    Table table({{"Id", Right}, {"B C", Left, "", "- -"}, {"Name", Left, "", "------"}});
    table.addSeparator();
    table.addHeader();
    table.addRow({"100", "T F", "seven77"});
    table.addSeparator();

    EXPECT_EQ(shown(table), "---  - -  -------\n"
                            " Id  B C  Name\n"
                            "100  T F  seven77\n"
                            "---  - -  -------\n");
}

TEST(Table, ruleIsTheSmallestWidth)
{
    Table table({{"A", Left, "", "----"}, {"B"}});
    table.addHeader();
    table.addSeparator();

    EXPECT_EQ(shown(table), "A     B\n"
                            "----  -\n");
}

TEST(Table, subtitlesMakeASecondHeaderLine)
{
    Table table({{"", Right, "A"}, {"Settings", Right, "L"}, {"Last"}});
    table.addHeader();
    table.addRow({"1", "2", "3"});

    EXPECT_EQ(shown(table), "   Settings  Last\n"
                            "A         L\n"
                            "1         2  3\n");
}

TEST(Table, missingCellsAreEmptyAndLeaveNoBlanksBehind)
{
    Table table({{"A"}, {"B"}, {"C"}});
    table.addHeader();
    table.addRow({"1"});
    table.addRow({"", "", "3"});
    table.addRow({});

    EXPECT_EQ(shown(table), "A  B  C\n"
                            "1\n"
                            "      3\n"
                            "\n");
}

TEST(Table, cellsMayHaveSeveralLines)
{
    Table table({{"A"}, {"B"}, {"C"}});
    table.addHeader();
    table.addRow({"1", "first, \nsecond", "x\ny\nz"});

    EXPECT_EQ(shown(table), "A  B        C\n"
                            "1  first,   x\n"
                            "   second   y\n"
                            "            z\n");
}

TEST(Table, prefixStandsInFrontOfEveryLineAndTheGapIsFree)
{
    Table table({{"A"}, {"B"}});
    table.addHeader();
    table.addSeparator();
    table.addRow({"1", "2\n3"});

    EXPECT_EQ(shown(table, "| ", 1), "| A B\n"
                                     "| - -\n"
                                     "| 1 2\n"
                                     "|   3\n");
}

TEST(Table, alignsByCodePoints)
{
    Table table({{"Name"}, {"Id"}, {"Other", Right}});
    table.addHeader();
    table.addRow({"K\u00fchler", "1", "\u03b1\u03b2"});
    table.addRow({"cooler", "2", "ab"});

    EXPECT_EQ(shown(table), "Name    Id  Other\n"
                            "K\u00fchler  1      \u03b1\u03b2\n"
                            "cooler  2      ab\n");
}

} // namespace
} // namespace physics
