#include "apps/proposal/NamesInCase.h"

#include <gtest/gtest.h>

#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace {

using physics::apps::CaseFile;
using physics::apps::NamesInCase;

TEST(NamesInCase, aNameThatCanBeKeptIsKeptAndNotListed)
{
    std::vector<CaseFile::NameInFile> list;
    NamesInCase names(list);

    EXPECT_EQ(names.take("volume", "", "air, hot", "volume"), "air, hot");
    EXPECT_TRUE(list.empty());
}

TEST(NamesInCase, whatANameCannotHaveIsReplacedAndListed)
{
    std::vector<CaseFile::NameInFile> list;
    NamesInCase names(list);

    EXPECT_EQ(names.take("boundary", "air::", "  in::let\n", "boundary"), "in_let_");
    ASSERT_EQ(list.size(), 1U);
    EXPECT_EQ(list[0].of, "boundary");
    EXPECT_EQ(list[0].name, "air::in_let_");
    EXPECT_EQ(list[0].inFile, "  in::let\n");
}

TEST(NamesInCase, namesClashOnlyWithinTheirKindAndScope)
{
    std::vector<CaseFile::NameInFile> list;
    NamesInCase names(list);

    EXPECT_EQ(names.take("boundary", "a::", "wall", ""), "wall");
    EXPECT_EQ(names.take("boundary", "b::", "wall", ""), "wall");
    EXPECT_EQ(names.take("interface", "", "wall", ""), "wall");
    EXPECT_EQ(names.take("boundary", "a::", "wall", ""), "wall-2");
    EXPECT_EQ(names.take("boundary", "a::", "", "wall"), "wall-3");
    EXPECT_EQ(list.size(), 1U);
}

RC_GTEST_PROP(NamesInCase, leadsBackToEveryNameThatTheFileGives, (const std::vector<std::string>& said))
{
    std::vector<CaseFile::NameInFile> list;
    NamesInCase names(list);
    std::map<std::string, std::string> saidOf;
    for (const std::string& name : said) {
        const std::string taken = names.take("volume", "", name, "volume");
        RC_ASSERT(saidOf.emplace(taken, name).second);
        RC_ASSERT(!taken.empty());
        RC_ASSERT(taken.find("::") == std::string::npos);
    }

    for (const CaseFile::NameInFile& changed : list) {
        RC_ASSERT(saidOf.at(changed.name) == changed.inFile);
        saidOf.erase(changed.name);
    }
    for (const auto& [taken, name] : saidOf) {
        RC_ASSERT(name.empty() || name == taken);
    }
}

} // namespace
