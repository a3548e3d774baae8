#include "importers/RegionIds.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace {

using gtm::bundled::RegionIds;
using Strings = std::vector<std::string>;

TEST(RegionIds, aNameThatCanBeAnIdIsKept)
{
    EXPECT_EQ(RegionIds::asId("coolant"), "coolant");
    EXPECT_EQ(RegionIds::asId("inner wall (left) *?!\"/"), "inner wall (left) *?!\"/");
    EXPECT_EQ(RegionIds::asId("Kühlmittel"), "Kühlmittel");
}

TEST(RegionIds, commasAndControlCharactersBecomeUnderscores)
{
    EXPECT_EQ(RegionIds::asId("a,b"), "a_b");
    EXPECT_EQ(RegionIds::asId("a\r\nb\tc\x7f"), "a__b_c_");
    EXPECT_EQ(RegionIds::asId(std::string("a\0b", 3)), "a_b");
}

TEST(RegionIds, blanksAtTheEndsGo) { EXPECT_EQ(RegionIds::asId(" \t a b \r\n"), "a b"); }

TEST(RegionIds, emptyBlankAndNoneCountAsNoName)
{
    for (const char* name : {"", "  \n ", "NONE", " NONE "})
        EXPECT_EQ(RegionIds::asId(name), "") << name;
    EXPECT_EQ(RegionIds::asId("none"), "none");
}

TEST(RegionIds, anIdThatIsTakenGetsTheNextFreeNumber)
{
    Strings notes;
    RegionIds names(notes);

    const Strings ids = {names.take("Body", "fin", "fin"), names.take("Body", "fin-2", "fin-2"),
                         names.take("Body", "fin", "fin"), names.take("Body", "fin", "fin"),
                         names.take("Body", "fin-2", "fin-2")};

    EXPECT_EQ(ids, (Strings{"fin", "fin-2", "fin-3", "fin-4", "fin-2-2"}));
    EXPECT_EQ(notes, (Strings{"Body \"fin\" is called \"fin-3\" here, because \"fin\" is taken.",
                              "Body \"fin\" is called \"fin-4\" here, because \"fin\" is taken.",
                              "Body \"fin-2\" is called \"fin-2-2\" here, because \"fin-2\" is taken."}));
}

TEST(RegionIds, aChangedNameIsToldOnOneLine)
{
    Strings notes;
    RegionIds names(notes);

    EXPECT_EQ(names.take("Part", " a,\nb", "a__b"), "a__b");

    EXPECT_EQ(notes, (Strings{"Part \" a,\\nb\" is called \"a__b\" here, because an id has no comma, no control "
                              "character and no blank at its ends."}));
}

TEST(RegionIds, whatTheFileDoesNotNameIsNotTold)
{
    Strings notes;
    RegionIds names(notes);

    EXPECT_EQ(names.take("Face", "", "a/face-1"), "a/face-1");
    EXPECT_EQ(names.take("Face", "", "a/face-1"), "a/face-1-2");
    EXPECT_TRUE(notes.empty());
    EXPECT_TRUE(names.renamed().empty());
}

TEST(RegionIds, theWayBackToTheNamesOfTheFileIsKept)
{
    Strings notes;
    RegionIds names(notes);
    names.take("Body", "fin", "fin");
    names.take("Body", "fin", "fin");
    names.take("Body", "a,b", "a_b");

    EXPECT_EQ(names.renamed(), (std::map<std::string, std::string>{{"fin-2", "fin"}, {"a_b", "a,b"}}));
}

} // namespace
