#include "support/InWords.h"

#include <gtest/gtest.h>

namespace {

using gtm::support::inWords;

TEST(InWords, numbersHaveUpToNineSignificantDigits)
{
    EXPECT_EQ(inWords(0.0), "0");
    EXPECT_EQ(inWords(-12.5), "-12.5");
    EXPECT_EQ(inWords(1.0 / 3), "0.333333333");
    EXPECT_EQ(inWords(1e-7), "1e-07");
    EXPECT_EQ(inWords(-2.2250738585072014e-308), "-2.22507386e-308");
}

TEST(InWords, aVectorStandsInParentheses) { EXPECT_EQ(inWords({0.25, 0, -1}), "(0.25, 0, -1)"); }

} // namespace
