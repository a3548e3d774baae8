#include "tests/importers/cgns/CgnsFileMaker.h"

#include <unistd.h>

#include <atomic>
#include <fstream>
#include <stdexcept>

namespace cgnstests {

namespace {

void check(int error)
{
    if (error != CGIO_ERR_NONE) {
        std::array<char, CGIO_MAX_ERROR_LENGTH + 1> text{};
        cgio_error_message(text.data());
        throw std::runtime_error(text.data());
    }
}

/// The file library reads a name or a label up to its greatest length, even beyond the end.
std::array<char, CGIO_MAX_NAME_LENGTH + 1> padded(const std::string& name)
{
    std::array<char, CGIO_MAX_NAME_LENGTH + 1> text{};
    name.copy(text.data(), CGIO_MAX_NAME_LENGTH);
    return text;
}

std::filesystem::path freshPath()
{
    static std::atomic<int> number{0};
    return std::filesystem::temp_directory_path() /
           ("cgns-" + std::to_string(getpid()) + "-" + std::to_string(++number) + ".cgns");
}

} // namespace

TemporaryPath::TemporaryPath() : m_path(freshPath()) {}

TemporaryPath::TemporaryPath(const std::string& content) : m_path(freshPath())
{
    std::ofstream(m_path, std::ios::binary) << content;
}

TemporaryPath::~TemporaryPath()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

CgnsFileMaker::CgnsFileMaker(const std::string& base, int backEnd)
{
    check(cgio_open_file(m_path.path().c_str(), CGIO_MODE_WRITE, backEnd, &m_file));
    check(cgio_get_root_id(m_file, &m_root));
    if (!base.empty()) {
        m_base = addBase(base);
    }
}

CgnsFileMaker::~CgnsFileMaker()
{
    if (m_isOpen) {
        cgio_close_file(m_file);
    }
}

CgnsFileMaker::Node CgnsFileMaker::addBase(const std::string& name, const Numbers& dimensions)
{
    return addNumbers(m_root, name, "CGNSBase_t", dimensions);
}

CgnsFileMaker::Node CgnsFileMaker::add(Node parent, const std::string& name, const std::string& label)
{
    Node node = 0;
    check(cgio_new_node(m_file, parent, padded(name).data(), padded(label).data(), "MT", 0, nullptr, nullptr, &node));
    return node;
}

CgnsFileMaker::Node CgnsFileMaker::addText(Node parent, const std::string& name, const std::string& label,
                                           const std::string& text)
{
    Node node = 0;
    const auto size = static_cast<cgsize_t>(text.size());
    check(cgio_new_node(m_file, parent, padded(name).data(), padded(label).data(), "C1", 1, &size, text.data(), &node));
    return node;
}

CgnsFileMaker::Node CgnsFileMaker::addNumbers(Node parent, const std::string& name, const std::string& label,
                                              const Numbers& numbers)
{
    Node node = 0;
    const auto size = static_cast<cgsize_t>(numbers.size());
    check(cgio_new_node(m_file, parent, padded(name).data(), padded(label).data(), "I8", 1, &size, numbers.data(),
                        &node));
    return node;
}

CgnsFileMaker::Node CgnsFileMaker::addReals(Node parent, const std::string& name, const std::string& label,
                                            const std::vector<double>& reals)
{
    Node node = 0;
    const auto size = static_cast<cgsize_t>(reals.size());
    check(
        cgio_new_node(m_file, parent, padded(name).data(), padded(label).data(), "R8", 1, &size, reals.data(), &node));
    return node;
}

void CgnsFileMaker::addLink(Node parent, const std::string& name, const std::string& file, const std::string& path)
{
    Node node = 0;
    check(cgio_create_link(m_file, parent, padded(name).data(), file.c_str(), path.c_str(), &node));
}

CgnsFileMaker::Node CgnsFileMaker::addZone(const std::string& name, std::array<std::int64_t, 3> vertices)
{
    const auto [i, j, k] = vertices;
    const Node zone = addNumbers(m_base, name, "Zone_t", {i, j, k, i - 1, j - 1, k - 1, 0, 0, 0});
    addText(zone, "ZoneType", "ZoneType_t", "Structured");
    const Node coordinates = add(zone, "GridCoordinates", "GridCoordinates_t");
    addReals(coordinates, "CoordinateX", "DataArray_t", std::vector<double>(static_cast<std::size_t>(i * j * k)));
    return zone;
}

CgnsFileMaker::Node CgnsFileMaker::addHexahedron(const std::string& name)
{
    const Node zone = addNumbers(m_base, name, "Zone_t", {8, 1, 0});
    addText(zone, "ZoneType", "ZoneType_t", "Unstructured");
    const Node coordinates = add(zone, "GridCoordinates", "GridCoordinates_t");
    addReals(coordinates, "CoordinateX", "DataArray_t", std::vector<double>(8));
    const Node cells = addNumbers(zone, "Cells", "Elements_t", {17, 0});
    addNumbers(cells, "ElementRange", "IndexRange_t", {1, 1});
    addNumbers(cells, "ElementConnectivity", "DataArray_t", {1, 2, 3, 4, 5, 6, 7, 8});
    const Node sides = addNumbers(zone, "Sides", "Elements_t", {7, 0});
    addNumbers(sides, "ElementRange", "IndexRange_t", {2, 7});
    addNumbers(sides, "ElementConnectivity", "DataArray_t",
               {1, 4, 3, 2, 1, 2, 6, 5, 2, 3, 7, 6, 3, 4, 8, 7, 1, 5, 8, 4, 5, 6, 7, 8});
    return zone;
}

CgnsFileMaker::Node CgnsFileMaker::addCondition(Node zone, const std::string& name, const Numbers& range,
                                                const std::string& type)
{
    const Node condition = addText(child(zone, "ZoneBC", "ZoneBC_t"), name, "BC_t", type);
    if (!range.empty()) {
        addNumbers(condition, "PointRange", "IndexRange_t", range);
    }
    return condition;
}

CgnsFileMaker::Node CgnsFileMaker::addConnectivity(Node zone, const std::string& name, const std::string& donor,
                                                   const Numbers& range, const Numbers& donorRange)
{
    const Node node =
        addText(child(zone, "ZoneGridConnectivity", "ZoneGridConnectivity_t"), name, "GridConnectivity1to1_t", donor);
    addNumbers(node, "PointRange", "IndexRange_t", range);
    addNumbers(node, "PointRangeDonor", "IndexRange_t", donorRange);
    return node;
}

const std::filesystem::path& CgnsFileMaker::finish()
{
    m_isOpen = false;
    check(cgio_close_file(m_file));
    return m_path.path();
}

CgnsFileMaker::Node CgnsFileMaker::child(Node parent, const std::string& name, const std::string& label)
{
    Node node = 0;
    return cgio_get_node_id(m_file, parent, name.c_str(), &node) == CGIO_ERR_NONE ? node : add(parent, name, label);
}

} // namespace cgnstests
