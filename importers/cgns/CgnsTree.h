#pragma once

#include "importers/cgns/CgnsNode.h"

#include <cstdint>
#include <filesystem>
#include <memory>

namespace gtm::bundled {

/// A CGNS file open for reading; HDF5 and ADF are told apart by content. Nodes that lie in another file are
/// refused.
class CgnsTree {
public:
    /// Throws `CgnsError`, without the name of the file.
    explicit CgnsTree(const std::filesystem::path& file);
    ~CgnsTree();
    CgnsTree(const CgnsTree&) = delete;
    CgnsTree& operator=(const CgnsTree&) = delete;

    /// Must not outlive the tree. Throws `CgnsError`.
    std::unique_ptr<const CgnsNode> root() const;

private:
    int m_file = 0;
    std::uintmax_t m_size = 0;
};

} // namespace gtm::bundled
