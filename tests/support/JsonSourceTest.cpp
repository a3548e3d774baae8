#include "support/JsonSource.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <string>
#include <utility>

namespace {

using gtm::support::JsonError;
using gtm::support::JsonSource;

std::string messageOf(const std::function<void()>& action)
{
    try {
        action();
    } catch (const JsonError& error) {
        return error.what();
    }
    return "no error";
}

std::string refusalOf(const std::string& text)
{
    return messageOf([&] { JsonSource::fromText(text, "a.json"); });
}

TEST(JsonSource, aTextIsParsedUnderItsName)
{
    const JsonSource source = JsonSource::fromText(R"({"a": [1, {"b": "x"}]})", "a.json");

    EXPECT_EQ(source.name(), "a.json");
    EXPECT_EQ(source.root().member("a").items()[1].member("b").string(), "x");
}

TEST(JsonSource, thePlaceOfAValueIsFoundAgainByItsPointer)
{
    const JsonSource source = JsonSource::fromText("{\"a\":\n  [1, {\"b/c\": 2}]}", "a.json");

    EXPECT_EQ(source.place(""), "a.json:1:1: at the top level: ");
    EXPECT_EQ(source.place("/a/1/b~1c"), "a.json:2:15: at /a/1/b~1c: ");
}

TEST(JsonSource, everyKindOfValueIsKept)
{
    const JsonSource source = JsonSource::fromText(R"([null, true, -3, 4, 1.5, "t", {}, []])", "a.json");

    EXPECT_EQ(source.root().value().dump(), R"([null,true,-3,4,1.5,"t",{},[]])");
}

TEST(JsonSource, aByteOrderMarkIsSkippedAndDoesNotShiftTheColumn)
{
    EXPECT_EQ(JsonSource::fromText("\xEF\xBB\xBF[1]", "a.json").root().items().size(), 1U);
    EXPECT_EQ(refusalOf("\xEF\xBB\xBF[1,]"), refusalOf("[1,]"));
}

TEST(JsonSource, aSecondByteOrderMarkIsRefused)
{
    EXPECT_EQ(refusalOf("\xEF\xBB\xBF\xEF\xBB\xBF{\"id\": 1}"),
              "a.json:1:1: this is not valid JSON: it begins with more than one byte order mark; leave one.");
}

TEST(JsonSource, aFileIsReadUnderItsPath)
{
    const std::filesystem::path file = std::filesystem::path(::testing::TempDir()) / "aFileIsReadUnderItsPath.json";
    std::ofstream(file) << "[1, 2]";

    const JsonSource source = JsonSource::fromFile(file);

    EXPECT_EQ(source.name(), file.string());
    EXPECT_EQ(source.root().items().size(), 2U);
    std::filesystem::remove(file);
}

TEST(JsonSource, aMissingFileIsRefusedWithTheReason)
{
    EXPECT_EQ(messageOf([] { JsonSource::fromFile("no/such.json"); }),
              "no/such.json: cannot read this file: No such file or directory.");
}

TEST(JsonSource, aFolderIsRefused)
{
    EXPECT_EQ(messageOf([] { JsonSource::fromFile("/"); }), "/: this is a folder; give the name of a JSON file.");
}

TEST(JsonSource, invalidTextIsRefusedWhereItBreaks)
{
    EXPECT_EQ(refusalOf(""), "a.json:1:1: this is not valid JSON: there is nothing in it.");
    EXPECT_EQ(refusalOf(" \n"), "a.json:2:1: this is not valid JSON: there is nothing in it.");
    EXPECT_EQ(refusalOf("{\n  \"a\": 1,\n}"),
              "a.json:3:1: this is not valid JSON: syntax error while parsing object key - unexpected '}'; expected "
              "string literal.");
    EXPECT_EQ(refusalOf("[1]\n[2]"),
              "a.json:2:1: this is not valid JSON: syntax error while parsing value - unexpected "
              "'['; expected end of input.");
}

TEST(JsonSource, bytesThatAreNoTextAreRefused)
{
    EXPECT_EQ(refusalOf(std::string("[1,\0 2]", 7)), "a.json:1:4: this is not valid JSON: there is a zero byte.");
    EXPECT_EQ(refusalOf("[\"a\xFF\"]"),
              "a.json:1:4: this is not valid JSON: syntax error while parsing value - invalid "
              "string: ill-formed UTF-8 byte; last read: '\"a\xEF\xBF\xBD'.");
}

TEST(JsonSource, aNumberTooLargeToHoldIsRefused)
{
    EXPECT_EQ(refusalOf("[\n 1e999]"), "a.json:2:6: this is not valid JSON: number overflow parsing '1e999'.");
}

TEST(JsonSource, aKeyGivenTwiceInAnObjectIsRefusedAtItsSecondPlace)
{
    EXPECT_EQ(refusalOf("{\"a\": {\"id\": \"\\\":\", \"x\": 1},\n \"b\": 2, \"a\": 3}"),
              "a.json:2:10: the key \"a\" stands twice in one object; leave only one of them.");
}

TEST(JsonSource, aKeyGivenTwiceIsRefusedThereThoughItsColonIsMissing)
{
    EXPECT_EQ(refusalOf("{\"a\": [\"b\", {}],\n \"a\", \"c\": 1}"),
              "a.json:2:2: the key \"a\" stands twice in one object; leave only one of them.");
    EXPECT_EQ(refusalOf("{\"a\": 1, \"a\""),
              "a.json:1:10: the key \"a\" stands twice in one object; leave only one of them.");
}

TEST(JsonSource, oneKeyInTwoObjectsIsFine)
{
    EXPECT_EQ(refusalOf(R"([{"a": 1}, {"a": 2}, {"b": {"a": 1}, "a": 2}])"), "no error");
}

TEST(JsonSource, deepNestingIsNoProblem)
{
    const std::size_t depth = 100000;

    EXPECT_EQ(refusalOf(std::string(depth, '[') + std::string(depth, ']')), "no error");
}

TEST(JsonSource, positionsAreThoseOfAllValues)
{
    const std::string text = "{\n  \"a\": [1, {}, [ ], \"x, ]\"],\n  \"b/c~d\": {\"e\": null}\n}";
    const auto positions = JsonSource::fromText(text, "a.json").positions();

    std::map<std::string, std::pair<std::size_t, std::size_t>> found;
    for (const auto& [pointer, position] : positions) {
        found[pointer] = {position.line, position.column};
    }
    const std::map<std::string, std::pair<std::size_t, std::size_t>> expected = {
        {"", {1, 1}},      {"/a", {2, 8}},    {"/a/0", {2, 9}},      {"/a/1", {2, 12}},
        {"/a/2", {2, 16}}, {"/a/3", {2, 21}}, {"/b~1c~0d", {3, 12}}, {"/b~1c~0d/e", {3, 18}},
    };
    EXPECT_EQ(found, expected);
}

TEST(JsonSource, positionsOfASingleValueAreItsOwn)
{
    const auto positions = JsonSource::fromText(" 7", "a.json").positions();

    ASSERT_EQ(positions.size(), 1U);
    EXPECT_EQ(positions.at("").column, 2U);
}

TEST(JsonSource, columnsCountCharacters)
{
    const JsonSource source = JsonSource::fromText("{\"\xC3\xA9\": [\"\xE2\x82\xAC\", 1]}", "a.json");

    EXPECT_EQ(source.positions().at("/\xC3\xA9/1").column, 13U);
    EXPECT_EQ(source.place("/\xC3\xA9/1").substr(0, 13), "a.json:1:13: ");
}

} // namespace
