#pragma once

#include "gtm/Body.h"
#include "gtm/FaceUse.h"

#include "examples/own-kernel/Topology.h"

#include <memory>
#include <set>
#include <string>
#include <vector>

namespace own {

template <class T>
std::set<T*> asSet(const std::vector<T*>& list)
{
    return {list.begin(), list.end()};
}

/// Those of all regions of a kind, in the order of the topology, for which the condition holds.
template <class Region, class Derived, class Condition>
std::vector<Region*> select(const std::vector<std::unique_ptr<Derived>>& all, Condition condition)
{
    std::vector<Region*> selected;
    for (const auto& region : all)
        if (condition(region.get()))
            selected.push_back(region.get());
    return selected;
}

/// The elements of `left` that are in `right` too.
template <class T>
std::vector<T*> shared(const std::vector<T*>& left, const std::vector<T*>& right)
{
    const std::set<T*> wanted = asSet(right);
    std::vector<T*> both;
    for (T* element : left)
        if (wanted.count(element) != 0)
            both.push_back(element);
    return both;
}

/// The bodies that regions stand for: a body for itself, a part for its bodies, all else for nothing.
std::set<gtm::Body*> bodiesOf(const std::vector<gtm::Region*>& regions);

/// The face uses that regions stand for: a face for its sides, a body or part for all sides of it.
std::set<gtm::FaceUse*> faceUsesOf(const std::vector<gtm::Region*>& regions, const Topology& topology);

/// The text of a state; the three enumerations of states have one numbering.
std::string stateText(int state);

} // namespace own
