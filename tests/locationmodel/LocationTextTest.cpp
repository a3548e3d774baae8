#include "locationmodel/LocationText.h"

#include <gtest/gtest.h>

namespace {

using gtm::bundled::quotedId;
using gtm::bundled::readLocation;

TEST(LocationText, termsAreSeparatedByCommasOutsideQuotes)
{
    const auto terms = readLocation(" a b , !  c,\"d,e\" ");

    ASSERT_EQ(terms.size(), 3U);
    EXPECT_EQ(terms[0].text, "a b");
    EXPECT_FALSE(terms[0].takesAway);
    EXPECT_EQ(terms[1].text, "c");
    EXPECT_TRUE(terms[1].takesAway);
    EXPECT_EQ(terms[2].text, "\"d,e\"");
    EXPECT_EQ(terms[2].pattern.literalPrefix(), "d,e");
    for (const auto& term : terms) {
        EXPECT_EQ(term.problem, "");
    }
}

TEST(LocationText, blanksAloneAreNoTerm)
{
    EXPECT_TRUE(readLocation("").empty());
    EXPECT_TRUE(readLocation(" \t ").empty());
}

TEST(LocationText, onlyALeadingMarkTakesAway)
{
    const auto terms = readLocation("a!b, \"!c\"");

    EXPECT_EQ(terms[0].pattern.literalPrefix(), "a!b");
    EXPECT_FALSE(terms[1].takesAway);
    EXPECT_EQ(terms[1].pattern.literalPrefix(), "!c");
}

TEST(LocationText, emptyTermsAreMarked)
{
    const std::string problem = "The location has an empty term; take the extra comma, \"!\" or pair of quotes away.";

    for (const char* text : {"a,", ",a", "a,,b", "!", "\"\"", ","}) {
        std::string found;
        for (const auto& term : readLocation(text)) {
            found += term.problem.empty() ? "" : term.problem;
        }
        EXPECT_EQ(found.substr(0, problem.size()), problem) << text;
    }
}

TEST(LocationText, anOpenQuoteIsMarked)
{
    const auto terms = readLocation("a, b\"c, d");

    ASSERT_EQ(terms.size(), 2U);
    EXPECT_EQ(terms[0].problem, "");
    EXPECT_EQ(terms[1].problem, "The term 'b\"c, d' has an opening quote without a closing one.");
}

TEST(LocationText, aQuotedIdStandsForItself)
{
    EXPECT_EQ(quotedId("a b/c"), "a b/c");
    for (const char* id : {"a*", "?", "!a", "a\"b\"", "\""}) {
        const auto terms = readLocation(quotedId(id));
        ASSERT_EQ(terms.size(), 1U) << id;
        EXPECT_FALSE(terms[0].takesAway) << id;
        EXPECT_FALSE(terms[0].pattern.hasWildcard()) << id;
        EXPECT_EQ(terms[0].pattern.literalPrefix(), id);
    }
}

} // namespace
