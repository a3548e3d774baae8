// What objects take in memory, and what `restore` takes on its way, on the scripted location model, whose part
// is told apart. The figures are bytes and ratios, not times: every allocation of the program is counted here,
// with what the allocator adds to it. The argument is the number of boundaries.

#include "benchmarks/Case.h"
#include "physics/Boundary.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/Types.h"
#include "physics/Volume.h"
#include "tests/scripted/World.h"

#include "gtm/LocationModel.h"

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <new>
#include <string>
#include <vector>

namespace {

std::size_t inUse = 0; // bytes
std::size_t peak = 0;

/// The size that the allocator keeps in front of each block.
constexpr std::size_t header = sizeof(std::size_t);

} // namespace

void* operator new(std::size_t size)
{
    void* block = std::malloc(size);
    if (block == nullptr)
        throw std::bad_alloc();
    inUse += malloc_usable_size(block) + header;
    peak = std::max(peak, inUse);
    return block;
}

void operator delete(void* block) noexcept
{
    if (block != nullptr)
        inUse -= malloc_usable_size(block) + header;
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept { operator delete(block); }

namespace {

using namespace physics;

/// Bytes in use since it was made, and the most that there were.
class Meter {
public:
    Meter() { peak = inUse; }
    double grown() const { return static_cast<double>(inUse) - m_start; }
    double highest() const { return static_cast<double>(peak) - m_start; }

private:
    double m_start = static_cast<double>(inUse);
};

/// A volume with boundaries, each with its patch and its settings; then to all boundaries in turn the settings
/// of a shell, a bundle on these, and a zone on this.
void objects(benchmark::State& state)
{
    const std::int64_t size = state.range(0);
    const std::string nowhere;
    const auto perObject = [&](const Meter& meter) { return meter.grown() / static_cast<double>(size); };
    for ([[maybe_unused]] auto iteration : state) {
        scripted::World world;
        world.recordNoCalls();
        Physics setUp(world.model(), false);
        Volume* volume = setUp.createVolume("volume", nowhere, VolumeType::Fluid);
        std::vector<Boundary*> boundaries(static_cast<std::size_t>(size));
        std::vector<Settings*> settings(boundaries.size());
        std::vector<ThreadBundle*> bundles(boundaries.size());

        gtm::VirtualTopology alone(setUp.virtualTopology().topology(), "", 0);
        gtm::Interior* interior = alone.createInterior("volume", nowhere, false, false).first;
        const Meter entityMeter;
        for (std::int64_t i = 0; i < size; ++i)
            interior->createBoundary("boundary-" + std::to_string(i), nowhere, false);
        const double entity = perObject(entityMeter);

        const Meter boundaryMeter;
        for (std::size_t i = 0; i < boundaries.size(); ++i)
            boundaries[i] = volume->createBoundary("boundary-" + std::to_string(i), nowhere);
        state.counters["boundary"] = perObject(boundaryMeter) - entity;
        state.counters["boundary, location model"] = entity;
        state.counters["boundary, sizeof"] = sizeof(Boundary) + sizeof(Settings); // its own patch lies in it

        for (Boundary* boundary : boundaries)
            boundary->setShellModel(volume->model());
        const Meter settingsMeter;
        for (std::size_t i = 0; i < settings.size(); ++i)
            settings[i] = boundaries[i]->nonOverlappingShellSettings();
        state.counters["settings"] = perObject(settingsMeter);
        state.counters["settings, sizeof"] = sizeof(Settings);

        const Meter bundleMeter;
        for (std::size_t i = 0; i < bundles.size(); ++i)
            bundles[i] = settings[i]->createThreadBundle(0, ThreadType::Solid, static_cast<int>(i), {1});
        state.counters["bundle"] = perObject(bundleMeter);
        state.counters["bundle, sizeof"] = sizeof(ThreadBundle);

        const Meter zoneMeter;
        for (std::size_t i = 0; i < bundles.size(); ++i)
            bundles[i]->setZoneIds({static_cast<int>(i) + 1});
        state.counters["zone"] = perObject(zoneMeter);
    }
}

/// `restore` of a whole case, the memory of its text not counted.
void restore(benchmark::State& state)
{
    const benchmarks::Case original(state.range(0));
    const std::string text = original.setUp.serialise();
    for ([[maybe_unused]] auto iteration : state) {
        Physics setUp(original.geometry.model(), false);
        const Meter meter;
        if (!setUp.restore(text))
            state.SkipWithError("The text is refused.");
        state.counters["text"] = static_cast<double>(text.size());
        state.counters["finished"] = meter.grown();
        state.counters["peak"] = meter.highest();
        state.counters["peak to finished"] = meter.highest() / meter.grown();
        state.counters["peak to text"] = meter.highest() / static_cast<double>(text.size());
    }
}

void sizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->RangeMultiplier(10)->Range(1000, 100000)->Iterations(1)->Unit(benchmark::kMillisecond);
}

BENCHMARK(objects)->Apply(sizes);
BENCHMARK(restore)->Apply(sizes);

} // namespace

BENCHMARK_MAIN();
