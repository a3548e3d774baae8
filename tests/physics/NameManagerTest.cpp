#include "physics/NameManager.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace {

using physics::NameManager;

struct Case {
    std::string given;
    std::string expected;
};

const std::vector<Case> physicsNames = {
    {"", "A"},
    {"  \t ", "A"},
    {" \t\n\v\f\r", "A"},
    {"  inlet 1 ", "inlet 1"},
    {"\t\n\v\f\rwall\r\f\v\n\t", "wall"},
    {"1st-wall", "A1st_wall"},
    {"_wall", "A_wall"},
    {".wall", "A.wall"},
    {"-wall", "A_wall"},
    {"a/b.c", "a_b.c"},
    {"Inlet", "Inlet"},
    {"inner\ttab", "inner_tab"},
    {"é", "A__"},
    {"zoné", "zon__"},
    {"\xA0wall", "A_wall"},
    {std::string("a\0b", 3), "a_b"},
    {std::string("\0", 1), "A_"},
};

const std::vector<Case> threadNames = {
    {"", "!"},
    {"Fluid Zone", "fluid-zone"},
    {"1 inlet", "!1-inlet"},
    {"-x", "!-x"},
    {"+x", "!+x"},
    {".x", "!.x"},
    {"a@b,c", "a_b_c"},
    {"zoneé", "zone_"},
    {"éa", "_a"},
    {"日本", "__"},
    {"Wall#2", "wall_2"},
    {" x", "!-x"},
    {"x ", "x-"},
    {"\tx", "_x"},
    {"!", "!"},
    {"!x", "!x"},
    {"@", "_"},
    {"\x80\xBF", "!"},
    {"\x80x", "x"},
    {"\xC3", "_"},
    {"\xFF", "_"},
    {std::string("\0", 1), "_"},
    {"\x7F", "_"},
};

TEST(NameManager, leavesPartAndRegionNamesAsTheyStand)
{
    for (const std::string& name : {std::string(" Any Name "), std::string(), std::string("é@1\n")}) {
        EXPECT_EQ(NameManager::normalisePartName(name), name);
        EXPECT_EQ(NameManager::normaliseRegionName(name), name);
    }
}

TEST(NameManager, makesPhysicsNames)
{
    for (const Case& test : physicsNames)
        EXPECT_EQ(NameManager::normalisePhysicsName(test.given), test.expected) << '"' << test.given << '"';
}

TEST(NameManager, makesSymbolsForThreads)
{
    for (const Case& test : threadNames)
        EXPECT_EQ(NameManager::normaliseThreadName(test.given), test.expected) << '"' << test.given << '"';
}

TEST(NameManager, treatsEveryByteOfAPhysicsNameByItsClass)
{
    const std::string kept = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789 ._";
    const std::set<char> isKept(kept.begin(), kept.end());

    for (int byte = 0; byte < 256; ++byte) {
        const char c = static_cast<char>(byte);
        const std::string expected = isKept.count(c) > 0 ? std::string("x") + c + "x" : "x_x";
        EXPECT_EQ(NameManager::normalisePhysicsName(std::string("x") + c + "x"), expected) << byte;
    }
}

TEST(NameManager, treatsEveryByteInsideASymbolByItsClass)
{
    const std::string kept = "abcdefghijklmnopqrstuvwxyz!$%&*/:<=>?^_~0123456789+-.";
    const std::set<char> isKept(kept.begin(), kept.end());
    const auto expectedFor = [&](int byte) -> std::string {
        const char c = static_cast<char>(byte);
        if (byte >= 0x80 && byte < 0xC0)
            return "";
        if (c == ' ')
            return "-";
        if (c >= 'A' && c <= 'Z')
            return std::string(1, static_cast<char>(c + 32));
        return isKept.count(c) > 0 ? std::string(1, c) : "_";
    };

    for (int byte = 0; byte < 256; ++byte) {
        const std::string name = std::string("x") + static_cast<char>(byte) + "x";
        EXPECT_EQ(NameManager::normaliseThreadName(name), "x" + expectedFor(byte) + "x") << byte;
    }
}

TEST(NameManager, putsAnExclamationMarkBeforeWhatCannotBeginASymbol)
{
    const std::string cannotBegin = "0123456789+-.";

    for (const char c : cannotBegin)
        EXPECT_EQ(NameManager::normaliseThreadName(std::string(1, c)), std::string("!") + c);
    for (const char c : std::string("abcdefghijklmnopqrstuvwxyz!$%&*/:<=>?^_~"))
        EXPECT_EQ(NameManager::normaliseThreadName(std::string(1, c)), std::string(1, c));
}

} // namespace
