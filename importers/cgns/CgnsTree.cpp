#include "importers/cgns/CgnsTree.h"

#include "importers/cgns/CgnsReader.h"
#include "importers/cgns/FileCheck.h"
#include "support/InQuotes.h"

#include <cgns_io.h>

#include <algorithm>
#include <array>
#include <utility>

namespace gtm::bundled {

using support::inQuotes;

namespace {

std::string reason()
{
    std::array<char, CGIO_MAX_ERROR_LENGTH + 1> text{};
    cgio_error_message(text.data());
    return text.data();
}

/// A node of the open file by the number that the file library gives it, which is given back at the end;
/// that of the root ends with the file, which could not be closed without it.
class NodeHandle {
public:
    NodeHandle(int file, double id, bool isRoot = false) : m_file(file), m_id(id), m_isOurs(!isRoot) {}
    NodeHandle(NodeHandle&& other) noexcept
        : m_file(other.m_file), m_id(other.m_id), m_isOurs(std::exchange(other.m_isOurs, false))
    {}
    NodeHandle& operator=(NodeHandle&&) = delete;
    ~NodeHandle()
    {
        if (m_isOurs) {
            cgio_release_id(m_file, m_id);
        }
    }

    int file() const { return m_file; }
    double id() const { return m_id; }

private:
    int m_file;
    double m_id;
    bool m_isOurs;
};

/// The name of the other file to which a link points; empty for a link within the file, which the file library
/// follows by itself, and for what is no link.
std::string linkedFile(const NodeHandle& node)
{
    int linkLength = 0;
    int fileLength = 0;
    int nameLength = 0;
    if (cgio_is_link(node.file(), node.id(), &linkLength) != CGIO_ERR_NONE || linkLength <= 0 ||
        cgio_link_size(node.file(), node.id(), &fileLength, &nameLength) != CGIO_ERR_NONE || fileLength <= 0 ||
        nameLength < 0) {
        return {};
    }
    std::string file(static_cast<std::size_t>(fileLength) + 1, '\0');
    std::string name(static_cast<std::size_t>(nameLength) + 1, '\0');
    cgio_get_link(node.file(), node.id(), file.data(), name.data());
    return file.c_str();
}

class FileNode final : public CgnsNode {
public:
    FileNode(NodeHandle handle, std::uintmax_t fileSize);

    const std::string& name() const override { return m_name; }
    const std::string& label() const override { return m_label; }
    CgnsNodes children() const override;
    std::string text() const override;
    std::vector<std::int64_t> integers() const override;
    std::vector<double> reals() const override;
    std::size_t noOfValues() const override { return noOfValues(1); }

private:
    std::string dataType() const;
    std::size_t noOfValues(std::size_t bytesEach) const;
    [[noreturn]] void refuseType(const char* wanted, const std::string& type) const;

    template <class Stored, class Value>
    std::vector<Value> values() const;

    void check(int error, const char* what) const;

