#include "importers/cgns/ElementNumbers.h"

#include "importers/cgns/CgnsReader.h"
#include "support/InQuotes.h"

#include <iterator>

namespace gtm::bundled {

using support::inQuotes;

void ElementNumbers::add(const CgnsDescription::Section& section, std::size_t count)
{
    const auto wanted = static_cast<std::size_t>(section.last - section.first) + 1;
    if (count != wanted) {
        refuse(section, "are " + std::to_string(count) + " in number, but their range has " + std::to_string(wanted));
    }
    const auto [range, isNew] = m_ranges.emplace(section.first, Range{section.last, m_size});
    const bool reachesNext = std::next(range) != m_ranges.end() && std::next(range)->first <= section.last;
    if (!isNew || reachesNext || (range != m_ranges.begin() && std::prev(range)->second.last >= section.first)) {
        refuse(section, "have numbers that other elements have too");
    }
    m_size += count;
}

std::optional<std::size_t> ElementNumbers::placeOf(std::int64_t number) const
{
    auto range = m_ranges.upper_bound(number);
    if (range == m_ranges.begin() || number > (--range)->second.last) {
        return std::nullopt;
    }
    return range->second.place + static_cast<std::size_t>(number - range->first);
}

void ElementNumbers::refuse(const CgnsDescription::Section& section, const std::string& what) const
{
    throw CgnsError("the elements " + inQuotes(section.name) + " of the zone " + inQuotes(m_zone.name) + " " + what +
                    "; export the file again.");
}

} // namespace gtm::bundled
