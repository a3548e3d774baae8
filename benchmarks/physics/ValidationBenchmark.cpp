// Checking whole set-ups on the bundled location model. `boundaries` is the size; times are for the whole
// set-up, and `perBoundary` should hardly grow with the size. Each measurement begins with other things in the
// processor's caches.

#include "apps/check/CheckReport.h"
#include "benchmarks/Caches.h"
#include "locationmodel/LocationModel.h"
#include "locationmodel/TopologyBuilder.h"
#include "physics/Boundary.h"
#include "physics/Physics.h"
#include "physics/Volume.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace {

using gtm::bundled::LocationModel;
using gtm::bundled::TopologyBuilder;

/// A set-up and the model under it.
struct SetUp {
    std::unique_ptr<LocationModel> model;
    std::unique_ptr<physics::Physics> physics;
};

/// A volume for each body, each with ten walls on faces of its own. Lists are in the order of the names: with
/// `isScattered` that is another than the order of creation, so that lists jump about in memory.
SetUp manyVolumes(std::int64_t noOfBoundaries, bool isScattered)
{
    const std::int64_t firstNumber = isScattered ? 0 : 1000000;
    constexpr int facesOfBody = 10;
    TopologyBuilder builder;
    for (std::int64_t i = 0; i < noOfBoundaries / facesOfBody; ++i) {
        const std::string body = "body-" + std::to_string(firstNumber + i);
        builder.addBody(body);
        for (int k = 0; k < facesOfBody; ++k) {
            builder.addFace(body + "/face-" + std::to_string(k), {body, "", {}});
        }
    }
    SetUp setUp{builder.build(), nullptr};
    setUp.physics = std::make_unique<physics::Physics>(setUp.model.get(), false);
    for (std::int64_t i = 0; i < noOfBoundaries / facesOfBody; ++i) {
        const std::string body = "body-" + std::to_string(firstNumber + i);
        physics::Volume* volume = setUp.physics->createVolume(body, body, physics::VolumeType::Fluid);
        for (int k = 0; k < facesOfBody; ++k) {
            const std::string face = body + "/face-" + std::to_string(k);
            volume->createBoundary(face, face, physics::BoundaryType::Wall);
        }
    }
    return setUp;
}

/// One volume of two bodies with a boundary of an internal type on each of the faces between them, on both
/// sides, or on one only, which is an error of every boundary.
SetUp oneVolume(std::int64_t noOfBoundaries, bool isFaulty)
{
    TopologyBuilder builder;
    builder.addBody("left");
    builder.addBody("right");
    for (std::int64_t i = 0; i < noOfBoundaries; ++i) {
        builder.addFace("face-" + std::to_string(i), {"left", "", {}}, TopologyBuilder::Side{"right", "", {}});
    }
    SetUp setUp{builder.build(), nullptr};
    setUp.physics = std::make_unique<physics::Physics>(setUp.model.get(), false);
    physics::Volume* volume =
        setUp.physics->createVolume("both", std::string("left, right"), physics::VolumeType::Fluid);
    for (std::int64_t i = 0; i < noOfBoundaries; ++i) {
        const std::string face = "face-" + std::to_string(i) + (isFaulty ? "@left" : "");
        volume->createBoundary(face, face, physics::BoundaryType::Fan);
    }
    return setUp;
}

SetUp manyVolumesInOrder(std::int64_t size) { return manyVolumes(size, false); }
SetUp manyVolumesScattered(std::int64_t size) { return manyVolumes(size, true); }
SetUp oneVolumeSound(std::int64_t size) { return oneVolume(size, false); }
SetUp oneVolumeFaulty(std::int64_t size) { return oneVolume(size, true); }

void report(benchmark::State& state)
{
    state.counters["boundaries"] = static_cast<double>(state.range(0));
    state.counters["perBoundary"] =
        benchmark::Counter(static_cast<double>(state.range(0)),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

/// What the library says of the set-up and of each of its objects.
template <SetUp (*make)(std::int64_t)>
void validate(benchmark::State& state)
{
    const SetUp setUp = make(state.range(0));
    for ([[maybe_unused]] auto _ : state) {
        benchmarks::coolDown(state);
        benchmark::DoNotOptimize(setUp.physics->validate(true, false).size());
    }
    report(state);
}

/// The check of the command line: findings, lines of the library and coverage.
template <SetUp (*make)(std::int64_t)>
void check(benchmark::State& state)
{
    const SetUp setUp = make(state.range(0));
    for ([[maybe_unused]] auto _ : state) {
        benchmarks::coolDown(state);
        benchmark::DoNotOptimize(physics::apps::check(*setUp.physics, *setUp.model, {}, false).objects.size());
    }
    report(state);
}

void sizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->RangeMultiplier(10)->Range(1000, 1000000)->Unit(benchmark::kMillisecond);
}

BENCHMARK(validate<manyVolumesInOrder>)->Name("validate, many volumes, named in the order of creation")->Apply(sizes);
BENCHMARK(validate<manyVolumesScattered>)->Name("validate, many volumes, named in another order")->Apply(sizes);
BENCHMARK(validate<oneVolumeSound>)->Name("validate, one volume, sound")->Apply(sizes);
BENCHMARK(validate<oneVolumeFaulty>)->Name("validate, one volume, faulty")->Apply(sizes);
BENCHMARK(check<manyVolumesInOrder>)
    ->Name("check of the command line, many volumes, named in the order of creation")
    ->Apply(sizes);
BENCHMARK(check<manyVolumesScattered>)
    ->Name("check of the command line, many volumes, named in another order")
    ->Apply(sizes);
BENCHMARK(check<oneVolumeSound>)->Name("check of the command line, one volume, sound")->Apply(sizes);
BENCHMARK(check<oneVolumeFaulty>)->Name("check of the command line, one volume, faulty")->Apply(sizes);

} // namespace

BENCHMARK_MAIN();
