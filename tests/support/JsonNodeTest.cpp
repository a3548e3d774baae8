#include "support/JsonSource.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

using gtm::support::JsonError;
using gtm::support::JsonNode;
using gtm::support::JsonSource;

JsonNode parsed(const std::string& text) { return JsonSource::fromText(text, "a.json").root(); }

std::string refusalOf(const std::string& text, const std::function<void(const JsonNode&)>& read)
{
    try {
        read(parsed(text));
    } catch (const JsonError& error) {
        return error.what();
    }
    return "no error";
}

TEST(JsonNode, aNodeKeepsItsDocumentAlive) { EXPECT_EQ(parsed(R"({"a": "x"})").member("a").string(), "x"); }

TEST(JsonNode, thePathIsAJsonPointer)
{
    EXPECT_EQ(parsed("1").path(), "");
    EXPECT_EQ(parsed(R"({"a/b~c": [7]})").member("a/b~c").items()[0].path(), "/a~1b~0c/0");
}

TEST(JsonNode, anAbsentMemberIsNothingForFindAndARefusalForMember)
{
    EXPECT_FALSE(parsed(R"({"a": 1})").find("b").has_value());
    EXPECT_EQ(refusalOf(R"({"a": 1})", [](const JsonNode& node) { node.member("b"); }),
              "a.json:1:1: at the top level: read an object, expected an object with the key \"b\".");
}

TEST(JsonNode, keysComeInByteOrder)
{
    EXPECT_EQ(parsed(R"({"b": 1, "B": 2, "a": 3})").keys(), (std::vector<std::string>{"B", "a", "b"}));
}

TEST(JsonNode, anUnknownKeyIsRefusedWhereItStandsWithTheNearestKnownOne)
{
    EXPECT_EQ(refusalOf("{\"id\": 1,\n   \"bodys\": []}",
                        [](const JsonNode& node) {
                            node.expectKeys({"id", "bodies"});
                        }),
              "a.json:2:4: at /bodys: there is no key \"bodys\" here; did you mean \"bodies\"?");
}

TEST(JsonNode, aKeyCanBeRefusedByTheCallersOwnChoice)
{
    EXPECT_EQ(refusalOf("{\"a\": 1, \"b/c\": 2}", [](const JsonNode& node) { node.failUnknownKey("b/c", {"x"}); }),
              "a.json:1:10: at /b~1c: there is no key \"b/c\" here; the only known one is \"x\".");
    EXPECT_EQ(refusalOf("{\"a\\nb\": 1}", [](const JsonNode& node) { node.expectKeys({"x"}); }),
              "a.json:1:2: at /a\\nb: there is no key \"a\\nb\" here; the only known one is \"x\".");
}

TEST(JsonNode, aValueOfTheWrongKindIsRefusedWhereItStands)
{
    const std::string text = "{\n  \"a\": {\"b\": [ 1,\n  \"two]\", {} ]}\n}";
    const auto item = [](std::size_t i) {
        return [i](const JsonNode& node) { static_cast<void>(node.member("a").member("b").items()[i].boolean()); };
    };

    EXPECT_EQ(refusalOf(text, item(0)), "a.json:2:16: at /a/b/0: read 1, expected true or false.");
    EXPECT_EQ(refusalOf(text, item(1)), "a.json:3:3: at /a/b/1: read \"two]\", expected true or false.");
    EXPECT_EQ(refusalOf(text, item(2)), "a.json:3:11: at /a/b/2: read an empty object, expected true or false.");
}

TEST(JsonNode, eachReaderSaysWhatItExpects)
{
    EXPECT_EQ(refusalOf("[0]", [](const JsonNode& node) { node.keys(); }),
              "a.json:1:1: at the top level: read a list, expected an object.");
    EXPECT_EQ(refusalOf("[]", [](const JsonNode& node) { node.find("a"); }),
              "a.json:1:1: at the top level: read an empty list, expected an object.");
    EXPECT_EQ(refusalOf("{}", [](const JsonNode& node) { node.items(); }),
              "a.json:1:1: at the top level: read an empty object, expected a list.");
    EXPECT_EQ(refusalOf("null", [](const JsonNode& node) { node.string(); }),
              "a.json:1:1: at the top level: read null, expected a string.");
    EXPECT_EQ(refusalOf("\"1\"", [](const JsonNode& node) { node.number(); }),
              "a.json:1:1: at the top level: read \"1\", expected a number.");
}

TEST(JsonNode, anIntegerIsAWholeNumberOfThirtyTwoBits)
{
    const std::string expected = ", expected a whole number from -2147483648 to 2147483647.";
    const auto read = [](const JsonNode& node) { static_cast<void>(node.integer()); };

    EXPECT_EQ(parsed("-2147483648").integer(), -2147483647 - 1);
    EXPECT_EQ(parsed("2147483647").integer(), 2147483647);
    EXPECT_EQ(refusalOf("2147483648", read), "a.json:1:1: at the top level: read 2147483648" + expected);
    EXPECT_EQ(refusalOf("-2147483649", read), "a.json:1:1: at the top level: read -2147483649" + expected);
    EXPECT_EQ(refusalOf("18446744073709551615", read),
              "a.json:1:1: at the top level: read 18446744073709551615" + expected);
    EXPECT_EQ(refusalOf("1.0", read), "a.json:1:1: at the top level: read 1.0" + expected);
}

TEST(JsonNode, aNumberMayBeWholeOrNot)
{
    EXPECT_EQ(parsed("-3").number(), -3.0);
    EXPECT_EQ(parsed("2.5e1").number(), 25.0);
}

TEST(JsonNode, oneOfGivesThePlaceInTheListOfNames)
{
    const std::vector<std::string> names{"Fluid", "Solid"};

    EXPECT_EQ(parsed("\"Solid\"").oneOf(names, "a kind of volume"), 1U);
    EXPECT_EQ(refusalOf("\"solids\"", [&](const JsonNode& node) { node.oneOf(names, "a kind of volume"); }),
              "a.json:1:1: at the top level: read \"solids\", expected a kind of volume; did you mean \"Solid\"?");
    EXPECT_EQ(refusalOf("\"gas\"", [&](const JsonNode& node) { node.oneOf(names, "a kind of volume"); }),
              "a.json:1:1: at the top level: read \"gas\", expected a kind of volume; known are \"Fluid\", "
              "\"Solid\".");
}

TEST(JsonNode, aLongValueIsCutBetweenCharacters)
{
    EXPECT_EQ(refusalOf("\"" + std::string(58, 'a') + "\xC3\xA9zzz\"", [](const JsonNode& node) { node.number(); }),
              "a.json:1:1: at the top level: read \"" + std::string(58, 'a') + "...\", expected a number.");
}

TEST(JsonNode, aControlCharacterIsShownEscaped)
{
    EXPECT_EQ(refusalOf("\"a\\nb\"", [](const JsonNode& node) { node.number(); }),
              "a.json:1:1: at the top level: read \"a\\nb\", expected a number.");
}

} // namespace
