#include "importers/cad/LeftOut.h"

#include <algorithm>

namespace gtm::bundled {

void LeftOut::add(std::string_view one, std::string_view many, std::size_t count)
{
    if (count == 0)
        return;
    const auto known = std::find_if(m_kinds.begin(), m_kinds.end(), [&](const Kind& kind) { return kind.one == one; });
    if (known == m_kinds.end())
        m_kinds.push_back({std::string(one), std::string(many), count});
    else
        known->count += count;
}

std::string LeftOut::text() const
{
    std::string text;
    for (std::size_t i = 0; i < m_kinds.size(); ++i) {
        const Kind& kind = m_kinds[i];
        text += i == 0 ? "" : i + 1 < m_kinds.size() ? ", " : " and ";
        text += std::to_string(kind.count) + " " + (kind.count == 1 ? kind.one : kind.many);
    }
    return text;
}

} // namespace gtm::bundled
