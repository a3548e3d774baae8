#pragma once

#include "importers/cgns/CgnsDescription.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace gtm::bundled {

/// The numbers of the elements of a zone. Elements get places from 0 up, in the order in which they are added.
class ElementNumbers {
public:
    /// The zone must outlive this object.
    explicit ElementNumbers(const CgnsDescription::Zone& zone) : m_zone(zone) {}

    /// Gives the next places to the elements of a section, of which there are `count`. Throws `CgnsError` when
    /// its range has another number of them, or when other elements have their numbers.
    void add(const CgnsDescription::Section& section, std::size_t count);

    /// Nothing when there is no element of that number.
    std::optional<std::size_t> placeOf(std::int64_t number) const;

    std::size_t size() const { return m_size; }

    /// The greatest number; 0 without elements.
    std::int64_t last() const { return m_ranges.empty() ? 0 : m_ranges.rbegin()->second.last; }

    /// Throws a `CgnsError` that says what is wrong with a section: "The elements "x" of the zone "y" `what` ...".
    [[noreturn]] void refuse(const CgnsDescription::Section& section, const std::string& what) const;

private:
    struct Range {
        std::int64_t last;
        std::size_t place; ///< of the first
    };

    const CgnsDescription::Zone& m_zone;
    std::map<std::int64_t, Range> m_ranges; ///< by the number of the first
    std::size_t m_size = 0;
};

} // namespace gtm::bundled
