#pragma once

#include <cgns_io.h>

#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace cgnstests {

/// A path in the folder for temporary files that no other test uses; the file is removed at the end.
class TemporaryPath {
public:
    TemporaryPath();
    explicit TemporaryPath(const std::string& content);
    ~TemporaryPath();
    TemporaryPath(const TemporaryPath&) = delete;
    TemporaryPath& operator=(const TemporaryPath&) = delete;

    const std::filesystem::path& path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

/// Writes a small CGNS file node by node. Parents are the values that other calls gave.
class CgnsFileMaker {
public:
    using Node = double;
    using Numbers = std::vector<std::int64_t>;

    /// With the root and, unless it is empty, a three-dimensional base of that name.
    explicit CgnsFileMaker(const std::string& base = "Base", int backEnd = CGIO_FILE_HDF5);
    ~CgnsFileMaker();
    CgnsFileMaker(const CgnsFileMaker&) = delete;
    CgnsFileMaker& operator=(const CgnsFileMaker&) = delete;

    Node addBase(const std::string& name, const Numbers& dimensions = {3, 3});
    Node base() const { return m_base; }

    Node add(Node parent, const std::string& name, const std::string& label);
    Node addText(Node parent, const std::string& name, const std::string& label, const std::string& text);
    Node addNumbers(Node parent, const std::string& name, const std::string& label, const Numbers& numbers);
    Node addReals(Node parent, const std::string& name, const std::string& label, const std::vector<double>& reals);

    /// A node that stands for another one: of this file, when `file` is empty.
    void addLink(Node parent, const std::string& name, const std::string& file, const std::string& path);

    /// A structured zone with coordinates, "ZoneBC" and "ZoneGridConnectivity" on demand.
    Node addZone(const std::string& name, std::array<std::int64_t, 3> vertices = {3, 3, 3});

    /// An unstructured zone of one hexahedron, element 1, and its six quadrilaterals, elements 2 to 7.
    Node addHexahedron(const std::string& name);

    Node addCondition(Node zone, const std::string& name, const Numbers& range, const std::string& type = "BCWall");
    Node addConnectivity(Node zone, const std::string& name, const std::string& donor, const Numbers& range,
                         const Numbers& donorRange);

    /// Closes the file, which can be read from now on.
    const std::filesystem::path& finish();

private:
    Node child(Node parent, const std::string& name, const std::string& label);

    TemporaryPath m_path;
    int m_file = 0;
    bool m_isOpen = true;
    Node m_root = 0;
    Node m_base = 0;
};

} // namespace cgnstests
