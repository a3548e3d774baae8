#pragma once

#include "importers/cgns/CgnsNode.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace cgnstests {

using Numbers = std::vector<std::int64_t>;
using Reals = std::vector<double>;

/// A node with everything below it, as a test writes it down.
struct MemoryTree {
    std::string name;
    std::string label;
    std::variant<std::monostate, std::string, Numbers, Reals> data = {};
    std::vector<MemoryTree> children = {};
};

/// Shows such a tree, which must outlive it, as if it were in a file. Data of another kind than is asked for is
/// refused as there.
class MemoryNode final : public gtm::bundled::CgnsNode {
public:
    explicit MemoryNode(const MemoryTree& tree) : m_tree(tree) {}

    const std::string& name() const override { return m_tree.name; }
    const std::string& label() const override { return m_tree.label; }
    gtm::bundled::CgnsNodes children() const override;
    std::string text() const override;
    std::vector<std::int64_t> integers() const override;
    std::vector<double> reals() const override;
    std::size_t noOfValues() const override;

private:
    const MemoryTree& m_tree;
};

} // namespace cgnstests
