// Creating, listing, moving and ending the objects of a set-up, in the shapes that a careless index would
// make slow. On the scripted location model, whose entities lie nowhere and cost little. The argument is the
// number of objects; `perObject` should grow no faster than its logarithm. Each is measured twice: as the
// preparation left the processor's caches, and, named "cold", with other things in them, which is what to
// compare over sizes.

#include "benchmarks/Caches.h"
#include "physics/Boundary.h"
#include "physics/BoundaryPatch.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Physics.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/Types.h"
#include "physics/Volume.h"
#include "tests/scripted/World.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <memory>
#include <numeric>
#include <string>
#include <vector>

namespace {

using namespace physics;

const std::string nowhere;

struct SetUp {
    SetUp() { world.recordNoCalls(); }

    void addVolumes(std::int64_t noOf)
    {
        for (std::int64_t i = 0; i < noOf; ++i)
            volumes.push_back(set.createVolume("volume-" + std::to_string(i), nowhere, VolumeType::Fluid));
    }

    /// Shared out among the volumes, one volume after the other, as a host reads them.
    void addBoundaries(std::int64_t noOf)
    {
        for (std::int64_t i = 0; i < noOf; ++i) {
            Volume* owner = volumes[static_cast<std::size_t>(i) * volumes.size() / static_cast<std::size_t>(noOf)];
            boundaries.push_back(owner->createBoundary("boundary-" + std::to_string(i), nowhere));
        }
    }

    /// Each joins the first boundary with another.
    void addInterfaces(std::int64_t noOf)
    {
        for (std::int64_t i = 0; i < noOf; ++i) {
            Boundary* other = boundaries[1 + static_cast<std::size_t>(i) % (boundaries.size() - 1)];
            interfaces.push_back(
                set.createInterface("interface-" + std::to_string(i), boundaries.front(), other, InterfaceType::Wall));
        }
    }

    void addBundles(std::int64_t noOf)
    {
        for (int i = 0; i < static_cast<int>(noOf); ++i)
            volumes.front()->settings()->createThreadBundle(i, ThreadType::Fluid, i, {1});
    }

