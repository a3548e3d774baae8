// A CGNS file of one zone with very many boundary conditions, read by our reader and by the mid-level calls of the
// file library, which look for a place among all conditions again and again: their time grows with the square
// of the number, so that they stop at the size that ends within a minute, once.

#include "importers/cgns/CgnsReader.h"

#include <cgnslib.h>
#include <hdf5.h>

#include <benchmark/benchmark.h>

#include <unistd.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

void check(bool isFine, const char* what)
{
    if (!isFine) {
        throw std::runtime_error(what);
    }
}

/// Writes nodes as CGNS files keep them on HDF5. The library of CGNS files itself takes an hour for the largest
/// file, because it looks at all nodes beside a new one.
class Hdf5Nodes {
public:
    explicit Hdf5Nodes(const std::filesystem::path& file);
    ~Hdf5Nodes();
    Hdf5Nodes(const Hdf5Nodes&) = delete;
    Hdf5Nodes& operator=(const Hdf5Nodes&) = delete;

    hid_t root() const { return m_root; }

    /// The caller ends it with `H5Gclose`. Without sizes it has no data.
    hid_t add(hid_t parent, const std::string& name, const std::string& label, const char* type = "MT",
              const std::vector<hsize_t>& sizes = {}, const void* data = nullptr);

private:
    static hid_t typeOf(const std::string& type);
    static void addText(hid_t node, const char* attribute, const std::string& text, std::size_t size);
    static void addData(hid_t node, const char* name, hid_t type, const std::vector<hsize_t>& sizes, const void* data);
    void describe(hid_t node, const std::string& name, const std::string& label, const char* type);

    hid_t m_ordered;
    hid_t m_file;
    hid_t m_root;
};

Hdf5Nodes::Hdf5Nodes(const std::filesystem::path& file)
{
    const hid_t creation = H5Pcreate(H5P_FILE_CREATE);
    H5Pset_link_creation_order(creation, H5P_CRT_ORDER_TRACKED | H5P_CRT_ORDER_INDEXED);
    m_ordered = H5Pcreate(H5P_GROUP_CREATE);
    H5Pset_link_creation_order(m_ordered, H5P_CRT_ORDER_TRACKED | H5P_CRT_ORDER_INDEXED);
    m_file = H5Fcreate(file.c_str(), H5F_ACC_TRUNC, creation, H5P_DEFAULT);
    H5Pclose(creation);
    m_root = H5Gopen2(m_file, "/", H5P_DEFAULT);
    describe(m_root, "HDF5 MotherNode", "Root Node of HDF5 File", "MT");
    const std::string format = std::string("IEEE_LITTLE_32") + '\0';
    addData(m_root, " format", H5T_NATIVE_SCHAR, {format.size()}, format.data());
    const std::string version = "HDF5 Version 1.10" + std::string(16, '\0');
    addData(m_root, " hdf5version", H5T_NATIVE_SCHAR, {version.size()}, version.data());
}

Hdf5Nodes::~Hdf5Nodes()
{
    H5Gclose(m_root);
    H5Pclose(m_ordered);
    H5Fclose(m_file);
}

hid_t Hdf5Nodes::add(hid_t parent, const std::string& name, const std::string& label, const char* type,
                     const std::vector<hsize_t>& sizes, const void* data)
{
    const hid_t node = H5Gcreate2(parent, name.c_str(), H5P_DEFAULT, m_ordered, H5P_DEFAULT);
    check(node >= 0, "node");
    describe(node, name, label, type);
    if (!sizes.empty()) {
        addData(node, " data", typeOf(type), sizes, data);
    }
    return node;
}

hid_t Hdf5Nodes::typeOf(const std::string& type)
{
    return type == "C1" ? H5T_NATIVE_SCHAR : type == "I4" ? H5T_NATIVE_INT32 : H5T_NATIVE_FLOAT;
}

void Hdf5Nodes::describe(hid_t node, const std::string& name, const std::string& label, const char* type)
{
    addText(node, "name", name, 33);
    addText(node, "label", label, 33);
    addText(node, "type", type, 3);
    const hsize_t one = 1;
    const hid_t space = H5Screate_simple(1, &one, nullptr);
    const hid_t attribute = H5Acreate2(node, "flags", H5T_NATIVE_INT, space, H5P_DEFAULT, H5P_DEFAULT);
    const int flags = 1;
    H5Awrite(attribute, H5T_NATIVE_INT, &flags);
    H5Aclose(attribute);
    H5Sclose(space);
}

void Hdf5Nodes::addText(hid_t node, const char* attribute, const std::string& text, std::size_t size)
{
    const hid_t type = H5Tcopy(H5T_C_S1);
    H5Tset_size(type, size);
    const hid_t space = H5Screate(H5S_SCALAR);
    const hid_t created = H5Acreate2(node, attribute, type, space, H5P_DEFAULT, H5P_DEFAULT);
    std::string padded = text;
    padded.resize(size);
    H5Awrite(created, type, padded.data());
    H5Aclose(created);
    H5Sclose(space);
    H5Tclose(type);
}

/// The first index of a node runs fastest, that of a data set slowest.
void Hdf5Nodes::addData(hid_t node, const char* name, hid_t type, const std::vector<hsize_t>& sizes, const void* data)
{
    const std::vector<hsize_t> reversed(sizes.rbegin(), sizes.rend());
    const hid_t space = H5Screate_simple(static_cast<int>(reversed.size()), reversed.data(), nullptr);
    const hid_t set = H5Dcreate2(node, name, type, space, H5P_DEFAULT, H5P_DEFAULT, H5P_DEFAULT);
    H5Dwrite(set, type, H5S_ALL, H5S_ALL, H5P_DEFAULT, data);
    H5Dclose(set);
    H5Sclose(space);
}

