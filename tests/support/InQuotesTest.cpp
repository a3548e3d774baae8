#include "support/InQuotes.h"

#include <gtest/gtest.h>

namespace {

using gtm::support::inQuotes;

TEST(InQuotes, aTextStaysOnOneLineBetweenItsQuotes)
{
    EXPECT_EQ(inQuotes("inlet"), R"("inlet")");
    EXPECT_EQ(inQuotes("a \"b\" \\ c\nd\x01"), R"("a \"b\" \\ c\nd\u0001")");
    EXPECT_EQ(inQuotes("\xC3\xA9"), "\"\xC3\xA9\"");
}

TEST(InQuotes, bytesThatAreNoTextAreReplaced) { EXPECT_EQ(inQuotes("a\xFFz"), "\"a\xEF\xBF\xBDz\""); }

} // namespace
