#include "tests/scripted/Location.h"

#include "gtm/Region.h"
#include "tests/scripted/Topology.h"

#include <algorithm>

namespace scripted {

namespace {

std::string trimmed(const std::string& text)
{
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string joined(const std::vector<std::string>& ids)
{
    std::string text;
    for (const std::string& id : ids) {
        text += text.empty() ? id : ", " + id;
    }
    return text;
}

std::vector<std::string> idsOf(const std::vector<gtm::Region*>& regions)
{
    std::vector<std::string> ids;
    for (const gtm::Region* region : regions) {
        if (region) {
            ids.push_back(region->id());
        }
    }
    return ids;
}

template <class Element>
bool contains(const std::vector<Element>& elements, const Element& element)
{
    return std::find(elements.begin(), elements.end(), element) != elements.end();
}

} // namespace

Location::Location(const Topology& topology, Place place, std::function<std::vector<gtm::Region*>()> primitives)
    : m_topology(topology), m_place(std::move(place)), m_primitives(std::move(primitives))
{}

std::vector<std::string> Location::terms() const
{
    std::vector<std::string> terms;
    const std::string& text = std::get<std::string>(m_place);
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find(',', begin), text.size());
        terms.push_back(trimmed(text.substr(begin, end - begin)));
        begin = end + 1;
    }
    return terms;
}

std::vector<gtm::Region*> Location::regions() const
{
    std::vector<gtm::Region*> regions;
    if (const auto* listed = std::get_if<1>(&m_place)) {
        std::copy_if(listed->begin(), listed->end(), std::back_inserter(regions), [](auto* region) { return region; });
        return regions;
    }
    for (const std::string& term : terms()) {
        if (gtm::Region* region = m_topology.findRegionById(term)) {
            regions.push_back(region);
        }
    }
    return regions;
}

std::vector<std::string> Location::unknownTerms() const
{
    std::vector<std::string> unknown;
    if (std::holds_alternative<std::string>(m_place)) {
        for (const std::string& term : terms()) {
            if (!m_topology.findRegionById(term)) {
                unknown.push_back(term);
            }
        }
    }
    return unknown;
}

bool Location::remove(const std::vector<gtm::Region*>& regions)
{
    if (auto* listed = std::get_if<1>(&m_place)) {
        return std::erase_if(*listed, [&](gtm::Region* region) { return contains(regions, region); }) > 0;
    }
    std::vector<std::string> remaining = terms();
    const std::vector<std::string> removed = idsOf(regions);
    if (std::erase_if(remaining, [&](const std::string& term) { return contains(removed, term); }) == 0) {
        return false;
    }
    m_place = joined(remaining);
    return true;
}

} // namespace scripted

namespace gtm {

bool Location::isImplicit() const
{
    return std::holds_alternative<std::string>(static_cast<const scripted::Location*>(this)->place());
}

Regions Location::components() const
{
    const auto* location = static_cast<const scripted::Location*>(this);
    return Regions(location->isImplicit() ? std::vector<Region*>() : location->regions());
}

Primitives Location::resolve() const { return Primitives(static_cast<const scripted::Location*>(this)->primitives()); }

std::string Location::locationString(bool resolved) const
{
    const auto* location = static_cast<const scripted::Location*>(this);
    if (resolved) {
        return scripted::joined(scripted::idsOf(location->primitives()));
    }
    const auto* text = std::get_if<std::string>(&location->place());
    return text ? *text : scripted::joined(scripted::idsOf(location->regions()));
}

} // namespace gtm
