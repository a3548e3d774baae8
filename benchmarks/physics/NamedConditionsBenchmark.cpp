// Storing named conditions in a file and reading them back, beside the middle level of the CGNS library, which is
// how mesh files keep theirs, on both of its kinds of file. The argument is the number of conditions: for CGNS name,
// type and one range of points each; for this library boundaries with all that benchmarks/Case.h puts on them, read
// back into a set-up that is ready to work with. Both write to the folder of temporary files.

#include "benchmarks/Case.h"

#include <benchmark/benchmark.h>
#include <cgnslib.h>

#include <array>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace {

std::string fileName() { return std::filesystem::temp_directory_path() / "physics-named-conditions"; }

/// A failure of the CGNS library, in its own words.
void require(int error)
{
    if (error != CG_OK)
        throw std::runtime_error(cg_get_error());
}

/// A row of cells with one condition on each.
void writeConditions(int fileType, std::int64_t noOfConditions)
{
    int file = 0;
    int base = 0;
    int zone = 0;
    const auto noOfCells = static_cast<cgsize_t>(noOfConditions);
    const std::array<cgsize_t, 9> size = {noOfCells + 1, 2, 2, noOfCells, 1, 1, 0, 0, 0};
    require(cg_set_file_type(fileType));
    require(cg_open(fileName().c_str(), CG_MODE_WRITE, &file));
    require(cg_base_write(file, "Base", 3, 3, &base));
    require(cg_zone_write(file, base, "Zone", size.data(), CGNS_ENUMV(Structured), &zone));
    for (cgsize_t i = 1; i <= noOfCells; ++i) {
        const std::array<cgsize_t, 6> range = {i, 1, 1, i + 1, 1, 2};
        int condition = 0;
        require(cg_boco_write(file, base, zone, ("boundary-" + std::to_string(i)).c_str(), CGNS_ENUMV(BCWall),
                              CGNS_ENUMV(PointRange), 2, range.data(), &condition));
    }
    require(cg_close(file));
}

/// How many walls there are.
std::int64_t readConditions()
{
    int file = 0;
    int noOfConditions = 0;
    require(cg_open(fileName().c_str(), CG_MODE_READ, &file));
    require(cg_nbocos(file, 1, 1, &noOfConditions));
    std::int64_t noOfWalls = 0;
    for (int i = 1; i <= noOfConditions; ++i) {
        std::array<char, 33> name{};
        CGNS_ENUMT(BCType_t) type{};
        CGNS_ENUMT(PointSetType_t) pointSetType{};
        CGNS_ENUMT(DataType_t) normalType{};
        cgsize_t noOfPoints = 0;
        cgsize_t noOfNormals = 0;
        std::array<int, 3> normal{};
        int noOfDataSets = 0;
        require(cg_boco_info(file, 1, 1, i, name.data(), &type, &pointSetType, &noOfPoints, normal.data(), &noOfNormals,
                             &normalType, &noOfDataSets));
        std::array<cgsize_t, 6> range{};
        require(cg_boco_read(file, 1, 1, i, range.data(), nullptr));
        noOfWalls += type == CGNS_ENUMV(BCWall) && range[0] == i ? 1 : 0;
    }
    require(cg_close(file));
    return noOfWalls;
}

void cgns(benchmark::State& state, int fileType)
{
    for ([[maybe_unused]] auto iteration : state) {
        writeConditions(fileType, state.range(0));
        if (readConditions() != state.range(0))
            state.SkipWithError("What was read is not what was written.");
    }
    std::filesystem::remove(fileName());
}

void thisLibrary(benchmark::State& state)
{
    const benchmarks::Case original(state.range(0));
    const std::string text = original.setUp.serialise();
    for ([[maybe_unused]] auto iteration : state) {
        state.PauseTiming();
        physics::Physics setUp(original.geometry.model(), false);
        state.ResumeTiming();
        std::ofstream(fileName(), std::ios::binary) << original.setUp.serialise();
        std::ifstream stream(fileName(), std::ios::binary);
        const std::string found((std::istreambuf_iterator<char>(stream)), std::istreambuf_iterator<char>());
        const bool isRestored = setUp.restore(found);
        state.PauseTiming();
        if (!isRestored || setUp.serialise() != text)
            state.SkipWithError("What was restored is not what was saved.");
        setUp.clear();
        state.ResumeTiming();
    }
    std::filesystem::remove(fileName());
}

void sizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->RangeMultiplier(10)->Range(1000, 10000)->Unit(benchmark::kMillisecond);
}

BENCHMARK(thisLibrary)->Name("store and read back/this library")->Apply(sizes);
BENCHMARK_CAPTURE(cgns, "HDF5", CG_FILE_HDF5)->Name("store and read back/CGNS on HDF5")->Apply(sizes);
BENCHMARK_CAPTURE(cgns, "ADF", CG_FILE_ADF)->Name("store and read back/CGNS on ADF")->Apply(sizes);

} // namespace

BENCHMARK_MAIN();
