#include "physics/saved/TextReader.h"

#include "physics/Types.h"
#include "physics/saved/Records.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <limits>
#include <string>
#include <vector>

namespace physics {
namespace {

int integerOf(const std::string& text, std::string* complaint = nullptr)
{
    TextReader reader(text);
    int value = 77;
    reader.integer("a number", value);
    if (complaint != nullptr)
        *complaint = reader.complaint();
    return value;
}

TEST(TextReader, readsEveryIntegerOf32Bits)
{
    EXPECT_EQ(integerOf("0"), 0);
    EXPECT_EQ(integerOf("-0"), 0);
    EXPECT_EQ(integerOf("+5"), 5);
    EXPECT_EQ(integerOf(" \t\v\f\r\n007 8"), 7);
    EXPECT_EQ(integerOf("2147483647"), std::numeric_limits<int>::max());
    EXPECT_EQ(integerOf("-2147483648"), std::numeric_limits<int>::min());
}

TEST(TextReader, refusesWhatIsNoIntegerOf32Bits)
{
    for (const std::string text : {"2147483648", "-2147483649", "99999999999", "word", "1.5", "1e3", "0x1", "+-5",
                                   "++5", "+", "-", "--1", "12a", "1,000"}) {
        std::string complaint;
        EXPECT_EQ(integerOf(text, &complaint), 0) << text;
        EXPECT_EQ(complaint, "1: expected a number (a whole number of 32 bits), found \"" + text + "\"");
    }
}

TEST(TextReader, quotesAreOnOneLine)
{
    std::string complaint;
    integerOf(std::string("\n\na\0\x1b", 5) + "b", &complaint);

    EXPECT_EQ(complaint, "3: expected a number (a whole number of 32 bits), found \"a??b\"");
    EXPECT_EQ(inQuotes("cold\nside\r"), "\"cold?side?\"");
}

TEST(TextReader, quotesAreNotLongerThanTwoHundredBytes)
{
    EXPECT_EQ(inQuotes(std::string(200, 'x')), "\"" + std::string(200, 'x') + "\"");
    EXPECT_EQ(inQuotes(std::string(201, 'x')), "\"" + std::string(200, 'x') + "...\"");
}

TEST(TextReader, quotesEndBetweenCharacters)
{
    const std::string letter = "\xc3\x9f"; // two bytes in UTF-8
    const std::string start(199, 'x');

    EXPECT_EQ(inQuotes(start + letter), "\"" + start + "...\"");
    EXPECT_EQ(inQuotes("x" + start + letter), "\"x" + start + "...\"");
    EXPECT_EQ(inQuotes(std::string(300, '\x9f')), "\"...\"");
}

TEST(TextReader, namesTheLineOfTheEndOfTheText)
{
    std::string complaint;
    integerOf("\n\n", &complaint);
    EXPECT_EQ(complaint, "3: expected a number (a whole number of 32 bits), found the end of the text");
}

TEST(TextReader, onlyTheFirstFailureIsTold)
{
    TextReader reader("1 x y");
    int value = 0;
    for (const char* label : {"one", "two", "three"})
        reader.integer(label, value);

    EXPECT_TRUE(reader.hasFailed());
    EXPECT_EQ(reader.complaint(), "1: expected two (a whole number of 32 bits), found \"x\"");
}

TEST(TextReader, answersNothingAfterAFailure)
{
    TextReader reader("x 1 1 2 name");
    int number = 5;
    bool flag = true;
    std::size_t count = 5;
    std::string name = "before";
    std::vector<int> ids = {5};
    PairList pairs = {{5, 5}};
    BoundaryType type = BoundaryType::Wall;

    reader.integer("a number", number);
    reader.boolean("a flag", flag);
    reader.count("a count", count);
    reader.restOfLine("a name", name);
    reader.idList("ids", ids);
    reader.pairList("pairs", pairs);
    reader.enumerator("a type", type);

    EXPECT_EQ(number, 0);
    EXPECT_FALSE(flag);
    EXPECT_EQ(count, 0U);
    EXPECT_EQ(name, "");
    EXPECT_EQ(ids, std::vector<int>());
    EXPECT_EQ(pairs, PairList());
    EXPECT_EQ(type, BoundaryType(0));
}

TEST(TextReader, anyNumberButZeroIsTrue)
{
    TextReader reader("0 1 2 -1");
    std::vector<bool> flags;
    for (int i = 0; i < 4; ++i) {
        bool flag = false;
        reader.boolean("a flag", flag);
        flags.push_back(flag);
    }

    EXPECT_EQ(flags, (std::vector<bool>{false, true, true, true}));
    EXPECT_FALSE(reader.hasFailed());
}

TEST(TextReader, refusesACountThatTheTextCannotHold)
{
    const std::string expected = "1: expected things (a count that the rest of the text can hold), found ";
    for (const std::string count : {"-1", "3", "2147483647"}) {
        const std::string text = count + " 1 2"; // room for two
        TextReader reader(text);
        std::size_t value = 5;
        reader.count("things", value);
        EXPECT_EQ(value, 0U) << count;
        EXPECT_EQ(reader.complaint(), expected + "\"" + count + "\"");
    }
}

TEST(TextReader, acceptsACountThatTheTextJustHolds)
{
    TextReader reader("2 8 9");
    std::vector<int> ids;
    reader.idList("ids", ids);

    EXPECT_EQ(ids, (std::vector<int>{8, 9}));
    EXPECT_FALSE(reader.hasFailed());
}

TEST(TextReader, readsPairs)
{
    TextReader reader("4 -1 3 1 4");
    PairList pairs;
    reader.pairList("pairs", pairs);

    EXPECT_EQ(pairs, (PairList{{-1, 3}, {1, 4}}));
}

TEST(TextReader, refusesPairsOfAnOddCount)
{
    TextReader reader("\n3 1 2 3");
    PairList pairs;
    reader.pairList("pairs", pairs);

    EXPECT_EQ(pairs, PairList());
    EXPECT_EQ(reader.complaint(), "2: expected pairs (an even count, for pairs), found \"3\"");
}

TEST(TextReader, namesRunToTheEndOfTheirLine)
{
    TextReader reader("1   the cold  side \r\n2 \"q\"");
    int number = 0;
    std::string first;
    std::string second;
    reader.integer("a number", number);
    reader.restOfLine("a name", first);
    reader.integer("a number", number);
    reader.restOfLine("a name", second);

    EXPECT_EQ(first, "the cold  side \r");
    EXPECT_EQ(number, 2);
    EXPECT_EQ(second, "\"q\"");
    EXPECT_FALSE(reader.hasFailed());
}

TEST(TextReader, emptyNameTakesTheFollowingLine)
{
    TextReader reader("1 \n\n2 next\n");
    int number = 0;
    std::string name;
    reader.integer("a number", number);
    reader.restOfLine("a name", name);

    EXPECT_EQ(name, "2 next");
}

TEST(TextReader, missesANameAtTheEndOfTheText)
{
    TextReader reader("1 \n ");
    int number = 0;
    std::string name;
    reader.integer("a number", number);
    reader.restOfLine("a name", name);

    EXPECT_EQ(reader.complaint(), "2: expected a name, found the end of the text");
}

TEST(TextReader, countsLinesFromOne)
{
    const TextReader reader("a\nbb\n");

    EXPECT_EQ(reader.lineOf(0), 1U);
    EXPECT_EQ(reader.lineOf(1), 1U);
    EXPECT_EQ(reader.lineOf(2), 2U);
    EXPECT_EQ(reader.lineOf(5), 3U);
    EXPECT_EQ(reader.lineOf(500), 3U);
}

// ---- Locations: the one record that is not a plain row of fields

LocationRecord locationOf(const std::string& text, std::string* complaint = nullptr)
{
    TextReader reader(text);
    LocationRecord record;
    LocationRecord::describe(reader, record);
    if (complaint != nullptr)
        *complaint = reader.complaint();
    return record;
}

std::string written(const LocationRecord& record)
{
    TextWriter writer;
    LocationRecord::describe(writer, record);
    return writer.take();
}

TEST(LocationRecord, eachCodeIsReadAndWrittenBack)
{
    struct Row {
        std::string text;
        int code;
        std::string location;
    };
    const std::vector<Row> rows = {{"0 left, right\n", LocationRecord::Regions, "left, right"},
                                   {"1 left, !right\n", LocationRecord::Implicit, "left, !right"},
                                   {"2\n", LocationRecord::Default, ""},
                                   {"3\n", LocationRecord::Regions, ""},
                                   {"4\n", LocationRecord::Implicit, ""}};
    for (const Row& row : rows) {
        const LocationRecord record = locationOf(row.text);
        EXPECT_EQ(record.code, row.code) << row.text;
        EXPECT_EQ(record.text, row.location) << row.text;
        EXPECT_EQ(record.isDefault(), row.text == "2\n");
        EXPECT_EQ(written(record), row.text);
    }
}

TEST(LocationRecord, otherCodesAreRefused)
{
    for (const std::string code : {"5", "-1", "2147483647"}) {
        std::string complaint;
        locationOf(code + "\n", &complaint);
        EXPECT_EQ(complaint, "1: expected a location code from 0 to 4, found \"" + code + "\"");
    }
}

} // namespace
} // namespace physics
