#include "importers/cgns/CgnsTree.h"

#include "importers/cgns/CgnsReader.h"
#include "tests/importers/cgns/CgnsFileMaker.h"

#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <sstream>
#include <string>

// HDF5 loses a few bytes of its own for each damaged node that it refuses; what we hold is given back, or the
// tests that read without end would end.
extern "C" __attribute__((visibility("default"))) const char* // NOLINTNEXTLINE(bugprone-reserved-identifier)
__lsan_default_suppressions()
{
    return "leak:libhdf5";
}

namespace {

using cgnstests::CgnsFileMaker;
using cgnstests::TemporaryPath;
using gtm::bundled::CgnsError;
using gtm::bundled::CgnsNode;
using gtm::bundled::CgnsNodes;
using gtm::bundled::CgnsTree;
using gtm::bundled::findName;
using Strings = std::vector<std::string>;
using Numbers = std::vector<std::int64_t>;

std::string refusalOf(const std::function<void()>& action)
{
    try {
        action();
    } catch (const CgnsError& error) {
        return error.what();
    }
    return {};
}

std::string contentOf(const std::filesystem::path& file)
{
    std::ostringstream content;
    content << std::ifstream(file, std::ios::binary).rdbuf();
    return content.str();
}

/// "NAME: LABEL" of each.
Strings textsOf(const CgnsNodes& nodes)
{
    Strings texts;
    for (const auto& node : nodes) {
        texts.push_back(node->name() + ": " + node->label());
    }
    return texts;
}

class Tree : public testing::TestWithParam<int> {
protected:
    /// The children of the only base.
    static CgnsNodes nodesOf(const CgnsTree& tree)
    {
        const CgnsNodes bases = tree.root()->children();
        return findName(bases, "Base")->children();
    }

    CgnsFileMaker m_maker{"Base", GetParam()};
};

INSTANTIATE_TEST_SUITE_P(CgnsTree, Tree, testing::Values(CGIO_FILE_HDF5, CGIO_FILE_ADF));

TEST_P(Tree, nodesComeInTheOrderInWhichTheyWereWritten)
{
    m_maker.add(m_maker.base(), "z", "Zone_t");
    m_maker.add(m_maker.base(), "a", "Family_t");
    m_maker.add(m_maker.base(), std::string(32, 'n'), "Zone_t");
    const CgnsTree tree(m_maker.finish());

    EXPECT_EQ(textsOf(nodesOf(tree)), (Strings{"z: Zone_t", "a: Family_t", std::string(32, 'n') + ": Zone_t"}));
}

TEST_P(Tree, dataComeAsTheyWereWritten)
{
    m_maker.addNumbers(m_maker.base(), "numbers", "a", {1, -2, INT64_MAX});
    m_maker.addReals(m_maker.base(), "reals", "a", {0.5, -1e300});
    m_maker.addText(m_maker.base(), "text", "a", " two words  ");
    m_maker.add(m_maker.base(), "nothing", "a");
    const CgnsTree tree(m_maker.finish());
    const CgnsNodes nodes = nodesOf(tree);

    EXPECT_EQ(findName(nodes, "numbers")->integers(), (Numbers{1, -2, INT64_MAX}));
    EXPECT_EQ(findName(nodes, "numbers")->noOfValues(), 3U);
    EXPECT_EQ(findName(nodes, "reals")->reals(), (std::vector<double>{0.5, -1e300}));
    EXPECT_EQ(findName(nodes, "text")->text(), " two words") << "without blanks at its end";
    EXPECT_EQ(findName(nodes, "nothing")->integers(), Numbers{});
    EXPECT_EQ(findName(nodes, "nothing")->reals(), std::vector<double>{});
    EXPECT_EQ(findName(nodes, "nothing")->text(), "");
    EXPECT_EQ(findName(nodes, "nothing")->noOfValues(), 0U);
    EXPECT_TRUE(findName(nodes, "nothing")->children().empty());
}

TEST_P(Tree, dataOfAnotherKindAreRefused)
{
    m_maker.addNumbers(m_maker.base(), "numbers", "a", {1});
    m_maker.addReals(m_maker.base(), "reals", "a", {1});
    const CgnsTree tree(m_maker.finish());
    const CgnsNodes nodes = nodesOf(tree);

    EXPECT_EQ(refusalOf([&] { findName(nodes, "reals")->integers(); }),
              "the node \"reals\" should hold whole numbers but is of type \"R8\"; export the file again.");
    EXPECT_EQ(refusalOf([&] { findName(nodes, "numbers")->reals(); }),
              "the node \"numbers\" should hold real numbers but is of type \"I8\"; export the file again.");
    EXPECT_EQ(findName(nodes, "numbers")->text(), "");
}

TEST_P(Tree, aLinkWithinTheFileIsFollowed)
{
    const auto zone = m_maker.add(m_maker.base(), "zone", "Zone_t");
    m_maker.addNumbers(zone, "numbers", "a", {7});
    m_maker.addLink(m_maker.base(), "link", "", "/Base/zone");
    const CgnsTree tree(m_maker.finish());
    const CgnsNodes nodes = nodesOf(tree);

    EXPECT_EQ(findName(nodes, "link")->label(), "Zone_t");
    EXPECT_EQ(findName(findName(nodes, "link")->children(), "numbers")->integers(), Numbers{7});
}

TEST_P(Tree, aLinkToAnotherFileIsRefused)
{
    m_maker.addLink(m_maker.base(), "link", "other.cgns", "/Base/zone");
    const CgnsTree tree(m_maker.finish());

    EXPECT_EQ(refusalOf([&] { nodesOf(tree); }),
              "the node \"link\" lies in another file, \"other.cgns\"; write everything into one file.");
}

TEST_P(Tree, filesCanBeReadOneAfterTheOtherWithoutEnd)
{
    m_maker.addNumbers(m_maker.base(), "numbers", "a", {7});
    const std::filesystem::path& file = m_maker.finish();

    // The file library has room for 128 open files.
    for (int i = 0; i < 200; ++i) {
        const CgnsTree tree(file);
        ASSERT_EQ(nodesOf(tree).size(), 1U) << i;
    }
}

TEST_P(Tree, damagedFilesCanBeRefusedOneAfterTheOtherWithoutEnd)
{
    for (const char* name : {"one", "two", "three"}) {
        m_maker.addNumbers(m_maker.base(), name, "DamagedNode_t", {7});
    }
    std::string content = contentOf(m_maker.finish());
    // The second of the three is damaged: on HDF5 its attributes, on ADF its place.
    const bool isHdf5 = GetParam() == CGIO_FILE_HDF5;
    const std::size_t first = content.find("DamagedNode_t");
    const std::size_t second = content.find("DamagedNode_t", first + 1);
    ASSERT_NE(second, std::string::npos);
    content.replace(isHdf5 ? content.rfind("label", second) : content.rfind("NoDe", second), 4, "????");

    std::string refusal;
    for (int i = 0; i < 200; ++i) {
        const TemporaryPath file(content);
        const std::string said = refusalOf([&] { nodesOf(CgnsTree(file.path())); });
        ASSERT_NE(said, "") << i;
        ASSERT_TRUE(i == 0 || said == refusal) << i << ": " << said;
        refusal = said;
    }
    if (isHdf5) {
        EXPECT_EQ(refusal, "only 1 of the 3 nodes below the node \"Base\" can be read; the file is damaged, copy or "
                           "export it again.");
    }
}

} // namespace
