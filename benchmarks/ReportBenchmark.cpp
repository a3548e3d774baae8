// The listing of a set-up at full size, beside writing the same bytes from memory. `boundaries` is the
// size: ten for each volume, or all on one volume; `toWriting` is how many times longer the listing takes.

#include "benchmarks/Caches.h"
#include "locationmodel/LocationModel.h"
#include "locationmodel/TopologyBuilder.h"
#include "physics/Boundary.h"
#include "physics/Physics.h"
#include "physics/Settings.h"
#include "physics/Volume.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <ctime>
#include <memory>
#include <optional>
#include <sstream>
#include <string>

namespace {

using gtm::bundled::LocationModel;
using gtm::bundled::TopologyBuilder;

constexpr std::int64_t facesOfBody = 10;

enum class Volumes { OnePerBody, OneForAll };

std::string bodyId(std::int64_t i) { return "body-" + std::to_string(i); }
std::string faceId(std::int64_t i, std::int64_t k) { return bodyId(i) + "/face-" + std::to_string(k); }

/// A row of bodies, each sharing its face 0 with the one before it.
std::unique_ptr<LocationModel> makeModel(std::int64_t noOfBodies)
{
    TopologyBuilder builder;
    for (std::int64_t i = 0; i < noOfBodies; ++i)
        builder.addBody(bodyId(i), "", {static_cast<std::int32_t>(i + 1)});
    for (std::int64_t i = 0; i < noOfBodies; ++i)
        for (std::int64_t k = 0; k < facesOfBody; ++k)
            builder.addFace(faceId(i, k), {bodyId(i), "", {}},
                            k == 0 && i > 0 ? std::optional(TopologyBuilder::Side{bodyId(i - 1), "", {}})
                                            : std::nullopt);
    return builder.build();
}

std::unique_ptr<physics::Physics> makeSetUp(const LocationModel& model, Volumes volumes, std::int64_t noOfBodies)
{
    auto setUp = std::make_unique<physics::Physics>(&model, false);
    physics::Volume* volume = nullptr;
    for (std::int64_t i = 0; i < noOfBodies; ++i) {
        const bool isOne = volumes == Volumes::OneForAll;
        if (!isOne || i == 0)
            volume = setUp->createVolume(bodyId(i), isOne ? std::string("*") : bodyId(i), physics::VolumeType::Fluid);
        for (std::int64_t k = 0; k < facesOfBody; ++k)
            volume->createBoundary(faceId(i, k), faceId(i, k))
                ->nonOverlappingBoundarySettings()
                ->createThreadBundle(0, physics::ThreadType::Wall, static_cast<int>(i * facesOfBody + k), {1});
    }
    return setUp;
}

/// Processor time, so that what else runs on the machine does not count.
double secondsSince(std::clock_t start) { return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC; }

double secondsOfWriting(const std::string& text)
{
    std::ostringstream stream;
    const std::clock_t start = std::clock();
    stream.write(text.data(), static_cast<std::streamsize>(text.size()));
    benchmark::DoNotOptimize(stream);
    return secondsSince(start);
}

void report(benchmark::State& state, Volumes volumes)
{
    const std::int64_t noOfBodies = state.range(0) / facesOfBody;
    const std::unique_ptr<LocationModel> model = makeModel(noOfBodies);
    const std::unique_ptr<physics::Physics> setUp = makeSetUp(*model, volumes, noOfBodies);
    std::string text;
    double seconds = 0;
    for ([[maybe_unused]] auto iteration : state) {
        benchmarks::coolDown(state);
        std::ostringstream stream;
        const std::clock_t start = std::clock();
        setUp->dump(stream);
        seconds += secondsSince(start);
        text = stream.str();
    }
    const double perReport = seconds / static_cast<double>(state.iterations());
    state.SetBytesProcessed(static_cast<std::int64_t>(text.size()) * state.iterations());
    state.counters["boundaries"] = static_cast<double>(state.range(0));
    state.counters["megabytes"] = static_cast<double>(text.size()) / 1e6;
    state.counters["toWriting"] = perReport / secondsOfWriting(text);
}

void manyVolumes(benchmark::State& state) { report(state, Volumes::OnePerBody); }
void oneVolume(benchmark::State& state) { report(state, Volumes::OneForAll); }

BENCHMARK(manyVolumes)
    ->Name("ten boundaries a volume")
    ->RangeMultiplier(10)
    ->Range(1000, 1000000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(oneVolume)
    ->Name("one volume with all boundaries")
    ->RangeMultiplier(10)
    ->Range(1000, 1000000)
    ->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
