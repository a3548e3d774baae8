// The bundled location model at full size: a row of bodies, each sharing a face with the next, ten faces a
// body, one boundary a face use. `boundaries` is the size; times are for all of them together, and
// `perBoundary` should hardly grow with the size.

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

Volumes volumesOf(const benchmark::State& state)
{
    return state.range(1) == 0 ? Volumes::OnePerBody : Volumes::OneForAll;
}

void setCounters(benchmark::State& state)
{
    state.counters["perBoundary"] =
        benchmark::Counter(static_cast<double>(state.range(0)),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void makeSizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->ArgNames({"boundaries", "oneVolume"})->Unit(benchmark::kMillisecond);
    for (const int oneVolume : {0, 1}) {
        for (const int size : {1000, 10000, 100000}) {
            benchmark->Args({size, oneVolume});
        }
    }
}

void buildTopology(benchmark::State& state)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(makeModel(state.range(0)));
    }
    setCounters(state);
}
BENCHMARK(buildTopology)->ArgName("boundaries")->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

void readTopologyFile(benchmark::State& state)
{
    const std::string text = writeTopology(*makeModel(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(gtm::bundled::readTopologyText(text, "benchmark"));
    }
    setCounters(state);
}
BENCHMARK(readTopologyFile)->ArgName("boundaries")->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

void createAndDestroy(benchmark::State& state)
{
    const auto model = makeModel(state.range(0));
    for (auto _ : state) {
        SetUp setUp(*model, volumesOf(state), true);
        for (Boundary* boundary : setUp.boundaries) {
            boundary->destroy();
        }
        for (Interior* interior : setUp.interiors) {
            interior->destroy();
        }
    }
    setCounters(state);
}
BENCHMARK(createAndDestroy)->Apply(makeSizes);

/// Boundaries that find their faces by a pattern.
void createByPattern(benchmark::State& state)
{
    const auto model = makeModel(state.range(0));
    for (auto _ : state) {
        SetUp setUp(*model, volumesOf(state), false);
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
BENCHMARK(createByPattern)->Apply(makeSizes);

/// Every state, pair and overlap, and what the interiors leave unused.
void queryAll(benchmark::State& state)
{
    const auto model = makeModel(state.range(0));
    SetUp setUp(*model, volumesOf(state), true);
    for (auto _ : state) {
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
BENCHMARK(queryAll)->Apply(makeSizes);

/// Masks and unmasks each body by itself, with the default interior and boundaries active.
void maskEachBody(benchmark::State& state)
{
    const auto model = makeModel(state.range(0));
    SetUp setUp(*model, volumesOf(state), true);
    setUp.copy.activateDefaultInterior(true);
    for (auto _ : state) {
        for (gtm::Body* body : model->bodies()) {
            setUp.copy.mask({body});
            benchmark::DoNotOptimize(setUp.copy.maskedFaceUses());
            setUp.copy.unmask({body});
        }
    }
    setCounters(state);
}
BENCHMARK(maskEachBody)->Apply(makeSizes);

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
        for (gtm::Body* body : model->bodies()) {
            Interior* own = copy.createInterior(body->id(), body->id(), false, true).first;
            own->relocate(std::vector<gtm::Region*>{body}, true);
            own->destroy();
        }
    }
    setCounters(state);
}
BENCHMARK(growOutOfTheDefaultInterior)
    ->ArgName("boundaries")
    ->Arg(1000)
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
