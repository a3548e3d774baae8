#pragma once

#include "tests/scripted/Topology.h"
#include "tests/scripted/WorkingCopy.h"

#include <algorithm>
#include <set>
#include <vector>

namespace scripted {

/// The unmasked ones, each once, in the order of the topology.
template <class Region>
std::vector<Region*> inOrder(const WorkingCopy& copy, std::vector<Region*> regions)
{
    std::erase_if(regions, [&](const Region* region) { return copy.isMasked(region); });
    std::sort(regions.begin(), regions.end(),
              [](Region* left, Region* right) { return scriptedOf(left)->order() < scriptedOf(right)->order(); });
    regions.erase(std::unique(regions.begin(), regions.end()), regions.end());
    return regions;
}

/// The elements of `left` that are also in `right`, in the order of `left`.
template <class Region>
std::vector<Region*> shared(std::vector<Region*> left, const std::vector<Region*>& right)
{
    const std::set<Region*> wanted(right.begin(), right.end());
    std::erase_if(left, [&](Region* region) { return !wanted.contains(region); });
    return left;
}

} // namespace scripted
