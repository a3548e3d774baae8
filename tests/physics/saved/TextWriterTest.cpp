#include "physics/saved/TextWriter.h"

#include "physics/Types.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace physics {
namespace {

TEST(TextWriter, separatesFieldsByOneBlankAndEndsLinesWithALineFeed)
{
    TextWriter writer;
    writer.integer("", -1);
    writer.boolean("", true);
    writer.enumerator("", BoundaryType::Wall);
    writer.restOfLine("", " two words ");
    writer.endLine();
    writer.count("", 3);
    writer.endLine();

    EXPECT_EQ(writer.take(), "-1 1 7  two words \n3\n");
}

TEST(TextWriter, writesTheEndsOfTheRangeOfIntegers)
{
    TextWriter writer;
    writer.integer("", std::numeric_limits<int>::min());
    writer.integer("", std::numeric_limits<int>::max());
    writer.endLine();

    EXPECT_EQ(writer.take(), "-2147483648 2147483647\n");
}

TEST(TextWriter, listsBeginWithTheNumberOfTheirIntegers)
{
    TextWriter writer;
    writer.idList("", {});
    writer.idList("", {4, 9});
    writer.pairList("", {});
    writer.pairList("", {{-1, 3}, {1, 4}});

    EXPECT_EQ(writer.take(), "0\n2 4 9\n0\n4 -1 3 1 4\n");
}

TEST(TextWriter, listAtTheEndOfARecordStaysOnItsLine)
{
    TextWriter writer;
    writer.integer("", 7);
    writer.idList("", {1, 2});

    EXPECT_EQ(writer.take(), "7 2 1 2\n");
}

} // namespace
} // namespace physics
