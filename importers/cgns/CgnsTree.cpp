#include "importers/cgns/CgnsTree.h"

#include "importers/cgns/CgnsReader.h"

#include <cgns_io.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>
#include <optional>
#include <utility>

namespace gtm::bundled {

namespace {

std::string reason()
{
    std::array<char, CGIO_MAX_ERROR_LENGTH + 1> text{};
    cgio_error_message(text.data());
    return text.data();
}

void checkFile(const std::filesystem::path& file)
{
    std::error_code ignored;
    if (!std::filesystem::exists(file, ignored)) {
        throw CgnsError("there is no such file; check the name and the folder.");
    }
    if (!std::filesystem::is_regular_file(file, ignored)) {
        throw CgnsError("this is not a file but a folder or a device; name the CGNS file itself.");
    }
    if (std::filesystem::file_size(file, ignored) == 0) {
        throw CgnsError("the file is empty; export it again.");
    }
}

/// The name of the other file to which a link points; empty for a link within the file.
std::string linkedFile(int file, double id)
{
    int fileLength = 0;
    int nameLength = 0;
    if (cgio_link_size(file, id, &fileLength, &nameLength) != CGIO_ERR_NONE || fileLength <= 0 || nameLength < 0) {
        return {};
    }
    std::string other(static_cast<std::size_t>(fileLength) + 1, '\0');
    std::string node(static_cast<std::size_t>(nameLength) + 1, '\0');
    cgio_get_link(file, id, other.data(), node.data());
    return other.c_str();
}

/// The size of an ADF file as its header tells it: the last block of 4096 bytes and the last byte in it,
/// both in hexadecimal digits. Nothing for another file.
std::optional<std::uintmax_t> sizeInHeader(const std::filesystem::path& file)
{
    constexpr std::size_t at = 146;
    std::string header(at + 12, '\0');
    std::ifstream(file, std::ios::binary).read(header.data(), static_cast<std::streamsize>(header.size()));
    if (header.find("ADF Database Version") == std::string::npos) {
        return std::nullopt;
    }
    std::uintmax_t block = 0;
    std::uintmax_t offset = 0;
    const char* digits = header.data() + at;
    std::from_chars(digits, digits + 8, block, 16);
    std::from_chars(digits + 8, digits + 12, offset, 16);
    return block * 4096 + offset + 1;
}

/// The file library does not notice the end of an ADF file, and takes what it finds in its memory instead.
void refuseCutFile(const std::filesystem::path& file, std::uintmax_t size)
{
    const std::optional<std::uintmax_t> wanted = sizeInHeader(file);
    if (wanted && size < *wanted) {
        throw CgnsError("the file is cut short, it has " + std::to_string(size) + " of its " + std::to_string(*wanted) +
                        " bytes; copy or export it again.");
    }
}

} // namespace

CgnsNode::CgnsNode(int file, double id, std::uintmax_t fileSize) : m_file(file), m_id(id), m_fileSize(fileSize)
{
    std::array<char, CGIO_MAX_NAME_LENGTH + 1> text{};
    check(cgio_get_name(m_file, m_id, text.data()), "name");
    m_name = text.data();
    text.fill('\0');
    int linkLength = 0;
    if (cgio_is_link(m_file, m_id, &linkLength) == CGIO_ERR_NONE && linkLength > 0) {
        if (const std::string other = linkedFile(m_file, m_id); !other.empty()) {
            throw CgnsError("the node \"" + m_name + "\" lies in another file, \"" + other +
                            "\"; write everything into one file.");
        }
    }
    check(cgio_get_label(m_file, m_id, text.data()), "type");
    m_label = text.data();
}

CgnsNode::CgnsNode(CgnsNode&& other) noexcept
    : m_file(other.m_file),
      m_id(other.m_id),
      m_isOpen(std::exchange(other.m_isOpen, false)),
      m_fileSize(other.m_fileSize),
      m_name(std::move(other.m_name)),
      m_label(std::move(other.m_label))
{}

CgnsNode::~CgnsNode()
{
    if (m_isOpen) {
        cgio_release_id(m_file, m_id);
    }
}

std::vector<CgnsNode> CgnsNode::children() const
{
    int count = 0;
    check(cgio_number_children(m_file, m_id, &count), "children");
    std::vector<CgnsNode> nodes;
    if (count <= 0) {
        return nodes;
    }
    std::vector<double> ids(static_cast<std::size_t>(count));
    int found = 0;
    check(cgio_children_ids(m_file, m_id, 1, count, &found, ids.data()), "children");
    nodes.reserve(ids.size());
    for (int i = 0; i < std::min(found, count); ++i) {
        nodes.emplace_back(m_file, ids[static_cast<std::size_t>(i)], m_fileSize);
    }
    return nodes;
}

std::string CgnsNode::text() const
{
    if (dataType() != "C1") {
        return {};
    }
    std::string text(noOfValues(1), '\0');
    if (text.empty()) {
        return {};
    }
    check(cgio_read_all_data(m_file, m_id, text.data()), "text");
    text.resize(std::min(text.find('\0'), text.size()));
    text.resize(text.find_last_not_of(' ') + 1);
    return text;
}

std::vector<std::int64_t> CgnsNode::integers() const
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
    throw CgnsError("the node \"" + m_name + "\" should hold whole numbers but is of type " + type +
                    "; export the file again.");
}

