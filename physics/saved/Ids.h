#pragma once

#include "gtm/Region.h"
#include "gtm/Topology.h"

#include <algorithm>
#include <string>
#include <vector>

namespace physics {

/// The id of an object, or -1 for none.
template <class Object>
int idOf(const Object* object)
{
    return object == nullptr ? -1 : object->id();
}

/// Ascending, each once.
template <class Object>
std::vector<int> idsOf(const std::vector<Object*>& objects)
{
    std::vector<int> ids;
    ids.reserve(objects.size());
    for (const Object* object : objects)
        ids.push_back(object->id());
    std::sort(ids.begin(), ids.end());
    ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
    return ids;
}

/// The ids of regions joined by a comma and a blank.
template <class R>
std::string joinedIds(const std::vector<R*>& regions)
{
    std::string text;
    for (const gtm::Region* region : regions)
        if (region != nullptr)
            text += (text.empty() ? "" : ", ") + region->id();
    return text;
}

/// The ids between the commas, without the blank behind each comma; none for an empty text.
inline std::vector<std::string> splitIds(const std::string& text)
{
    std::vector<std::string> ids;
    std::size_t start = 0;
    while (!text.empty() && start <= text.size()) {
        const std::size_t end = std::min(text.find(',', start), text.size());
        ids.push_back(text.substr(start, end - start));
        start = end + 1;
        if (start < text.size() && text[start] == ' ')
            ++start;
    }
    return ids;
}

/// The regions with these ids; those that the topology does not have are left out.
inline std::vector<gtm::Region*> findRegions(const gtm::Topology& topology, const std::string& ids)
{
    std::vector<gtm::Region*> regions;
    for (const std::string& id : splitIds(ids))
        if (gtm::Region* region = topology.findRegionById(id))
            regions.push_back(region);
    return regions;
}

} // namespace physics
