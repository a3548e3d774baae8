#include "importers/cgns/CgnsReader.h"

#include "tests/importers/cgns/CgnsFileMaker.h"
#include "tests/importers/cgns/Faults.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace {

using cgnstests::CgnsFileMaker;
using cgnstests::Fault;
using cgnstests::TemporaryPath;
using gtm::bundled::CgnsError;
using gtm::bundled::readCgns;
using testing::Contains;

/// What is said when the file is refused, without its name at the front; empty when it is read.
std::string refusalOf(const std::filesystem::path& file)
{
    try {
        readCgns(file);
    } catch (const CgnsError& error) {
        const std::string text = error.what();
        EXPECT_EQ(text.find(file.string() + ": "), 0U) << text;
        return text.substr(file.string().size() + 2);
    }
    return {};
}

std::string contentOf(const std::filesystem::path& file)
{
    std::ostringstream content;
    content << std::ifstream(file, std::ios::binary).rdbuf();
    return content.str();
}

class FaultyTree : public testing::TestWithParam<Fault> {};

TEST_P(FaultyTree, isRefusedOrNoted)
{
    CgnsFileMaker maker(GetParam().base);
    GetParam().make(maker);
    const std::filesystem::path& file = maker.finish();

    if (GetParam().isRefused) {
        EXPECT_EQ(refusalOf(file), GetParam().said);
    } else {
        EXPECT_THAT(readCgns(file).notes, Contains(GetParam().said));
    }
}

INSTANTIATE_TEST_SUITE_P(CgnsReader, FaultyTree, testing::ValuesIn(cgnstests::faults()),
                         [](const testing::TestParamInfo<Fault>& fault) { return fault.param.name; });

TEST(FaultyCgns, aFileThatIsNotThereIsRefused)
{
    EXPECT_EQ(refusalOf("no-such.cgns"), "there is no such file; check the name and the folder.");
}

TEST(FaultyCgns, aFolderIsRefused)
{
    const TemporaryPath folder;
    std::filesystem::create_directory(folder.path());

    EXPECT_EQ(refusalOf(folder.path()), "this is not a file but a folder or a device; name the CGNS file itself.");
}

TEST(FaultyCgns, anEmptyFileIsRefused)
{
    EXPECT_EQ(refusalOf(TemporaryPath("").path()), "the file is empty; export it again.");
}

TEST(FaultyCgns, aTextIsRefused)
{
    EXPECT_THAT(refusalOf(TemporaryPath("This is a text.\n").path()),
                testing::StartsWith("the file cannot be opened as CGNS ("));
}

class CutShort : public testing::TestWithParam<int> {};

INSTANTIATE_TEST_SUITE_P(FaultyCgns, CutShort, testing::Values(CGIO_FILE_HDF5, CGIO_FILE_ADF));

TEST_P(CutShort, aFileIsRefused)
{
    CgnsFileMaker maker("Base", GetParam());
    maker.addCondition(maker.addZone("box"), "wall", {1, 1, 1, 1, 3, 3});
    const std::string content = contentOf(maker.finish());

    for (std::size_t part = 1; part < 20; ++part) {
        const TemporaryPath file(content.substr(0, content.size() * part / 40));
        EXPECT_NE(refusalOf(file.path()), "") << part << " of 40 parts of the file";
    }
}

} // namespace
