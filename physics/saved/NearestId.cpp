#include "physics/saved/NearestId.h"

#include "gtm/LocationModel.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace physics {
namespace {

/// The number of characters to insert, delete or replace that turns one text into the other (Levenshtein).
std::size_t distance(const std::string& left, const std::string& right)
{
    std::vector<std::size_t> row(right.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < left.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 0; j < right.size(); ++j) {
            const std::size_t replaced = diagonal + (left[i] == right[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, diagonal + 1, row[j] + 1});
        }
    }
    return row.back();
}

/// Keeps the nearest id among those offered, and nothing that is further away than a slip of the pen.
class Nearest {
public:
    explicit Nearest(const std::string& id) : m_wanted(id), m_bound(2 + id.size() / 4) {}

    template <class R>
    void offer(const std::vector<R*>& regions)
    {
        for (const gtm::Region* region : regions) {
            if (region == nullptr)
                continue;
            const std::string id = region->id();
            const std::size_t lengths =
                id.size() > m_wanted.size() ? id.size() - m_wanted.size() : m_wanted.size() - id.size();
            if (lengths >= m_bound)
                continue;
            const std::size_t away = distance(m_wanted, id);
            if (away < m_bound) {
                m_bound = away;
                m_found = id;
            }
        }
    }

    const std::string& found() const { return m_found; }

private:
    const std::string& m_wanted;
    std::size_t m_bound;
    std::string m_found;
};

} // namespace

std::string nearestId(const std::string& id, const gtm::VirtualTopology& topology)
{
    Nearest nearest(id);
    nearest.offer(topology.topology()->parts());
    nearest.offer(topology.unmaskedBodies());
    nearest.offer(topology.maskedBodies());
    nearest.offer(topology.unmaskedFaces());
    nearest.offer(topology.maskedFaces());
    nearest.offer(topology.unmaskedFaceUses());
    nearest.offer(topology.maskedFaceUses());
    return nearest.found();
}

} // namespace physics
