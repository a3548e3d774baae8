#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <vector>

namespace gtm::bundled {

/// Tells which faces stand on given vertices. Vertices are numbered from 1, faces from 0.
class VertexFaces {
public:
    using Corners = std::function<std::span<const std::int64_t>(std::size_t face)>;

    /// `corners` tells the vertices of each face as long as this object lives.
    VertexFaces(std::int64_t noOfVertices, std::size_t noOfFaces, Corners corners);

    /// The faces all corners of which are among the vertices, each of which is given once. Costs in proportion
    /// to the faces at these vertices.
    std::vector<std::size_t> facesOn(const std::vector<std::int64_t>& vertices) const;

private:
    Corners m_corners;

    /// Faces at each vertex: those of vertex v are between the v-th and the next start.
    std::vector<std::size_t> m_start;
    std::vector<std::size_t> m_faces;
};

} // namespace gtm::bundled
