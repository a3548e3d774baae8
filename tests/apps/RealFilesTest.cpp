#include "apps/GeometryFile.h"
#include "locationmodel/LocationModel.h"
#include "physics/Physics.h"
#include "tests/apps/ProgramRun.h"
#include "tests/apps/ToolRun.h"
#include "tests/golden/Golden.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <ostream>
#include <string>

namespace {

/// A real file, and what its listing begins with, counted by other means than our reader.
struct RealFile {
    const char* path;
    const char* golden; ///< beginning of the names of its golden files
    const char* counts;
};

void PrintTo(const RealFile& file, std::ostream* stream) { *stream << file.path; }

class RealFiles : public testing::TestWithParam<RealFile> {
protected:
    RealFiles() : m_case("real.json", ""), m_text("real.setup", "") {}

    void SetUp() override
    {
        if (!std::filesystem::exists(geometry())) {
            GTEST_SKIP() << "no file " << geometry();
        }
    }

    static std::string geometry() { return std::string(PHYSICS_TEST_DATA) + "/" + GetParam().path; }
    static std::string golden(const std::string& kind)
    {
        return "real/" + std::string(GetParam().golden) + "-" + kind + ".txt";
    }

    /// Runs the program and expects that all is fine.
    static std::string outOf(const std::string& arguments)
    {
        const ProgramRun run(arguments);
        EXPECT_EQ(run.code, 0) << arguments << '\n' << run.err;
        return run.out;
    }

    std::string propose() const { return outOf("new '" + geometry() + "' --force -o '" + m_case.path() + "'"); }

    const TemporaryFile m_case;
    const TemporaryFile m_text;
};

TEST_P(RealFiles, hasTheCountsThatAreKnown)
{
    const std::string out = outOf("topology '" + geometry() + "'");

    EXPECT_EQ(out.substr(0, out.find('\n')), GetParam().counts);
    EXPECT_EQ(outOf("topology '" + geometry() + "'"), out);
}

TEST_P(RealFiles, isListedAsItWasRead)
{
    EXPECT_TRUE(golden::matches(outOf("topology '" + geometry() + "'"), golden("topology")));
}

class RealMeshes : public RealFiles {};

TEST_P(RealMeshes, tellsWhatIsLeftOutAndWhatNothingCovers)
{
    EXPECT_TRUE(golden::matches(ProgramRun("topology '" + geometry() + "'").err, golden("notes")));
}

TEST_P(RealFiles, isProposedAsACase)
{
    const std::string out = propose();

    EXPECT_TRUE(golden::matches(out, golden("new")));
    EXPECT_EQ(propose(), out);
}

TEST_P(RealFiles, theProposalIsBuiltCheckedAndReported)
{
    propose();

    EXPECT_NE(outOf("build '" + m_case.path() + "'"), "");
    EXPECT_NE(outOf("check --warnings=error '" + m_case.path() + "'").find("\n0 errors, 0 warnings\n"),
              std::string::npos);
    EXPECT_NE(outOf("report '" + m_case.path() + "'"), "");
}

TEST_P(RealFiles, theSavedProposalIsRestoredToTheSameBytes)
{
    propose();
    outOf("save '" + m_case.path() + "' -o '" + m_text.path() + "'");
    const std::string saved = contentOf(m_text.path());

    EXPECT_NE(outOf("restore '" + geometry() + "' '" + m_text.path() + "'"), "");
    EXPECT_EQ(outOf("diff --geometry '" + geometry() + "' '" + m_case.path() + "' '" + m_text.path() + "'"),
              "no differences\n");
    const physics::apps::GeometryFile file = physics::apps::readGeometry(geometry(), {});
    physics::Physics restored(file.model.get(), true);
    ASSERT_TRUE(restored.restore(saved));
    EXPECT_EQ(restored.serialise(), saved);
}

constexpr RealFile meshes[] = {
    {"cgns/717_wl_L2.cgns", "717-wl", "0 parts, 5 bodies, 22 faces, 30 face uses, with solver zones"},
    {"cgns/cgnslib_vers-3420.cgns", "cgnslib-3420", "0 parts, 1 body, 3 faces, 3 face uses, with solver zones"},
    {"cgns/cgnslib_vers-4400.cgns", "cgnslib-4400", "0 parts, 1 body, 3 faces, 3 face uses, with solver zones"},
    {"own/three_zones_periodic_adf.cgns", "three-zones", "0 parts, 3 bodies, 8 faces, 10 face uses, with solver zones"},
    {"own/three_zones_periodic_hdf5.cgns", "three-zones",
     "0 parts, 3 bodies, 8 faces, 10 face uses, with solver zones"},
};

constexpr RealFile shapes[] = {
    {"brep/test_brep_file.brep", "test-brep-file", "0 parts, 6 bodies, 28 faces, 36 face uses, no solver zones"},
    {"brep/multi_volume_cylinders.stp", "multi-volume-cylinders",
     "6 parts, 6 bodies, 28 faces, 36 face uses, no solver zones"},
    {"own/box_cylinder_box.brep", "box-cylinder-box-brep",
     "0 parts, 3 bodies, 14 faces, 16 face uses, no solver zones"},
    {"own/box_cylinder_box.step", "box-cylinder-box-step", "1 part, 3 bodies, 14 faces, 16 face uses, no solver zones"},
};

#ifdef PHYSICS_HAS_CGNS
INSTANTIATE_TEST_SUITE_P(Meshes, RealFiles, testing::ValuesIn(meshes));
INSTANTIATE_TEST_SUITE_P(Meshes, RealMeshes, testing::ValuesIn(meshes));
#endif
#ifdef PHYSICS_HAS_CAD
INSTANTIATE_TEST_SUITE_P(Shapes, RealFiles, testing::ValuesIn(shapes));
#endif
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(RealFiles);
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(RealMeshes);

} // namespace
