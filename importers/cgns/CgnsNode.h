#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace gtm::bundled {

/// A node of a tree as CGNS files hold it: a name, a type, data of one kind, and children. All members may
/// throw `CgnsError`, without the name of the file, where a file is damaged.
class CgnsNode {
public:
    virtual ~CgnsNode() = default;
    CgnsNode(const CgnsNode&) = delete;
    CgnsNode& operator=(const CgnsNode&) = delete;

    virtual const std::string& name() const = 0;

    /// The type of the node: "Zone_t".
    virtual const std::string& label() const = 0;

    /// In the order of the file; they must not outlive the tree.
    virtual std::vector<std::unique_ptr<const CgnsNode>> children() const = 0;

    /// The text without blanks at its end; empty for a node without text.
    virtual std::string text() const = 0;

    /// The numbers in the order in which they are stored; empty for a node without data.
    virtual std::vector<std::int64_t> integers() const = 0;
    virtual std::vector<double> reals() const = 0;

    /// How many values the node holds; no more than the file can have.
    virtual std::size_t noOfValues() const = 0;

protected:
    CgnsNode() = default;
};

using CgnsNodes = std::vector<std::unique_ptr<const CgnsNode>>;

/// The first child with a label, or null.
const CgnsNode* findLabel(const CgnsNodes& nodes, const std::string& label);

/// The first child with a name, or null.
const CgnsNode* findName(const CgnsNodes& nodes, const std::string& name);

} // namespace gtm::bundled
