// What the program does with faulty CGNS files: it ends with exit code 2 and one sentence, or it goes on and tells
// what it found.

#include "tests/apps/ProgramRun.h"
#include "tests/apps/ToolRun.h"
#include "tests/importers/cgns/Faults.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace {

using cgnstests::CgnsFileMaker;
using cgnstests::Fault;
using cgnstests::TemporaryPath;
using testing::HasSubstr;
using testing::StartsWith;

ProgramRun topologyOf(const std::filesystem::path& file) { return ProgramRun("topology '" + file.string() + "'"); }

class FaultyMesh : public testing::TestWithParam<Fault> {};

TEST_P(FaultyMesh, endsWithExitCodeTwoOrIsTold)
{
    CgnsFileMaker maker(GetParam().base);
    GetParam().make(maker);
    const std::filesystem::path& file = maker.finish();

    const ProgramRun run = topologyOf(file);

    if (GetParam().isRefused) {
        EXPECT_EQ(run.err, file.string() + ": " + GetParam().said + "\n");
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.code, 2);
    } else {
        EXPECT_THAT(run.err, HasSubstr(GetParam().said + "\n"));
        EXPECT_NE(run.out, "");
        EXPECT_EQ(run.code, 0);
    }
}

INSTANTIATE_TEST_SUITE_P(CgnsReader, FaultyMesh, testing::ValuesIn(cgnstests::faults()),
                         [](const testing::TestParamInfo<Fault>& fault) { return fault.param.name; });

TEST(FaultyMeshFile, thatIsNotThereIsAFolderIsEmptyOrATextEndsWithExitCodeTwo)
{
    const TemporaryPath folder;
    std::filesystem::create_directory(folder.path());
    const TemporaryPath empty("");
    const TemporaryPath text("This is a text.\n");

    EXPECT_EQ(topologyOf("no-such.cgns").err, "no-such.cgns: there is no such file; check the name and the folder.\n");
    EXPECT_EQ(topologyOf(folder.path()).err,
              folder.path().string() + ": this is not a file but a folder or a device; name the CGNS file itself.\n");
    EXPECT_EQ(topologyOf(empty.path()).err, empty.path().string() + ": the file is empty; export it again.\n");
    EXPECT_THAT(topologyOf(text.path()).err,
                StartsWith(text.path().string() + ": the file cannot be opened as CGNS ("));
    for (const TemporaryPath* file : {&folder, &empty, &text}) {
        EXPECT_EQ(topologyOf(file->path()).code, 2);
    }
}

class CutMesh : public testing::TestWithParam<int> {};

INSTANTIATE_TEST_SUITE_P(CgnsReader, CutMesh, testing::Values(CGIO_FILE_HDF5, CGIO_FILE_ADF));

TEST_P(CutMesh, endsWithExitCodeTwo)
{
    CgnsFileMaker maker("Base", GetParam());
    maker.addCondition(maker.addZone("box"), "wall", {1, 1, 1, 1, 3, 3});
    const std::string content = contentOf(maker.finish());

    // An ADF file has nothing at its end.
    for (std::size_t part = 1; part < 6; ++part) {
        const TemporaryPath file(content.substr(0, content.size() * part / 10));
        const ProgramRun run = topologyOf(file.path());
        EXPECT_EQ(run.code, 2) << part << " tenths";
        EXPECT_THAT(run.err, StartsWith(file.path().string() + ": the file "));
    }
}

} // namespace
