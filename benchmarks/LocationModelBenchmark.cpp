// The bundled location model at full size: a row of bodies, each sharing a face with the next, ten faces a
// body, one boundary a face use. `boundaries` is the size; times are for all of them together, and
// `perBoundary` should hardly grow with the size. Each measurement begins with other things in the processor's
// caches.

#include "benchmarks/Caches.h"
#include "gtm/LocationModel.h"
#include "locationmodel/LocationModel.h"
#include "locationmodel/TopologyBuilder.h"
#include "locationmodel/TopologyFile.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace {

using gtm::Boundary;
using gtm::Interior;
using gtm::bundled::LocationModel;
using gtm::bundled::TopologyBuilder;

constexpr int facesOfBody = 10;

std::string bodyId(std::int64_t i) { return "body-" + std::to_string(i); }
std::string faceId(std::int64_t i, int k) { return bodyId(i) + "/face-" + std::to_string(k); }

/// Face 0 of each body is shared with the body before it.
std::unique_ptr<LocationModel> makeModel(std::int64_t noOfFaces)
{
    TopologyBuilder builder;
    const std::int64_t noOfBodies = noOfFaces / facesOfBody;
    for (std::int64_t i = 0; i < noOfBodies; ++i) {
        builder.addBody(bodyId(i));
    }
    for (std::int64_t i = 0; i < noOfBodies; ++i) {
        for (int k = 0; k < facesOfBody; ++k) {
            const bool isShared = k == 0 && i > 0;
            builder.addFace(faceId(i, k), {bodyId(i), "", {}},
                            isShared ? std::optional(TopologyBuilder::Side{bodyId(i - 1), "", {}}) : std::nullopt);
        }
    }
    return builder.build();
}

enum class Volumes { OnePerBody, OneForAll };

/// A working copy with a boundary on each face use.
class SetUp {
public:
    SetUp(const LocationModel& model, Volumes volumes, bool withBoundaries)
        : m_model(model), copy(model.topology(), "", 0)
    {
        for (gtm::Body* body : model.bodies()) {
            if (volumes == Volumes::OneForAll && !interiors.empty()) {
                break;
            }
            const std::string location = volumes == Volumes::OneForAll ? "*" : body->id();
            interiors.push_back(copy.createInterior(body->id(), location, false, true).first);
        }
        if (withBoundaries) {
            createBoundaries();
        }
    }

    void createBoundaries()
    {
        const bool isOne = interiors.size() == 1;
        std::size_t i = 0;
        for (gtm::Body* body : m_model.bodies()) {
            Interior* interior = isOne ? interiors.front() : interiors[i++];
            for (gtm::FaceUse* faceUse : m_model.faceUses(body)) {
                boundaries.push_back(interior->createBoundary(faceUse->id(), faceUse->id(), true).first);
            }
        }
    }

private:
    const LocationModel& m_model;

public:
    gtm::VirtualTopology copy;
    std::vector<Interior*> interiors;
    std::vector<Boundary*> boundaries;
};

void setCounters(benchmark::State& state)
{
    state.counters["perBoundary"] =
        benchmark::Counter(static_cast<double>(state.range(0)),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void sizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMillisecond);
}

void buildTopology(benchmark::State& state)
{
    for (auto _ : state) {
        benchmarks::coolDown(state);
        benchmark::DoNotOptimize(makeModel(state.range(0)));
    }
    setCounters(state);
}
BENCHMARK(buildTopology)->Name("build the topology in code")->Apply(sizes);

void readTopologyFile(benchmark::State& state)
{
    const std::string text = writeTopology(*makeModel(state.range(0)));
    for (auto _ : state) {
        benchmarks::coolDown(state);
        benchmark::DoNotOptimize(gtm::bundled::readTopologyText(text, "benchmark"));
    }
    setCounters(state);
}
BENCHMARK(readTopologyFile)->Name("read it from a topology file")->Apply(sizes);

void createAndDestroy(benchmark::State& state, Volumes volumes)
{
    const auto model = makeModel(state.range(0));
    for (auto _ : state) {
        benchmarks::coolDown(state);
        SetUp setUp(*model, volumes, true);
        for (Boundary* boundary : setUp.boundaries) {
            boundary->destroy();
        }
        for (Interior* interior : setUp.interiors) {
            interior->destroy();
        }
    }
    setCounters(state);
}
BENCHMARK_CAPTURE(createAndDestroy, many, Volumes::OnePerBody)
    ->Name("create and destroy, a volume for each body")
    ->Apply(sizes);
