#pragma once

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <cstddef>
#include <vector>

namespace benchmarks {

/// Fills the processor's caches with something else, and gives free memory back to the system. A set-up is
/// read, checked or changed once in a run and not over and over: what is to be compared over sizes begins
/// here, or else small set-ups would be measured in the cache and in pages that are there already, large
/// ones in memory, and the growth would say nothing of the work. Call it while the time stands still.
inline void fillCaches()
{
    constexpr std::size_t moreThanCached = 128U << 20U; // bytes
    constexpr std::size_t cacheLine = 64;
    static std::vector<char> other(moreThanCached);
    malloc_trim(0);
    for (std::size_t i = 0; i < other.size(); i += cacheLine)
        ++other[i];
    benchmark::ClobberMemory();
}

} // namespace benchmarks
