#pragma once

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <cstddef>
#include <vector>

namespace benchmarks {

/// Keeps freed memory in the process, so that every measurement but the first finds the pages that it needs:
/// small set-ups always do, and what the system does for large ones is no work of ours.
inline const bool keepsMemory = mallopt(M_TRIM_THRESHOLD, -1) == 1 && mallopt(M_MMAP_MAX, 0) == 1;

/// Fills the processor's caches with something else. A set-up is read, checked or changed once in a run and
/// not over and over: what is to be compared over sizes begins here, or else small set-ups would be measured
/// in the cache, large ones in memory, and the growth would say nothing of the work. Call it while the time
/// stands still.
inline void fillCaches()
{
    constexpr std::size_t moreThanCached = 64U << 20U; // bytes
    constexpr std::size_t cacheLine = 64;
    constexpr int noOfPasses = 3; // caches keep what was used often against something that comes by once
    static std::vector<char> other(moreThanCached);
    for (int pass = 0; pass < noOfPasses; ++pass)
        for (std::size_t i = 0; i < other.size(); i += cacheLine)
            ++other[i];
    benchmark::ClobberMemory();
}

/// The same within a measurement that is under way.
inline void coolDown(benchmark::State& state)
{
    state.PauseTiming();
    fillCaches();
    state.ResumeTiming();
}

} // namespace benchmarks