BENCHMARK_CAPTURE(createAndDestroy, one, Volumes::OneForAll)
    ->Name("create and destroy, one volume for all")
    ->Apply(sizes);

/// Boundaries that find their faces by a pattern.
void createByPattern(benchmark::State& state, Volumes volumes)
{
    const auto model = makeModel(state.range(0));
    for (auto _ : state) {
        benchmarks::coolDown(state);
        SetUp setUp(*model, volumes, false);
        std::size_t i = 0;
        for (gtm::Body* body : model->bodies()) {
            Interior* interior = setUp.interiors.size() == 1 ? setUp.interiors.front() : setUp.interiors[i++];
            for (int k = 1; k < facesOfBody; ++k) {
                interior->createBoundary("b", body->id() + "/*-" + std::to_string(k), true);
            }
        }
    }
    setCounters(state);
}
BENCHMARK_CAPTURE(createByPattern, many, Volumes::OnePerBody)
    ->Name("create by patterns, a volume for each body")
    ->Apply(sizes);
BENCHMARK_CAPTURE(createByPattern, one, Volumes::OneForAll)
    ->Name("create by patterns, one volume for all")
    ->Apply(sizes);

/// Every state, pair and overlap, and what the interiors leave unused.
void queryAll(benchmark::State& state, Volumes volumes)
{
    const auto model = makeModel(state.range(0));
    SetUp setUp(*model, volumes, true);
    for (auto _ : state) {
        benchmarks::coolDown(state);
        for (Boundary* boundary : setUp.boundaries) {
            benchmark::DoNotOptimize(boundary->state());
            benchmark::DoNotOptimize(boundary->pair());
            benchmark::DoNotOptimize(boundary->isInternal());
            benchmark::DoNotOptimize(boundary->overlappingBoundaries());
        }
        for (Interior* interior : setUp.interiors) {
            benchmark::DoNotOptimize(interior->state());
            benchmark::DoNotOptimize(interior->unusedFaceUses());
            benchmark::DoNotOptimize(interior->internalFaces());
            benchmark::DoNotOptimize(interior->overlappingInteriors());
        }
        benchmark::DoNotOptimize(setUp.copy.isValid(false));
    }
    setCounters(state);
}
BENCHMARK_CAPTURE(queryAll, many, Volumes::OnePerBody)
    ->Name("ask for state, pair and overlaps of each, a volume for each body")
    ->Apply(sizes);
BENCHMARK_CAPTURE(queryAll, one, Volumes::OneForAll)
    ->Name("ask for state, pair and overlaps of each, one volume for all")
    ->Apply(sizes);

/// Masks and unmasks each body by itself, with the default interior and boundaries active.
void maskEachBody(benchmark::State& state, Volumes volumes)
{
    const auto model = makeModel(state.range(0));
    SetUp setUp(*model, volumes, true);
    setUp.copy.activateDefaultInterior(true);
    for (auto _ : state) {
        benchmarks::coolDown(state);
        for (gtm::Body* body : model->bodies()) {
            setUp.copy.mask({body});
            benchmark::DoNotOptimize(setUp.copy.maskedFaceUses());
            setUp.copy.unmask({body});
        }
    }
    setCounters(state);
}
BENCHMARK_CAPTURE(maskEachBody, many, Volumes::OnePerBody)
    ->Name("mask and unmask each body by itself, a volume for each body")
    ->Apply(sizes);
BENCHMARK_CAPTURE(maskEachBody, one, Volumes::OneForAll)
    ->Name("mask and unmask each body by itself, one volume for all")
    ->Apply(sizes);

/// The default interior loses a body at a time to interiors of their own, and gets it back.
void growOutOfTheDefaultInterior(benchmark::State& state)
{
    const auto model = makeModel(state.range(0));
    gtm::VirtualTopology copy(model->topology(), "", 0);
    copy.activateDefaultInterior(true);
    copy.defaultInterior()->activateDefaultBoundary(true);
    for (gtm::FaceUse* faceUse : model->faceUses()) {
        copy.defaultInterior()->createBoundary(faceUse->id(), faceUse->id(), true);
    }
    for (auto _ : state) {
        benchmarks::coolDown(state);
        for (gtm::Body* body : model->bodies()) {
            Interior* own = copy.createInterior(body->id(), body->id(), false, true).first;
            own->relocate(std::vector<gtm::Region*>{body}, true);
            own->destroy();
        }
    }
    setCounters(state);
}
BENCHMARK(growOutOfTheDefaultInterior)
    ->Name("take each body out of a default volume full of boundaries, and give it back")
    ->Apply(sizes);

} // namespace

BENCHMARK_MAIN();
