#include "apps/Table.h"

#include "apps/Joined.h"
#include "apps/Output.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

using physics::apps::counted;
using physics::apps::joined;
using physics::apps::Output;
using physics::apps::Table;

std::string printed(const Table& table, bool isColored = false)
{
    std::ostringstream out;
    Output output(out, out, isColored, isColored);
    table.print("things", output);
    return out.str();
}

TEST(Table, columnsAreAlignedAndNoLineEndsWithABlank)
{
    Table table({"id", "name", "remark"});
    table.add({"1", "a long name", ""});
    table.add({"12345", "b", "x"});

    EXPECT_EQ(printed(table), "things\n"
                              "  id     name         remark\n"
                              "  1      a long name\n"
                              "  12345  b            x\n");
}

TEST(Table, aCharacterOfSeveralBytesTakesOneColumn)
{
    Table table({"id", "x"});
    table.add({"k\xC3\xBChl", "1"});
    table.add({"heat", "2"});

    EXPECT_EQ(printed(table), "things\n  id    x\n  k\xC3\xBChl  1\n  heat  2\n");
}

TEST(Table, withoutRowsNothingIsPrinted) { EXPECT_EQ(printed(Table({"id", "name"})), ""); }

TEST(Table, onlyTheHeadingIsColored)
{
    Table table({"id"});
    table.add({"1"});

    EXPECT_EQ(printed(table, true), "\x1B[1mthings\x1B[0m\n  id\n  1\n");
}

TEST(Joined, itemsStandInTheirOrderAndNoItemIsADash)
{
    EXPECT_EQ(joined(std::vector<int>{3, -1}), "3, -1");
    EXPECT_EQ(joined(std::vector<std::string>{"b", "a"}), "b, a");
    EXPECT_EQ(joined(std::vector<int>{}), "-");
}

TEST(Joined, oneThingIsNotCalledThings)
{
    EXPECT_EQ(counted(0, "face"), "0 faces");
    EXPECT_EQ(counted(1, "body", "bodies"), "1 body");
    EXPECT_EQ(counted(2, "body", "bodies"), "2 bodies");
}

} // namespace
