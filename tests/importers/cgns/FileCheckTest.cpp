#include "importers/cgns/FileCheck.h"

#include "importers/cgns/CgnsReader.h"
#include "tests/importers/cgns/CgnsFileMaker.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

namespace {

using cgnstests::CgnsFileMaker;
using cgnstests::TemporaryPath;
using gtm::bundled::CgnsError;
using gtm::bundled::checkFile;

std::string refusalOf(const std::filesystem::path& file)
{
    try {
        checkFile(file);
    } catch (const CgnsError& error) {
        return error.what();
    }
    return {};
}

std::string contentOf(CgnsFileMaker& maker)
{
    std::ostringstream content;
    content << std::ifstream(maker.finish(), std::ios::binary).rdbuf();
    return content.str();
}

TEST(FileCheck, aSoundFileAndWhatTheFileLibraryCanRefuseItselfPass)
{
    for (const int backEnd : {CGIO_FILE_HDF5, CGIO_FILE_ADF}) {
        CgnsFileMaker maker("Base", backEnd);
        EXPECT_EQ(refusalOf(maker.finish()), "");
    }
    EXPECT_EQ(refusalOf(TemporaryPath("This is a text.\n").path()), "");
}

TEST(FileCheck, whatIsNoFileIsRefused)
{
    const TemporaryPath folder;
    std::filesystem::create_directory(folder.path());

    EXPECT_EQ(refusalOf("no-such.cgns"), "there is no such file; check the name and the folder.");
    EXPECT_EQ(refusalOf(folder.path()), "this is not a file but a folder or a device; name the CGNS file itself.");
    EXPECT_EQ(refusalOf("/dev/null"), "this is not a file but a folder or a device; name the CGNS file itself.");
    EXPECT_EQ(refusalOf(TemporaryPath("").path()), "the file is empty; export it again.");
}

TEST(FileCheck, anAdfFileThatIsCutShortIsRefused)
{
    CgnsFileMaker maker("Base", CGIO_FILE_ADF);
    const std::string content = contentOf(maker);

    const std::string said = refusalOf(TemporaryPath(content.substr(0, 1000)).path());

    EXPECT_EQ(said.find("the file is cut short, it has 1000 of its "), 0U) << said;
}

TEST(FileCheck, anHdf5FileWithoutARootIsRefused)
{
    CgnsFileMaker maker("Base", CGIO_FILE_HDF5);
    std::string content = contentOf(maker);
    // The header of the root is the first of all objects.
    content.replace(content.find("OHDR"), 4, "????");

    EXPECT_EQ(refusalOf(TemporaryPath(content).path()), "the file has no root; it is damaged, export it again.");
}

} // namespace
