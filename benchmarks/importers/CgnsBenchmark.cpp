// A CGNS file of one zone with very many boundary conditions, read by our reader and by the mid-level calls of the
// file library, which look for a place among all conditions again and again: their time grows with the square
// of the number, so that they stop at the size that ends within a minute. `perCondition` is in microseconds.

#include "importers/cgns/CgnsReader.h"

#include <cgns_io.h>
#include <cgnslib.h>

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
#include <utility>
#include <vector>

namespace {

using Numbers = std::vector<std::int64_t>;

void check(bool isFine, const char* what)
{
    if (!isFine) {
        throw std::runtime_error(what);
    }
}

/// A file with one block, on one side of which each cell face is a condition of its own. Ends with its file.
class ManyConditions {
public:
    ManyConditions(std::int64_t noOfConditions, int backEnd);
    ~ManyConditions() { std::filesystem::remove(m_path); }
    ManyConditions(const ManyConditions&) = delete;
    ManyConditions& operator=(const ManyConditions&) = delete;

    const std::filesystem::path& path() const { return m_path; }

private:
    double add(double parent, const std::string& name, const std::string& label, const std::string& text);
    double add(double parent, const std::string& name, const std::string& label, const Numbers& numbers);
    double addNode(double parent, const std::string& name, const std::string& label, const char* type,
                   const std::vector<cgsize_t>& sizes, const void* data);

    std::filesystem::path m_path;
    int m_file = 0;
};

ManyConditions::ManyConditions(std::int64_t noOfConditions, int backEnd)
    : m_path(std::filesystem::temp_directory_path() /
             ("cgns-benchmark-" + std::to_string(getpid()) + "-" + std::to_string(noOfConditions) + "-" +
              std::to_string(backEnd) + ".cgns"))
{
    const auto side = static_cast<std::int64_t>(std::ceil(std::sqrt(static_cast<double>(noOfConditions))));
    check(cgio_open_file(m_path.c_str(), CGIO_MODE_WRITE, backEnd, &m_file) == 0, "open");
    double root = 0;
    check(cgio_get_root_id(m_file, &root) == 0, "root");
    const float version = 3.4F;
    addNode(root, "CGNSLibraryVersion", "CGNSLibraryVersion_t", "R4", {1}, &version);
    const double base = add(root, "Base", "CGNSBase_t", Numbers{3, 3});
    const Numbers size = {side + 1, side + 1, 2, side, side, 1, 0, 0, 0};
    const double zone = addNode(base, "Block", "Zone_t", "I8", {3, 3}, size.data());
    add(zone, "ZoneType", "ZoneType_t", "Structured");
    const double grid = addNode(zone, "GridCoordinates", "GridCoordinates_t", "MT", {}, nullptr);
    const std::vector<float> coordinates(static_cast<std::size_t>((side + 1) * (side + 1) * 2));
    const auto points = static_cast<cgsize_t>(side + 1);
    for (const char* name : {"CoordinateX", "CoordinateY", "CoordinateZ"}) {
        addNode(grid, name, "DataArray_t", "R4", {points, points, 2}, coordinates.data());
    }
    const double conditions = addNode(zone, "ZoneBC", "ZoneBC_t", "MT", {}, nullptr);
    for (std::int64_t n = 0; n < noOfConditions; ++n) {
        const std::int64_t i = n % side + 1;
        const std::int64_t j = n / side + 1;
        const double condition = add(conditions, "condition " + std::to_string(n + 1), "BC_t", "BCWall");
        const Numbers range = {i, j, 1, i + 1, j + 1, 1};
        cgio_release_id(m_file, addNode(condition, "PointRange", "IndexRange_t", "I8", {3, 2}, range.data()));
        cgio_release_id(m_file, condition);
    }
    check(cgio_close_file(m_file) == 0, "close");
}

double ManyConditions::add(double parent, const std::string& name, const std::string& label, const std::string& text)
{
    return addNode(parent, name, label, "C1", {static_cast<cgsize_t>(text.size())}, text.data());
}

double ManyConditions::add(double parent, const std::string& name, const std::string& label, const Numbers& numbers)
{
    // The mid-level calls want the dimensions of a base in four bytes each.
    const std::vector<std::int32_t> small(numbers.begin(), numbers.end());
    return addNode(parent, name, label, "I4", {static_cast<cgsize_t>(small.size())}, small.data());
}

double ManyConditions::addNode(double parent, const std::string& name, const std::string& label, const char* type,
                               const std::vector<cgsize_t>& sizes, const void* data)
{
    // The library reads names up to their greatest length, even beyond their end.
    std::array<char, CGIO_MAX_NAME_LENGTH + 1> paddedName{};
    std::array<char, CGIO_MAX_NAME_LENGTH + 1> paddedLabel{};
    name.copy(paddedName.data(), CGIO_MAX_NAME_LENGTH);
    label.copy(paddedLabel.data(), CGIO_MAX_NAME_LENGTH);
    double node = 0;
    check(cgio_new_node(m_file, parent, paddedName.data(), paddedLabel.data(), type, static_cast<int>(sizes.size()),
                        sizes.data(), data, &node) == 0,
          "write");
    return node;
}
/// The file is made once for all benchmarks that read one of its kind.
const std::filesystem::path& fileWith(std::int64_t noOfConditions, int backEnd)
{
    static std::map<std::pair<std::int64_t, int>, std::unique_ptr<ManyConditions>> files;
    std::unique_ptr<ManyConditions>& file = files[{noOfConditions, backEnd}];
    if (!file) {
        file = std::make_unique<ManyConditions>(noOfConditions, backEnd);
    }
    return file->path();
}

void count(benchmark::State& state)
{
    state.counters["perCondition"] =
        benchmark::Counter(static_cast<double>(state.range(0)) * 1e-6,
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void ours(benchmark::State& state, int backEnd)
{
    const std::filesystem::path& file = fileWith(state.range(0), backEnd);
    for ([[maybe_unused]] auto iteration : state) {
        const gtm::bundled::CgnsResult result = gtm::bundled::readCgns(file);
        check(static_cast<std::int64_t>(result.conditions.size()) == state.range(0), "number of conditions");
    }
    count(state);
}

void midLevel(benchmark::State& state, int backEnd)
{
    const std::filesystem::path& path = fileWith(state.range(0), backEnd);
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
    count(state);
}

void oursOnHdf5(benchmark::State& state) { ours(state, CGIO_FILE_HDF5); }
void oursOnAdf(benchmark::State& state) { ours(state, CGIO_FILE_ADF); }
void midLevelOnHdf5(benchmark::State& state) { midLevel(state, CGIO_FILE_HDF5); }
void midLevelOnAdf(benchmark::State& state) { midLevel(state, CGIO_FILE_ADF); }

BENCHMARK(oursOnHdf5)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(oursOnAdf)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(midLevelOnHdf5)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(midLevelOnAdf)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
