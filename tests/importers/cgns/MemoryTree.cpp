#include "tests/importers/cgns/MemoryTree.h"

#include "importers/cgns/CgnsReader.h"

namespace cgnstests {

namespace {

template <class Data>
Data dataOf(const MemoryTree& tree)
{
    if (std::holds_alternative<std::monostate>(tree.data)) {
        return {};
    }
    if (!std::holds_alternative<Data>(tree.data)) {
        throw gtm::bundled::CgnsError("the node \"" + tree.name + "\" holds something else.");
    }
    return std::get<Data>(tree.data);
}

} // namespace

gtm::bundled::CgnsNodes MemoryNode::children() const
{
    gtm::bundled::CgnsNodes nodes;
    for (const MemoryTree& child : m_tree.children) {
        nodes.push_back(std::make_unique<MemoryNode>(child));
    }
    return nodes;
}

std::string MemoryNode::text() const
{
    const std::string* text = std::get_if<std::string>(&m_tree.data);
    return text ? *text : std::string();
}

std::vector<std::int64_t> MemoryNode::integers() const { return dataOf<Numbers>(m_tree); }

std::vector<double> MemoryNode::reals() const { return dataOf<Reals>(m_tree); }

std::size_t MemoryNode::noOfValues() const
{
    const Numbers* numbers = std::get_if<Numbers>(&m_tree.data);
    const Reals* reals = std::get_if<Reals>(&m_tree.data);
    return numbers ? numbers->size() : reals ? reals->size() : text().size();
}

} // namespace cgnstests
