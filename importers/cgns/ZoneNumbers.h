#pragma once

#include <cstdint>
#include <optional>
#include <set>

namespace gtm::bundled {

/// Gives the numbers of solver zones: what the file says, else the next that the file gives to nothing.
class ZoneNumbers {
public:
    /// To be called for all numbers of the file before the first `take`.
    void reserve(std::optional<std::int32_t> ordinal)
    {
        if (ordinal) {
            m_reserved.insert(*ordinal);
        }
    }

    std::int32_t take(std::optional<std::int32_t> ordinal)
    {
        if (ordinal) {
            return *ordinal;
        }
        while (m_reserved.count(m_next) != 0) {
            ++m_next;
        }
        return m_next++;
    }

private:
    std::set<std::int32_t> m_reserved;
    std::int32_t m_next = 1;
};

} // namespace gtm::bundled
