// Writing and reading whole set-ups, beside other libraries that write and read the same data, and beside what
// no such code can beat. On the scripted location model; its part in it is also measured alone. The argument is
// the number of boundaries, and each measurement begins with other things in the processor's caches.
//
// The others have it easier: they write plain structs instead of objects and read into such, and check nothing.
// What compares with them is "write/this library" and "read/this library", which reads into records and checks
// them. `restore` goes on and makes the objects with all indexes, and the entities of the location model.

#include "benchmarks/Caches.h"
#include "benchmarks/Case.h"
#include "benchmarks/peers/Graph.h"
#include "benchmarks/peers/Peer.h"

#include "gtm/LocationModel.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace {

using benchmarks::Case;
using peers::Peer;
using physics::Physics;

/// A case and what it is measured by. Made once for each size.
struct Sample {
    explicit Sample(std::int64_t noOfBoundaries)
        : original(noOfBoundaries), text(original.setUp.serialise()), graph(peers::graphOf(original.setUp))
    {
        for (const char *at = text.data(), *const end = at + text.size(); at < end;) {
            const char* const stop = std::find_if(at, end, [](char c) { return c == ' ' || c == '\n'; });
            int number = 0;
            if (stop != at && std::from_chars(at, stop, number).ptr == stop)
                numbers.push_back(number);
            at = stop + 1;
        }
    }

    Case original;
    std::string text;
    peers::Graph graph;
    std::vector<int> numbers; ///< those of the text, but for parts of names
};

const Sample& sampleOf(std::int64_t size)
{
    static std::map<std::int64_t, std::unique_ptr<Sample>> samples;
    std::unique_ptr<Sample>& sample = samples[size];
    if (!sample)
        sample = std::make_unique<Sample>(size);
    return *sample;
}