    NodeHandle m_handle;
    std::uintmax_t m_fileSize;
    std::string m_name;
    std::string m_label;
};

FileNode::FileNode(NodeHandle handle, std::uintmax_t fileSize) : m_handle(std::move(handle)), m_fileSize(fileSize)
{
    std::array<char, CGIO_MAX_NAME_LENGTH + 1> text{};
    check(cgio_get_name(m_handle.file(), m_handle.id(), text.data()), "name");
    m_name = text.data();
    if (const std::string other = linkedFile(m_handle); !other.empty()) {
        throw CgnsError("the node " + inQuotes(m_name) + " lies in another file, " + inQuotes(other) +
                        "; write everything into one file.");
    }
    text.fill('\0');
    check(cgio_get_label(m_handle.file(), m_handle.id(), text.data()), "type");
    m_label = text.data();
}

CgnsNodes FileNode::children() const
{
    int count = 0;
    check(cgio_number_children(m_handle.file(), m_handle.id(), &count), "children");
    CgnsNodes nodes;
    if (count <= 0) {
        return nodes;
    }
    std::vector<double> ids(static_cast<std::size_t>(count));
    int found = 0;
    const int error = cgio_children_ids(m_handle.file(), m_handle.id(), 1, count, &found, ids.data());
    // All are ours from here on, also those that come after one that cannot be read.
    std::vector<NodeHandle> handles;
    for (int i = 0; i < std::min(found, count); ++i) {
        handles.emplace_back(m_handle.file(), ids[static_cast<std::size_t>(i)]);
    }
    check(error, "children");
    if (found < count) {
        // The file library passes over what it cannot open.
        throw CgnsError("only " + std::to_string(found) + " of the " + std::to_string(count) +
                        " nodes below the node " + inQuotes(m_name) +
                        " can be read; the file is damaged, copy or export it again.");
    }
    nodes.reserve(handles.size());
    for (NodeHandle& handle : handles) {
        nodes.push_back(std::make_unique<FileNode>(std::move(handle), m_fileSize));
    }
    return nodes;
}

std::string FileNode::text() const
{
    if (dataType() != "C1") {
        return {};
    }
    std::string text(noOfValues(1), '\0');
    if (text.empty()) {
        return {};
    }
    check(cgio_read_all_data(m_handle.file(), m_handle.id(), text.data()), "text");
    text.resize(std::min(text.find('\0'), text.size()));
    text.resize(text.find_last_not_of(' ') + 1);
    return text;
}

std::vector<std::int64_t> FileNode::integers() const
{
    const std::string type = dataType();
    if (type == "I4") {
        return values<std::int32_t, std::int64_t>();
    }
    if (type == "I8") {
        return values<std::int64_t, std::int64_t>();
    }
    if (type == "MT") {
        return {};
    }
    refuseType("whole", type);
}

std::vector<double> FileNode::reals() const
{
    const std::string type = dataType();
    if (type == "R4") {
        return values<float, double>();
    }
    if (type == "R8") {
        return values<double, double>();
    }
    if (type == "MT") {
        return {};
    }
    refuseType("real", type);
}

void FileNode::refuseType(const char* wanted, const std::string& type) const
{
    throw CgnsError("the node " + inQuotes(m_name) + " should hold " + wanted + " numbers but is of type " +
                    inQuotes(type) + "; export the file again.");
}

std::string FileNode::dataType() const
{
    // A damaged ADF file may have a longer one than there is.
    std::array<char, CGIO_MAX_LABEL_LENGTH + 1> type{};
    check(cgio_get_data_type(m_handle.file(), m_handle.id(), type.data()), "type of data");
    return type.data();
}

/// No node is larger than its file, so that a damaged size does not exhaust the memory.
std::size_t FileNode::noOfValues(std::size_t bytesEach) const
{
    int noOfDimensions = 0;
    std::array<cgsize_t, CGIO_MAX_DIMENSIONS> sizes{};
    check(cgio_get_dimensions(m_handle.file(), m_handle.id(), &noOfDimensions, sizes.data()), "size");
    if (noOfDimensions <= 0) {
        return 0;
    }
    std::uintmax_t count = 1;
    for (int i = 0; i < noOfDimensions; ++i) {
        const auto size = static_cast<std::int64_t>(sizes[static_cast<std::size_t>(i)]);
        if (size < 0 || (size > 0 && count > m_fileSize / bytesEach / static_cast<std::uintmax_t>(size))) {
            throw CgnsError("the node " + inQuotes(m_name) +
                            " claims more data than the file has; export the file again.");
        }
        count *= static_cast<std::uintmax_t>(size);
    }
    return static_cast<std::size_t>(count);
}

template <class Stored, class Value>
std::vector<Value> FileNode::values() const
{
    std::vector<Stored> stored(noOfValues(sizeof(Stored)));
    if (!stored.empty()) {
        check(cgio_read_all_data(m_handle.file(), m_handle.id(), stored.data()), "data");
    }
    return std::vector<Value>(stored.begin(), stored.end());
}

void FileNode::check(int error, const char* what) const
{
    if (error != CGIO_ERR_NONE) {
        throw CgnsError(std::string("the ") + what + " of " +
                        (m_name.empty() ? std::string("a node") : "the node " + inQuotes(m_name)) +
                        " cannot be read (" + reason() + "); the file is damaged, export it again.");
    }
}

} // namespace

CgnsTree::CgnsTree(const std::filesystem::path& file)
{
    checkFile(file);
    m_size = std::filesystem::file_size(file);
    if (cgio_open_file(file.c_str(), CGIO_MODE_READ, CGIO_FILE_NONE, &m_file) != CGIO_ERR_NONE) {
        throw CgnsError("the file cannot be opened as CGNS (" + reason() +
                        "); export it again as CGNS, on HDF5 or ADF.");
    }
}

CgnsTree::~CgnsTree() { cgio_close_file(m_file); }

std::unique_ptr<const CgnsNode> CgnsTree::root() const
{
    double id = 0;
    if (cgio_get_root_id(m_file, &id) != CGIO_ERR_NONE) {
        throw CgnsError("the file has no root (" + reason() + "); it is damaged, export it again.");
    }
    return std::make_unique<FileNode>(NodeHandle(m_file, id, true), m_size);
}

} // namespace gtm::bundled
