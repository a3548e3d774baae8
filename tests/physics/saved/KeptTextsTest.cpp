// The texts in `tests/data/saved/`, a folder for each release. They were written by that release and are
// restored by every later one; those of an old release are never written again.

#include "physics/Physics.h"
#include "tests/golden/Golden.h"
#include "tests/physics/saved/Geometry.h"
#include "tests/physics/saved/KeptSetUps.h"
#include "tests/physics/saved/Texts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace physics {
namespace {

const std::string release = "0.1.0";

class KeptSetUpTest : public testing::TestWithParam<KeptSetUp> {};

TEST_P(KeptSetUpTest, isWrittenAsItsText)
{
    const Geometry geometry;
    Physics physics(geometry.model(), false);
    ASSERT_TRUE(physics.restore(emptyText(0))); // so that ids begin at 1
    physics.setEnforceRestrictions(false);

    GetParam().make(physics, geometry);

    EXPECT_TRUE(golden::matches(physics.serialise(), "../data/saved/" + release + "/" + GetParam().name + ".txt"));
}

INSTANTIATE_TEST_SUITE_P(All, KeptSetUpTest, testing::ValuesIn(keptSetUps()),
                         [](const testing::TestParamInfo<KeptSetUp>& setUp) {
                             std::string name = setUp.param.name;
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

std::vector<std::filesystem::path> keptTexts()
{
    std::vector<std::filesystem::path> paths;
    const auto folder = std::filesystem::path(PHYSICS_SOURCE_DIR) / "tests/data/saved";
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
        if (entry.path().extension() == ".txt")
            paths.push_back(entry.path());
    std::sort(paths.begin(), paths.end());
    return paths;
}

TEST(KeptTexts, eachIsRestoredAndSavedTheSame)
{
    const Geometry geometry;
    Physics physics(geometry.model(), true);
    const std::vector<std::filesystem::path> paths = keptTexts();
    ASSERT_GE(paths.size(), keptSetUps().size());
    for (const std::filesystem::path& path : paths) {
        std::ifstream stream(path, std::ios::binary);
        const std::string text{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
        EXPECT_EQ(physics.checkSerialised(text), std::vector<std::string>()) << path;
        EXPECT_TRUE(physics.restore(text)) << path;
        EXPECT_EQ(physics.serialise(), text) << path;
    }
}

} // namespace
} // namespace physics
