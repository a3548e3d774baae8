#include "importers/cad/CadNames.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using gtm::bundled::CadNames;
using Strings = std::vector<std::string>;

TEST(CadNames, aNameThatCanBeAnIdIsKept)
{
    EXPECT_EQ(CadNames::asId("coolant"), "coolant");
    EXPECT_EQ(CadNames::asId("inner wall (left) *?!\"/"), "inner wall (left) *?!\"/");
    EXPECT_EQ(CadNames::asId("Kühlmittel"), "Kühlmittel");
}

TEST(CadNames, commasAndControlCharactersBecomeUnderscores)
{
    EXPECT_EQ(CadNames::asId("a,b"), "a_b");
    EXPECT_EQ(CadNames::asId("a\r\nb\tc\x7f"), "a__b_c_");
    EXPECT_EQ(CadNames::asId(std::string("a\0b", 3)), "a_b");
}

TEST(CadNames, blanksAtTheEndsGo) { EXPECT_EQ(CadNames::asId(" \t a b \r\n"), "a b"); }

TEST(CadNames, emptyBlankAndNoneCountAsNoName)
{
    for (const char* name : {"", "  \n ", "NONE", " NONE "})
        EXPECT_EQ(CadNames::asId(name), "") << name;
    EXPECT_EQ(CadNames::asId("none"), "none");
}

TEST(CadNames, anIdThatIsTakenGetsTheNextFreeNumber)
{
    Strings notes;
    CadNames names(notes);

    const Strings ids = {names.take("Body", "fin", "fin"), names.take("Body", "fin-2", "fin-2"),
                         names.take("Body", "fin", "fin"), names.take("Body", "fin", "fin"),
                         names.take("Body", "fin-2", "fin-2")};

    EXPECT_EQ(ids, (Strings{"fin", "fin-2", "fin-3", "fin-4", "fin-2-2"}));
    EXPECT_EQ(notes, (Strings{"Body \"fin\" is called \"fin-3\" here, because \"fin\" is taken.",
                              "Body \"fin\" is called \"fin-4\" here, because \"fin\" is taken.",
                              "Body \"fin-2\" is called \"fin-2-2\" here, because \"fin-2\" is taken."}));
}

TEST(CadNames, aChangedNameIsToldOnOneLine)
{
    Strings notes;
    CadNames names(notes);

    EXPECT_EQ(names.take("Part", " a,\nb", "a__b"), "a__b");

    EXPECT_EQ(notes, (Strings{"Part \" a,?b\" is called \"a__b\" here, because an id has no comma, no control "
                              "character and no blank at its ends."}));
}

TEST(CadNames, whatTheFileDoesNotNameIsNotTold)
{
    Strings notes;
    CadNames names(notes);

    EXPECT_EQ(names.take("Face", "", "a/face-1"), "a/face-1");
    EXPECT_EQ(names.take("Face", "", "a/face-1"), "a/face-1-2");
    EXPECT_TRUE(notes.empty());
}

} // namespace