/// A file with one block, on one side of which each cell face is a condition of its own. Ends with its file.
class ManyConditions {
public:
    explicit ManyConditions(std::int32_t noOfConditions);
    ~ManyConditions() { std::filesystem::remove(m_path); }
    ManyConditions(const ManyConditions&) = delete;
    ManyConditions& operator=(const ManyConditions&) = delete;

    const std::filesystem::path& path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

ManyConditions::ManyConditions(std::int32_t noOfConditions)
    : m_path(std::filesystem::temp_directory_path() /
             ("cgns-benchmark-" + std::to_string(getpid()) + "-" + std::to_string(noOfConditions) + ".cgns"))
{
    Hdf5Nodes nodes(m_path);
    const float version = 3.4F;
    H5Gclose(nodes.add(nodes.root(), "CGNSLibraryVersion", "CGNSLibraryVersion_t", "R4", {1}, &version));
    const std::array<std::int32_t, 2> dimensions = {3, 3};
    const hid_t base = nodes.add(nodes.root(), "Base", "CGNSBase_t", "I4", {2}, dimensions.data());
    const auto side = static_cast<std::int32_t>(std::ceil(std::sqrt(noOfConditions)));
    const std::array<std::int32_t, 9> size = {side + 1, side + 1, 2, side, side, 1, 0, 0, 0};
    const hid_t zone = nodes.add(base, "Block", "Zone_t", "I4", {3, 3}, size.data());
    H5Gclose(nodes.add(zone, "ZoneType", "ZoneType_t", "C1", {10}, "Structured"));
    const hid_t grid = nodes.add(zone, "GridCoordinates", "GridCoordinates_t");
    const auto points = static_cast<hsize_t>(side) + 1;
    const std::vector<float> coordinates(points * points * 2);
    for (const char* name : {"CoordinateX", "CoordinateY", "CoordinateZ"}) {
        H5Gclose(nodes.add(grid, name, "DataArray_t", "R4", {points, points, 2}, coordinates.data()));
    }
    const hid_t conditions = nodes.add(zone, "ZoneBC", "ZoneBC_t");
    for (std::int32_t n = 0; n < noOfConditions; ++n) {
        const hid_t condition =
            nodes.add(conditions, "condition " + std::to_string(n + 1), "BC_t", "C1", {6}, "BCWall");
        const std::int32_t i = n % side + 1;
        const std::int32_t j = n / side + 1;
        const std::array<std::int32_t, 6> range = {i, j, 1, i + 1, j + 1, 1};
        H5Gclose(nodes.add(condition, "PointRange", "IndexRange_t", "I4", {3, 2}, range.data()));
        H5Gclose(condition);
    }
    for (const hid_t node : {conditions, grid, zone, base}) {
        H5Gclose(node);
    }
}

/// The file is made once for all benchmarks that read one of its kind.
const std::filesystem::path& fileWith(std::int64_t noOfConditions)
{
    static std::map<std::int64_t, std::unique_ptr<ManyConditions>> files;
    std::unique_ptr<ManyConditions>& file = files[noOfConditions];
    if (!file) {
        file = std::make_unique<ManyConditions>(static_cast<std::int32_t>(noOfConditions));
    }
    return file->path();
}

void ours(benchmark::State& state)
{
    const std::filesystem::path& file = fileWith(state.range(0));
    for ([[maybe_unused]] auto iteration : state) {
        const gtm::bundled::CgnsResult result = gtm::bundled::readCgns(file);
        check(static_cast<std::int64_t>(result.conditions.size()) == state.range(0), "number of conditions");
    }
}

void midLevel(benchmark::State& state)
{
    const std::filesystem::path& path = fileWith(state.range(0));
    for ([[maybe_unused]] auto iteration : state) {
        int file = 0;
        int noOfConditions = 0;
        check(cg_open(path.c_str(), CG_MODE_READ, &file) == CG_OK, cg_get_error());
        check(cg_nbocos(file, 1, 1, &noOfConditions) == CG_OK, cg_get_error());
        check(noOfConditions == state.range(0), "number of conditions");
        for (int i = 1; i <= noOfConditions; ++i) {
            std::array<char, 33> name{};
            CGNS_ENUMT(BCType_t) type{};
            CGNS_ENUMT(PointSetType_t) kind{};
            CGNS_ENUMT(DataType_t) ofNormals{};
            cgsize_t noOfPoints = 0;
            cgsize_t noOfNormals = 0;
            int noOfDataSets = 0;
            int normal[3] = {};
            std::array<cgsize_t, 6> points{};
            check(cg_boco_info(file, 1, 1, i, name.data(), &type, &kind, &noOfPoints, normal, &noOfNormals, &ofNormals,
                               &noOfDataSets) == CG_OK,
                  cg_get_error());
            check(cg_boco_read(file, 1, 1, i, points.data(), nullptr) == CG_OK, cg_get_error());
        }
        cg_close(file);
    }
}

BENCHMARK(ours)->Name("read/this library")->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(midLevel)
    ->Name("read/mid-level calls")
    ->Arg(1000)
    ->Arg(10000)
    ->Iterations(1)
    ->Repetitions(1)
    ->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
