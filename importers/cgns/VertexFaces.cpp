#include "importers/cgns/VertexFaces.h"

#include <numeric>
#include <unordered_map>
#include <utility>

namespace gtm::bundled {

VertexFaces::VertexFaces(std::int64_t noOfVertices, std::size_t noOfFaces, Corners corners)
    : m_corners(std::move(corners)), m_start(static_cast<std::size_t>(noOfVertices) + 2)
{
    for (std::size_t face = 0; face < noOfFaces; ++face) {
        for (const std::int64_t vertex : m_corners(face)) {
            ++m_start[static_cast<std::size_t>(vertex) + 1];
        }
    }
    std::partial_sum(m_start.begin(), m_start.end(), m_start.begin());
    m_faces.resize(m_start.back());
    std::vector<std::size_t> next = m_start;
    for (std::size_t face = 0; face < noOfFaces; ++face) {
        for (const std::int64_t vertex : m_corners(face)) {
            m_faces[next[static_cast<std::size_t>(vertex)]++] = face;
        }
    }
}

std::vector<std::size_t> VertexFaces::facesOn(const std::vector<std::int64_t>& vertices) const
{
    std::unordered_map<std::size_t, std::size_t> noOfCornersGiven;
    std::vector<std::size_t> faces;
    for (const std::int64_t vertex : vertices) {
        const auto at = static_cast<std::size_t>(vertex);
        for (std::size_t i = m_start[at]; i < m_start[at + 1]; ++i) {
            const std::size_t face = m_faces[i];
            if (++noOfCornersGiven[face] == m_corners(face).size()) {
                faces.push_back(face);
            }
        }
    }
    return faces;
}

} // namespace gtm::bundled
