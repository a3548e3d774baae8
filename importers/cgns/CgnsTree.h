#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace gtm::bundled {

/// A node of an open CGNS file; it must not outlive the `CgnsTree`. All members throw `CgnsError`, without
/// the name of the file, where the file is damaged.
class CgnsNode {
public:
    CgnsNode(int file, double id, std::uintmax_t fileSize);
    CgnsNode(CgnsNode&& other) noexcept;
    CgnsNode& operator=(CgnsNode&&) = delete;
    ~CgnsNode();

    const std::string& name() const { return m_name; }

    /// The type of the node: "Zone_t".
    const std::string& label() const { return m_label; }

    /// In the order of the file. A child that lies in another file is refused.
    std::vector<CgnsNode> children() const;

    /// The text without blanks at its end; empty for a node without text.
    std::string text() const;

    /// The numbers in the order in which they are stored; empty for a node without data.
    std::vector<std::int64_t> integers() const;
    std::vector<double> reals() const;

    /// How many values the node holds; no more than the file can have.
    std::size_t noOfValues() const { return noOfValues(1); }

private:
    std::string dataType() const;
    std::size_t noOfValues(std::size_t bytesEach) const;

    template <class Stored, class Value>
    std::vector<Value> values() const;

    void check(int error, const char* what) const;

    int m_file;
    double m_id;
    bool m_isOpen = true;
    std::uintmax_t m_fileSize;
    std::string m_name;
    std::string m_label;
};

/// The first child with a label, or null.
const CgnsNode* findLabel(const std::vector<CgnsNode>& nodes, const std::string& label);

/// The first child with a name, or null.
const CgnsNode* findName(const std::vector<CgnsNode>& nodes, const std::string& name);

/// A CGNS file open for reading; HDF5 and ADF are told apart by content.
class CgnsTree {
public:
    /// Throws `CgnsError`, without the name of the file.
    explicit CgnsTree(const std::filesystem::path& file);
    ~CgnsTree();
    CgnsTree(const CgnsTree&) = delete;
    CgnsTree& operator=(const CgnsTree&) = delete;

    CgnsNode root() const;

private:
    int m_file = 0;
    std::uintmax_t m_size = 0;
};

} // namespace gtm::bundled
