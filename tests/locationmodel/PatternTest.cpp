#include "locationmodel/Pattern.h"

#include "locationmodel/LocationText.h"

#include <gtest/gtest.h>

#include <string>

namespace {

bool matches(const std::string& pattern, const std::string& text)
{
    return gtm::bundled::readLocation(pattern).at(0).pattern.matches(text);
}

TEST(Pattern, withoutWildcardsItMatchesItselfOnly)
{
    EXPECT_TRUE(matches("ab", "ab"));
    EXPECT_FALSE(matches("ab", "a"));
    EXPECT_FALSE(matches("ab", "abc"));
    EXPECT_FALSE(matches("ab", ""));
}

TEST(Pattern, aStarStandsForAnyRun)
{
    EXPECT_TRUE(matches("*", ""));
    EXPECT_TRUE(matches("a*", "a"));
    EXPECT_TRUE(matches("a*", "a/b"));
    EXPECT_TRUE(matches("*b", "aabb"));
    EXPECT_TRUE(matches("a*b*c", "axxbyybzc"));
    EXPECT_TRUE(matches("**a**", "a"));
    EXPECT_FALSE(matches("a*b*c", "axxbyy"));
    EXPECT_FALSE(matches("*ab", "abx"));
}

TEST(Pattern, aQuestionMarkStandsForOneCharacter)
{
    EXPECT_TRUE(matches("a?c", "abc"));
    EXPECT_TRUE(matches("a?c", "a\xC3\xA9"
                               "c"));
    EXPECT_TRUE(matches("*?", "ab"));
    EXPECT_FALSE(matches("a?", "a"));
    EXPECT_FALSE(matches("?", "ab"));
}

TEST(Pattern, quotedWildcardsStandForThemselves)
{
    EXPECT_TRUE(matches("a\"*\"", "a*"));
    EXPECT_FALSE(matches("a\"*\"", "ab"));
    EXPECT_TRUE(matches("\"?\"*", "?x"));
    EXPECT_TRUE(matches("\"a\"\"b\"", "a\"b"));
}

TEST(Pattern, manyStarsTakeNoUnreasonableTime)
{
    std::string pattern;
    for (int i = 0; i < 50; ++i) {
        pattern += "a*";
    }

    EXPECT_FALSE(matches(pattern + "b", std::string(5000, 'a')));
}

TEST(Pattern, itIsDividedAtUnquotedSlashes)
{
    const auto divisions = gtm::bundled::readLocation("a/\"b/c\"/d").at(0).pattern.divisions();

    ASSERT_EQ(divisions.size(), 2U);
    EXPECT_EQ(divisions[0].first.literalPrefix(), "a");
    EXPECT_EQ(divisions[0].second.literalPrefix(), "b/c/d");
    EXPECT_EQ(divisions[1].first.literalPrefix(), "a/b/c");
    EXPECT_EQ(divisions[1].second.literalPrefix(), "d");
}

TEST(Pattern, theLiteralBeginningEndsAtTheFirstWildcard)
{
    EXPECT_EQ(gtm::bundled::readLocation("ab\"*\"c?d").at(0).pattern.literalPrefix(), "ab*c");
    EXPECT_EQ(gtm::bundled::readLocation("*a").at(0).pattern.literalPrefix(), "");
}

} // namespace