    scripted::World world;
    Physics set{world.model(), false};
    Model* first = set.createModel();
    Model* second = set.createModel();
    std::vector<Volume*> volumes;
    std::vector<Boundary*> boundaries;
    std::vector<Interface*> interfaces;
};

using Change = void (*)(SetUp& setUp, std::int64_t size);

enum class Caches { AsPrepared, Cold };

void measure(const std::string& name, Change prepare, Change act, Caches caches)
{
    const auto run = [prepare, act, caches](benchmark::State& state) {
        for (auto _ : state) {
            state.PauseTiming();
            auto setUp = std::make_unique<SetUp>();
            prepare(*setUp, state.range(0));
            if (caches == Caches::Cold)
                benchmarks::fillCaches();
            state.ResumeTiming();
            act(*setUp, state.range(0));
            state.PauseTiming();
            setUp.reset();
            state.ResumeTiming();
        }
        state.counters["perObject"] =
            benchmark::Counter(static_cast<double>(state.range(0)),
                               benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
    };
    benchmark::RegisterBenchmark(name.c_str(), run)
        ->RangeMultiplier(10)
        ->Range(1000, 1000000)
        ->Unit(benchmark::kMillisecond);
}

/// Measures `act` on what `prepare` made.
void measure(const std::string& name, Change prepare, Change act)
{
    measure(name, prepare, act, Caches::AsPrepared);
    measure(name + "/cold", prepare, act, Caches::Cold);
}

// ---- What is made before the measurement

void nothing(SetUp&, std::int64_t) {}
void oneVolume(SetUp& setUp, std::int64_t) { setUp.addVolumes(1); }

void smallVolumes(SetUp& setUp, std::int64_t size)
{
    setUp.addVolumes(size / 10);
    setUp.addBoundaries(size);
}

void oneLargeVolume(SetUp& setUp, std::int64_t size)
{
    setUp.addVolumes(1);
    setUp.addBoundaries(size);
}

void threeBoundaries(SetUp& setUp, std::int64_t)
{
    setUp.addVolumes(1);
    setUp.addBoundaries(3);
}

void oneBoundaryInManyInterfaces(SetUp& setUp, std::int64_t size)
{
    threeBoundaries(setUp, size);
    setUp.addInterfaces(size);
}

void manyVolumes(SetUp& setUp, std::int64_t size) { setUp.addVolumes(size); }

void oneGroup(SetUp& setUp, std::int64_t size)
{
    setUp.addVolumes(size);
    setUp.set.deactivateVolumes(setUp.volumes);
}

void manyBundles(SetUp& setUp, std::int64_t size)
{
    setUp.addVolumes(1);
    setUp.addBundles(size);
}

void oneBundle(SetUp& setUp, std::int64_t) { manyBundles(setUp, 1); }

ThreadBundle* bundleOf(const SetUp& setUp) { return setUp.volumes.front()->settings()->primaryThreadBundle(); }

std::vector<int> zones(std::int64_t size)
{
    std::vector<int> ids(static_cast<std::size_t>(size));
    std::iota(ids.begin(), ids.end(), 1);
    return ids;
}

void manyZones(SetUp& setUp, std::int64_t size)
{
    oneBundle(setUp, size);
    bundleOf(setUp)->setZoneIds(zones(size));
}

// ---- What is measured

void list(SetUp& setUp, std::int64_t)
{
    benchmark::DoNotOptimize(setUp.set.boundaries());
    benchmark::DoNotOptimize(setUp.set.interfaces());
    benchmark::DoNotOptimize(setUp.set.settings());
    benchmark::DoNotOptimize(setUp.first->boundaryPatches());
}

void find(SetUp& setUp, std::int64_t)
{
    for (const Boundary* boundary : setUp.boundaries)
        benchmark::DoNotOptimize(setUp.set.findBoundaryById(boundary->id()));
}

void renameBoundaries(SetUp& setUp, std::int64_t)
{
    for (Boundary* boundary : setUp.boundaries)
        boundary->rename("renamed");
}

void retypeBoundaries(SetUp& setUp, std::int64_t)
{
    for (Boundary* boundary : setUp.boundaries)
        benchmark::DoNotOptimize(boundary->setBoundaryType(BoundaryType::Symmetry));
}

/// Solids cannot have the default type of boundaries of fluids, so these change too.
void retypeVolumes(SetUp& setUp, std::int64_t)
{
    for (Volume* volume : setUp.volumes)
        volume->setType(VolumeType::Solid);
}

void deactivateAndActivate(SetUp& setUp, std::int64_t)
{
    setUp.set.activateGroup(setUp.set.deactivateVolumes(setUp.volumes));
}

/// One thread bundle with a zone of its own on each boundary.
void addThreads(SetUp& setUp, std::int64_t)
{
    for (Boundary* boundary : setUp.boundaries)
        boundary->nonOverlappingBoundarySettings()
            ->createThreadBundle(0, ThreadType::Wall, boundary->id(), {1})
            ->setZoneIds({boundary->id()});
}

void makeShellSettings(SetUp& setUp, std::int64_t)
{
    for (Boundary* boundary : setUp.boundaries) {
        boundary->setShellModel(setUp.first);
        benchmark::DoNotOptimize(boundary->nonOverlappingShellSettings());
    }
}

void moveVolumes(SetUp& setUp, std::int64_t)
{
    for (Volume* volume : setUp.volumes)
        volume->setModel(setUp.second);
}

void moveInterfaces(SetUp& setUp, std::int64_t)
{
    for (Interface* interface : setUp.interfaces)
        interface->setModel(setUp.second);
}

void relocateInterfaces(SetUp& setUp, std::int64_t)
{
    for (Interface* interface : setUp.interfaces)
        interface->relocate(setUp.boundaries[1], setUp.boundaries[2], false);
}

void putShells(SetUp& setUp, std::int64_t)
{
    for (Boundary* boundary : setUp.boundaries) {
        boundary->setShellModel(setUp.first);
        benchmark::DoNotOptimize(boundary->nonOverlappingShellSettings());
        boundary->setShellModel(setUp.second);
    }
}

void destroyVolumes(SetUp& setUp, std::int64_t)
{
    for (Volume* volume : setUp.volumes)
        volume->destroy();
}

void destroyBoundaries(SetUp& setUp, std::int64_t)
{
    for (Boundary* boundary : setUp.boundaries)
        boundary->destroy();
}

void destroyInterfaces(SetUp& setUp, std::int64_t)
{
    for (Interface* interface : setUp.interfaces)
        interface->destroy();
}

void destroyTheBoundary(SetUp& setUp, std::int64_t) { setUp.boundaries.front()->destroy(); }
void clear(SetUp& setUp, std::int64_t) { setUp.set.clear(); }

void groupEach(SetUp& setUp, std::int64_t)
{
    for (Volume* volume : setUp.volumes)
        volume->deactivate();
    for (Volume* volume : setUp.volumes)
        volume->activate();
}

void makeBundles(SetUp& setUp, std::int64_t size) { setUp.addBundles(size); }

void renumberBundles(SetUp& setUp, std::int64_t size)
{
    for (ThreadBundle* bundle : setUp.volumes.front()->settings()->threadBundles())
        bundle->setThreadId(bundle->threadId() + static_cast<int>(size));
}

void deleteBundles(SetUp& setUp, std::int64_t size)
{
    for (int i = 0; i < static_cast<int>(size); ++i)
        setUp.volumes.front()->settings()->deleteThreadBundle(i);
}

void setZones(SetUp& setUp, std::int64_t size) { bundleOf(setUp)->setZoneIds(zones(size)); }
void deleteTheBundle(SetUp& setUp, std::int64_t) { setUp.volumes.front()->settings()->deleteThreadBundle(0); }

void registerAll()
{
    const std::string small = "ten boundaries a volume/";
    measure(small + "create", nothing, smallVolumes);
    measure(small + "list", smallVolumes, list);
    measure(small + "find", smallVolumes, find);
    measure(small + "rename", smallVolumes, renameBoundaries);
    measure(small + "retype boundaries", smallVolumes, retypeBoundaries);
    measure(small + "retype volumes", smallVolumes, retypeVolumes);
    measure(small + "make settings of shells", smallVolumes, makeShellSettings);
    measure(small + "make bundles with zones", smallVolumes, addThreads);
    measure(small + "deactivate and activate", smallVolumes, deactivateAndActivate);
    measure(small + "move to another model", smallVolumes, moveVolumes);
    measure(small + "destroy one by one", smallVolumes, destroyVolumes);
    measure(small + "clear", smallVolumes, clear);

    const std::string one = "one volume with all boundaries/";
    measure(one + "create", nothing, oneLargeVolume);
    measure(one + "list", oneLargeVolume, list);
    measure(one + "move to another model", oneLargeVolume, moveVolumes);
    measure(one + "put and move a shell", oneLargeVolume, putShells);
    measure(one + "destroy one by one", oneLargeVolume, destroyBoundaries);
    measure(one + "clear", oneLargeVolume, clear);

    const std::string joined = "one boundary in all interfaces/";
    measure(joined + "create", threeBoundaries, [](SetUp& setUp, std::int64_t size) { setUp.addInterfaces(size); });
    measure(joined + "list", oneBoundaryInManyInterfaces, list);
    measure(joined + "move to another model", oneBoundaryInManyInterfaces, moveInterfaces);
    measure(joined + "relocate", oneBoundaryInManyInterfaces, relocateInterfaces);
    measure(joined + "destroy one by one", oneBoundaryInManyInterfaces, destroyInterfaces);
    measure(joined + "destroy the boundary", oneBoundaryInManyInterfaces, destroyTheBoundary);

    const std::string group = "activation groups/";
    measure(group + "one group: destroy its volumes one by one", oneGroup, destroyVolumes);
    measure(group + "a group for each volume: make and dissolve", manyVolumes, groupEach);

    const std::string bundles = "all bundles on one settings object/";
    measure(bundles + "create", oneVolume, makeBundles);
    measure(bundles + "renumber", manyBundles, renumberBundles);
    measure(bundles + "delete one by one", manyBundles, deleteBundles);
    measure("all zones on one bundle/set", oneBundle, setZones);
    measure("all zones on one bundle/set again", manyZones, setZones);
    measure("all zones on one bundle/delete the bundle", manyZones, deleteTheBundle);
}

} // namespace

int main(int argc, char** argv)
{
    registerAll();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
