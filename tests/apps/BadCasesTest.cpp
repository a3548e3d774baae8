#include "tests/apps/ToolRun.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

// Each case of tests/data/bad-cases has its whole complaint beside it. The folder says what is wrong: the text
// (syntax), keys, kinds of values and names of types (shape), references and the geometry (meaning), or what the
// file asks for (refused).

namespace {

std::vector<std::string> casesIn(const std::string& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(sourceFile("tests/data/bad-cases/" + folder))) {
        if (entry.path().extension() == ".json") {
            names.push_back(folder + "/" + entry.path().stem().string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

class BadCase : public testing::TestWithParam<std::string> {};

TEST_P(BadCase, isComplainedAbout)
{
    const std::filesystem::path file = sourceFile("tests/data/bad-cases/" + GetParam() + ".json");
    const WorkingFolder folder(file.parent_path());
    const bool isRefused = file.parent_path().filename() == "refused";

    const ToolRun run({"build", file.filename().string()});

    EXPECT_EQ(run.err, contentOf(std::filesystem::path(file).replace_extension(".expected")));
    EXPECT_EQ(run.code, isRefused ? 1 : 2);
    EXPECT_EQ(run.out.empty(), !isRefused);
}

std::string nameOf(const testing::TestParamInfo<std::string>& info)
{
    std::string name = info.param.substr(info.param.find('/') + 1);
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Syntax, BadCase, testing::ValuesIn(casesIn("syntax")), nameOf);
INSTANTIATE_TEST_SUITE_P(Shape, BadCase, testing::ValuesIn(casesIn("shape")), nameOf);
INSTANTIATE_TEST_SUITE_P(Meaning, BadCase, testing::ValuesIn(casesIn("meaning")), nameOf);
INSTANTIATE_TEST_SUITE_P(Refused, BadCase, testing::ValuesIn(casesIn("refused")), nameOf);

} // namespace
