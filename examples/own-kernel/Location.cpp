#include "examples/own-kernel/Location.h"

#include <algorithm>
#include <cstddef>

namespace own {
namespace {

/// The terms of a location string, without the blanks around them.
std::vector<std::string> termsOf(const std::string& text)
{
    std::vector<std::string> terms;
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find(',', begin), text.size());
        std::string term = text.substr(begin, end - begin);
        term.erase(0, std::min(term.find_first_not_of(' '), term.size()));
        term.erase(term.find_last_not_of(' ') + 1);
        terms.push_back(term);
        begin = end + 1;
    }
    return terms;
}

std::string joinedIds(const std::vector<gtm::Region*>& regions)
{
    std::string text;
    for (const gtm::Region* region : regions)
        text += (text.empty() ? "" : ", ") + region->id();
    return text;
}

} // namespace

std::vector<gtm::Region*> Location::regions() const
{
    if (const auto* listed = std::get_if<std::vector<gtm::Region*>>(&m_place))
        return *listed;
    std::vector<gtm::Region*> regions;
    for (const std::string& term : termsOf(std::get<std::string>(m_place)))
        if (gtm::Region* region = m_topology.findRegionById(term))
            regions.push_back(region);
    return regions;
}

std::vector<std::string> Location::unresolvableNames() const
{
    std::vector<std::string> names;
    if (const auto* text = std::get_if<std::string>(&m_place))
        for (const std::string& term : termsOf(*text))
            if (m_topology.findRegionById(term) == nullptr)
                names.push_back(term);
    return names;
}

} // namespace own

namespace gtm {

bool Location::isImplicit() const
{
    return std::holds_alternative<std::string>(static_cast<const own::Location*>(this)->m_place);
}

Regions Location::components() const
{
    return Regions(isImplicit() ? std::vector<Region*>() : static_cast<const own::Location*>(this)->regions());
}

Primitives Location::resolve() const { return Primitives(static_cast<const own::Location*>(this)->m_resolve()); }

std::string Location::locationString(bool resolved) const
{
    const auto* self = static_cast<const own::Location*>(this);
    const auto* text = std::get_if<std::string>(&self->m_place);
    if (text != nullptr && !resolved)
        return *text;
    return own::joinedIds(resolved ? self->m_resolve() : self->regions());
}

} // namespace gtm
