#include "physics/ActivationGroups.h"

#include "physics/Volume.h"

#include <iterator>
#include <utility>

namespace physics {

std::vector<int> ActivationGroups::numbers() const
{
    std::vector<int> result;
    result.reserve(m_groups.size());
    for (const auto& group : m_groups)
        result.push_back(group.first);
    return result;
}

std::vector<Volume*> ActivationGroups::volumes(int number) const
{
    std::vector<Volume*> result;
    const auto group = m_groups.find(number);
    if (group == m_groups.end())
        return result;
    for (const Link<Volume>& volume : group->second)
        if (volume)
            result.push_back(volume.get());
    return result;
}

int ActivationGroups::smallestFreeNumber() const
{
    const auto firstRun = m_usedRanges.find(1);
    return firstRun == m_usedRanges.end() ? 1 : firstRun->second + 1;
}

void ActivationGroups::add(int number, const std::vector<Volume*>& volumes)
{
    restore(number, volumes);
    for (Volume* volume : volumes)
        volume->setActivationGroup(number);
}

void ActivationGroups::restore(int number, const std::vector<Volume*>& volumes)
{
    std::vector<Link<Volume>> group(volumes.size());
    for (std::size_t i = 0; i < volumes.size(); ++i)
        group[i] = volumes[i];
    markUsed(number);
    m_groups[number] = std::move(group);
}

bool ActivationGroups::dissolve(int number)
{
    const auto group = m_groups.find(number);
    if (group == m_groups.end())
        return false;
    for (const Link<Volume>& volume : group->second)
        if (volume)
            volume->setActivationGroup(-1);
    m_groups.erase(group);
    markFree(number);
    return true;
}

void ActivationGroups::clear()
{
    m_groups.clear();
    m_usedRanges.clear();
}

void ActivationGroups::markUsed(int number)
{
    int first = number;
    int last = number;
    const auto next = m_usedRanges.upper_bound(number);
    if (next != m_usedRanges.begin()) {
        const auto previous = std::prev(next);
        if (previous->second >= number)
            return;
        if (previous->second == number - 1)
            first = previous->first;
    }
    if (next != m_usedRanges.end() && next->first == number + 1) {
        last = next->second;
        m_usedRanges.erase(next);
    }
    m_usedRanges[first] = last;
}

void ActivationGroups::markFree(int number)
{
    const auto run = std::prev(m_usedRanges.upper_bound(number));
    const auto [first, last] = *run;
    m_usedRanges.erase(run);
    if (first < number)
        m_usedRanges[first] = number - 1;
    if (number < last)
        m_usedRanges[number + 1] = last;
}

} // namespace physics
