// What a run does with a case from beginning to end, on the bundled location model: build the set-up, validate
// it, write its text, restore the text into another set-up, report it, and clear it. The argument is the number of
// boundaries; each counter is the processor time of one step in milliseconds.

#include "benchmarks/Case.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <ctime>
#include <sstream>
#include <string>

namespace {

using physics::Physics;

/// Adds up the time of each step, over all iterations.
class Steps {
public:
    explicit Steps(benchmark::State& state) : m_state(state) {}

    template <class Step>
    void run(const char* name, Step&& step)
    {
        const std::clock_t start = std::clock();
        step();
        m_state.counters[name].value += 1e3 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
        m_state.counters[name].flags = benchmark::Counter::kAvgIterations;
    }

private:
    benchmark::State& m_state;
};

void chain(benchmark::State& state)
{
    const std::int64_t noOfBodies = state.range(0) / benchmarks::Geometry::faceUsesOfBody;
    const benchmarks::Geometry geometry(noOfBodies);
    Steps steps(state);
    for ([[maybe_unused]] auto iteration : state) {
        Physics setUp(geometry.model(), true);
        Physics other(geometry.model(), true);
        std::size_t noOfFaults = 0;
        std::string text;
        bool isRestored = false;
        std::ostringstream report;
        steps.run("1 build", [&] { benchmarks::fill(setUp, noOfBodies); });
        steps.run("2 validate", [&] { noOfFaults = setUp.validate(true, false).size(); });
        steps.run("3 serialise", [&] { text = setUp.serialise(); });
        steps.run("4 restore", [&] { isRestored = other.restore(text); });
        steps.run("5 report", [&] { other.dump(report); });
        steps.run("6 clear", [&] { other.clear(); });
        state.PauseTiming();
        if (noOfFaults != 0 || !isRestored || report.tellp() == 0)
            state.SkipWithError("A step of the chain has failed.");
        setUp.clear();
        state.ResumeTiming();
    }
}

BENCHMARK(chain)->RangeMultiplier(10)->Range(1000, 1000000)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
