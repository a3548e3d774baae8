#include "physics/report/ListWriter.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace physics {
namespace {

using Items = std::vector<std::string>;

std::string list(const Items& items, const ListFormat& format = {}, std::string_view label = "Ids: ")
{
    std::string text;
    appendList(text, label, items, format);
    return text;
}

ListFormat in(Brackets brackets)
{
    ListFormat format;
    format.brackets = brackets;
    return format;
}

ListFormat wide(std::size_t width, Brackets brackets = Brackets::Braces)
{
    ListFormat format = in(brackets);
    format.width = width;
    return format;
}

TEST(ListWriter, putsNothingBracesSquareBracketsOrBracesWithStarAroundTheItems)
{
    const Items items = {"1", "2"};

    EXPECT_EQ(list(items, in(Brackets::None)), "Ids: 1, 2\n");
    EXPECT_EQ(list(items, in(Brackets::Braces)), "Ids: {1, 2}\n");
    EXPECT_EQ(list(items, in(Brackets::Square)), "Ids: [1, 2]\n");
    EXPECT_EQ(list(items, in(Brackets::BracesWithStar)), "Ids: {1, 2}*\n");
}

TEST(ListWriter, emptyListKeepsItsLabelAndBrackets)
{
    EXPECT_EQ(list({}, in(Brackets::None)), "Ids: \n");
    EXPECT_EQ(list({}, in(Brackets::Braces)), "Ids: {}\n");
    EXPECT_EQ(list({}, in(Brackets::Square)), "Ids: []\n");
    EXPECT_EQ(list({}, in(Brackets::BracesWithStar)), "Ids: {}*\n");
}

TEST(ListWriter, bracesAndWidth75AreTheDefault)
{
    const Items items(20, "seven77"); // 9 columns each; "Ids: {" takes 6

    EXPECT_EQ(list(items), "Ids: {seven77, seven77, seven77, seven77, seven77, seven77, seven77, seven77, \n"
                           "      seven77, seven77, seven77, seven77, seven77, seven77, seven77, seven77, \n"
                           "      seven77, seven77, seven77, seven77}\n");
}

TEST(ListWriter, wrapsOnceTheColumnIsBehindTheWidth)
{
    // "Ids: {" is 6 columns, each "ab" and its separator are 4: the third item would begin in column 14.
    EXPECT_EQ(list({"ab", "ab", "ab"}, wide(14)), "Ids: {ab, ab, ab}\n");
    EXPECT_EQ(list({"ab", "ab", "ab"}, wide(13)), "Ids: {ab, ab, \n      ab}\n");
}

TEST(ListWriter, withoutBracketsTheContinuationStandsUnderTheFirstItem)
{
    EXPECT_EQ(list({"ab", "ab", "ab"}, wide(12, Brackets::None)), "Ids: ab, ab, \n     ab\n");
}

TEST(ListWriter, longItemReachesPastTheWidthWhole)
{
    EXPECT_EQ(list({"a", "a-rather-long-item", "b"}, wide(10)), "Ids: {a, a-rather-long-item, \n      b}\n");
}

TEST(ListWriter, labelBehindTheWidthPutsEveryItemOnALineOfItsOwn)
{
    EXPECT_EQ(list({"a", "b"}, wide(3)), "Ids: {\n      a, \n      b}\n");
}

TEST(ListWriter, prefixStandsInFrontOfEveryLineAndDoesNotCount)
{
    ListFormat format = wide(14);
    format.prefix = "|   ";

    EXPECT_EQ(list({"ab", "ab", "ab", "ab"}, format), "|   Ids: {ab, ab, ab, \n|         ab}\n");
    EXPECT_EQ(list({}, format), "|   Ids: {}\n");
}

TEST(ListWriter, everySeparatorCountsAsTwoColumns)
{
    ListFormat format = wide(13);
    format.separator = " and ";

    EXPECT_EQ(list({"ab", "ab", "ab"}, format), "Ids: {ab and ab and \n      ab}\n");
}

TEST(ListWriter, columnsAreBytes)
{
    EXPECT_EQ(list({"\u00e9", "a"}, wide(9)), "Ids: {\u00e9, \n      a}\n");
    EXPECT_EQ(list({"e", "a"}, wide(9)), "Ids: {e, a}\n");
}

TEST(ListWriter, leavesTheLineOpenWhenAsked)
{
    ListFormat format;
    format.endsLine = false;

    EXPECT_EQ(list({"1"}, format), "Ids: {1}");
}

TEST(ListWriter, goesOnInALineThatHasBegun)
{
    ListFormat format = wide(13);
    format.prefix = "|";
    format.column = 4;
    std::string text = "|1234";

    appendList(text, " ", {"ab", "ab", "ab"}, format);

    EXPECT_EQ(text, "|1234 {ab, ab, \n|      ab}\n");
}

} // namespace
} // namespace physics