std::vector<double> CgnsNode::reals() const
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
    throw CgnsError("the node \"" + m_name + "\" should hold real numbers but is of type " + type +
                    "; export the file again.");
}

std::string CgnsNode::dataType() const
{
    // A damaged ADF file may have a longer one than there is.
    std::array<char, CGIO_MAX_LABEL_LENGTH + 1> type{};
    check(cgio_get_data_type(m_file, m_id, type.data()), "type of data");
    return type.data();
}

/// No node is larger than its file, so that a damaged size does not exhaust the memory.
std::size_t CgnsNode::noOfValues(std::size_t bytesEach) const
{
    int noOfDimensions = 0;
    std::array<cgsize_t, CGIO_MAX_DIMENSIONS> sizes{};
    check(cgio_get_dimensions(m_file, m_id, &noOfDimensions, sizes.data()), "size");
    if (noOfDimensions <= 0) {
        return 0;
    }
    std::uintmax_t count = 1;
    for (int i = 0; i < noOfDimensions; ++i) {
        const auto size = static_cast<std::int64_t>(sizes[static_cast<std::size_t>(i)]);
        if (size < 0 || (size > 0 && count > m_fileSize / bytesEach / static_cast<std::uintmax_t>(size))) {
            throw CgnsError("the node \"" + m_name + "\" claims more data than the file has; export the file again.");
        }
        count *= static_cast<std::uintmax_t>(size);
    }
    return static_cast<std::size_t>(count);
}

template <class Stored, class Value>
std::vector<Value> CgnsNode::values() const
{
    std::vector<Stored> stored(noOfValues(sizeof(Stored)));
    if (!stored.empty()) {
        check(cgio_read_all_data(m_file, m_id, stored.data()), "data");
    }
    return std::vector<Value>(stored.begin(), stored.end());
}

void CgnsNode::check(int error, const char* what) const
{
    if (error != CGIO_ERR_NONE) {
        throw CgnsError(std::string("the ") + what + " of " +
                        (m_name.empty() ? std::string("a node") : "the node \"" + m_name + "\"") + " cannot be read (" +
                        reason() + "); the file is damaged, export it again.");
    }
}

const CgnsNode* findLabel(const std::vector<CgnsNode>& nodes, const std::string& label)
{
    const auto found =
        std::find_if(nodes.begin(), nodes.end(), [&](const CgnsNode& node) { return node.label() == label; });
    return found == nodes.end() ? nullptr : &*found;
}

const CgnsNode* findName(const std::vector<CgnsNode>& nodes, const std::string& name)
{
    const auto found =
        std::find_if(nodes.begin(), nodes.end(), [&](const CgnsNode& node) { return node.name() == name; });
    return found == nodes.end() ? nullptr : &*found;
}

CgnsTree::CgnsTree(const std::filesystem::path& file)
{
    checkFile(file);
    m_size = std::filesystem::file_size(file);
    refuseCutFile(file, m_size);
    if (cgio_open_file(file.c_str(), CGIO_MODE_READ, CGIO_FILE_NONE, &m_file) != CGIO_ERR_NONE) {
        throw CgnsError("the file cannot be opened as CGNS (" + reason() +
                        "); export it again as CGNS, on HDF5 or ADF.");
    }
}

CgnsTree::~CgnsTree() { cgio_close_file(m_file); }

CgnsNode CgnsTree::root() const
{
    double id = 0;
    if (cgio_get_root_id(m_file, &id) != CGIO_ERR_NONE) {
        throw CgnsError("the file has no root (" + reason() + "); it is damaged, export it again.");
    }
    return {m_file, id, m_size};
}

} // namespace gtm::bundled
