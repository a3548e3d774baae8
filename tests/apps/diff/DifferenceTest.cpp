#include "apps/diff/Difference.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using physics::apps::Description;
using physics::apps::Difference;
using physics::apps::differences;
using testing::ElementsAre;
using testing::IsEmpty;

/// A volume with one aspect that is about another object.
Description volume(const std::string& key, const std::string& identity, const std::string& text)
{
    return {"volume", key, key, "", "volume \"" + key + "\"", {{"model", identity, text}}};
}

std::vector<std::string> linesOf(const std::vector<Description>& first, const std::vector<Description>& second)
{
    std::vector<std::string> lines;
    for (const Difference& difference : differences(first, second)) {
        lines.push_back(lineOf(difference));
    }
    return lines;
}

TEST(Difference, objectsAreFoundWhereverTheyStand)
{
    const Description a = volume("a", "1", "one");
    const Description b = volume("b", "2", "two");

    EXPECT_THAT(linesOf({a, b}, {b, a}), IsEmpty());
}

TEST(Difference, whatIsMissingComesBeforeWhatIsNew)
{
    const Description a = volume("a", "1", "one");
    const Description b = volume("b", "2", "two");

    EXPECT_THAT(linesOf({a}, {b}), ElementsAre("volume \"a\": removed", "volume \"b\": added"));
}

TEST(Difference, theIdentityDecidesAndTheTextIsTold)
{
    EXPECT_THAT(linesOf({volume("a", "1", "one")}, {volume("a", "1", "the renamed one")}), IsEmpty());
    EXPECT_THAT(linesOf({volume("a", "1", "one")}, {volume("a", "2", "two")}),
                ElementsAre("volume \"a\": moved from one to two"));
}

TEST(Difference, ofSeveralObjectsWithOneKeyEachHasItsPartner)
{
    const Description first = volume("a", "1", "one");
    const Description second = volume("a", "2", "two");

    EXPECT_THAT(linesOf({first, second}, {first, second}), IsEmpty());
    EXPECT_THAT(linesOf({first, second}, {first}), ElementsAre("volume \"a\": removed"));
    EXPECT_THAT(linesOf({first}, {first, second, second}), ElementsAre("volume \"a\": added", "volume \"a\": added"));
}

TEST(Difference, objectsOfTwoKindsAreNeverTheSame)
{
    Description boundary = volume("a", "1", "one");
    boundary.kind = "boundary";
    boundary.label = "boundary \"a\"";

    EXPECT_THAT(linesOf({volume("a", "1", "one")}, {boundary}),
                ElementsAre("volume \"a\": removed", "boundary \"a\": added"));
}

} // namespace