/// Measures `act` over and over, each time with other things in the caches.
void measure(benchmark::State& state, const Sample& sample, std::size_t noOfBytes, const std::function<void()>& act)
{
    for ([[maybe_unused]] auto iteration : state) {
        state.PauseTiming();
        benchmarks::fillCaches();
        state.ResumeTiming();
        act();
    }
    const auto perIteration = [&](auto count) { return static_cast<std::int64_t>(count) * state.iterations(); };
    state.SetBytesProcessed(perIteration(noOfBytes));
    state.SetItemsProcessed(perIteration(benchmarks::noOfObjects(sample.original.setUp)));
    state.counters["perBoundary"] =
        benchmark::Counter(static_cast<double>(state.range(0)),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
    state.counters["bytes"] = static_cast<double>(noOfBytes);
}

// ---- This library

void write(benchmark::State& state)
{
    const Sample& sample = sampleOf(state.range(0));
    measure(state, sample, sample.text.size(),
            [&] { benchmark::DoNotOptimize(sample.original.setUp.serialise().size()); });
}

void read(benchmark::State& state)
{
    const Sample& sample = sampleOf(state.range(0));
    if (!sample.original.setUp.checkSerialised(sample.text).empty())
        state.SkipWithError("The text is refused.");
    measure(state, sample, sample.text.size(),
            [&] { benchmark::DoNotOptimize(sample.original.setUp.checkSerialised(sample.text).size()); });
}

/// Into an empty set-up, or over one that holds the same.
void restore(benchmark::State& state, bool isEmpty)
{
    const Sample& sample = sampleOf(state.range(0));
    std::unique_ptr<Physics> setUp;
    for ([[maybe_unused]] auto iteration : state) {
        state.PauseTiming();
        setUp = std::make_unique<Physics>(sample.original.geometry.model(), false);
        bool isRestored = isEmpty || setUp->restore(sample.text);
        benchmarks::fillCaches();
        state.ResumeTiming();
        isRestored = isRestored && setUp->restore(sample.text);
        state.PauseTiming();
        if (!isRestored || setUp->serialise() != sample.text)
            state.SkipWithError("What was restored is something else.");
        setUp.reset();
        state.ResumeTiming();
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(sample.text.size()) * state.iterations());
    state.SetItemsProcessed(benchmarks::noOfObjects(sample.original.setUp) * state.iterations());
}

// ---- What of it is work of the location model

/// The questions that `serialise` has.
void askLocationModel(benchmark::State& state)
{
    const Sample& sample = sampleOf(state.range(0));
    const gtm::VirtualTopology& topology = sample.original.setUp.virtualTopology();
    const auto ask = [](const auto* entity) {
        benchmark::DoNotOptimize(entity->name());
        benchmark::DoNotOptimize(entity->location()->locationString(false));
    };
    measure(state, sample, sample.text.size(), [&] {
        for (const gtm::Interior* interior : topology.interiors()) {
            ask(interior);
            for (const gtm::Boundary* boundary : interior->boundaries())
                ask(boundary);
        }
        for (const gtm::Interface* interface : topology.interfaces()) {
            benchmark::DoNotOptimize(interface->name());
            benchmark::DoNotOptimize(interface->sides());
        }
    });
}

/// Makes what `restore` makes.
void makeEntities(const peers::Graph& graph, gtm::VirtualTopology& topology)
{
    std::map<int, gtm::Interior*> interiors;
    for (const peers::Volume& volume : graph.volumes)
        interiors[volume.id] = topology.createInterior(volume.place.name, volume.place.location, false, false).first;
    std::map<int, gtm::Boundary*> boundaries;
    for (const peers::Boundary& boundary : graph.boundaries)
        boundaries[boundary.id] =
            interiors[boundary.volume]->createBoundary(boundary.place.name, boundary.place.location, false).first;
    for (const peers::Interface& interface : graph.interfaces)
        topology.createInterface(interface.name, {boundaries[interface.first]}, {boundaries[interface.second]}, false);
}

void fillLocationModel(benchmark::State& state)
{
    const Sample& sample = sampleOf(state.range(0));
    gtm::VirtualTopology topology(sample.original.setUp.virtualTopology().topology(), "", 0);
    for ([[maybe_unused]] auto iteration : state) {
        state.PauseTiming();
        topology.clear();
        benchmarks::fillCaches();
        state.ResumeTiming();
        makeEntities(sample.graph, topology);
    }
}

// ---- Others

void writeOf(benchmark::State& state, Peer& peer)
{
    const Sample& sample = sampleOf(state.range(0));
    peer.take(sample.graph);
    measure(state, sample, peer.write().size(), [&] { benchmark::DoNotOptimize(peer.write().size()); });
    peer.take({});
}

void readOf(benchmark::State& state, Peer& peer)
{
    const Sample& sample = sampleOf(state.range(0));
    peer.take(sample.graph);
    const std::string written = peer.write();
    peer.take({});
    measure(state, sample, written.size(), [&] {
        peer.read(written);
        peer.take({});
    });
    peer.read(written);
    if (peer.graph() != sample.graph)
        state.SkipWithError("What was read is not what was written.");
    peer.take({});
}

// ---- Limits

void copyBytes(benchmark::State& state)
{
    const Sample& sample = sampleOf(state.range(0));
    measure(state, sample, sample.text.size(), [&] {
        const std::string copy = sample.text;
        benchmark::DoNotOptimize(copy.data());
    });
}

/// Each number of the text formatted on the spot, then all bytes of the text copied.
void formatAndCopy(benchmark::State& state)
{
    const Sample& sample = sampleOf(state.range(0));
    measure(state, sample, sample.text.size(), [&] {
        char digits[12];
        for (const int number : sample.numbers) {
            std::to_chars(digits, digits + sizeof digits, number);
            benchmark::DoNotOptimize(digits);
        }
        const std::string copy = sample.text;
        benchmark::DoNotOptimize(copy.data());
    });
}

/// Each number scanned out of a text that has nothing else.
void scanNumbers(benchmark::State& state)
{
    const Sample& sample = sampleOf(state.range(0));
    std::string numbers;
    for (const int number : sample.numbers)
        numbers += std::to_string(number) + ' ';
    measure(state, sample, sample.text.size(), [&] {
        const char* const end = numbers.data() + numbers.size();
        for (const char* at = numbers.data(); at != end; ++at) {
            int number = 0;
            at = std::from_chars(at, end, number).ptr;
            benchmark::DoNotOptimize(number);
        }
    });
}

// ----

template <class Function>
void add(const std::string& name, Function&& function, std::int64_t largest = 1000000)
{
    benchmark::RegisterBenchmark(name.c_str(), std::forward<Function>(function))
        ->RangeMultiplier(10)
        ->Range(1000, largest)
        ->Unit(benchmark::kMillisecond);
}

constexpr std::int64_t largestBeside = 100000;

void addAll(const std::vector<std::unique_ptr<Peer>>& others)
{
    add("write/this library", write);
    add("write/of this, the location model", askLocationModel);
    add("write/limit: copy the bytes", copyBytes);
    add("write/limit: format the numbers and copy the bytes", formatAndCopy);
    for (const auto& peer : others)
        add(
            "write/" + peer->name(), [&peer](benchmark::State& state) { writeOf(state, *peer); }, largestBeside);
    add("read/this library", read);
    add("read/limit: scan the numbers", scanNumbers);
    for (const auto& peer : others)
        add(
            "read/" + peer->name(), [&peer](benchmark::State& state) { readOf(state, *peer); }, largestBeside);
    add("restore/into an empty set-up", [](benchmark::State& state) { restore(state, true); });
    add(
        "restore/over a set-up", [](benchmark::State& state) { restore(state, false); }, largestBeside);
    add("restore/of this, the location model", fillLocationModel);
}

} // namespace

int main(int argc, char** argv)
{
    std::vector<std::unique_ptr<Peer>> others;
    others.push_back(peers::streams());
    others.push_back(peers::boostText());
    others.push_back(peers::json());
    others.push_back(peers::boostBinary());
    others.push_back(peers::cereal());
    others.push_back(peers::protobuf());
    addAll(others);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
