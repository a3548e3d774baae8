#pragma once

#include "apps/gmsh/MeshDescription.h"

#include <cstddef>
#include <map>
#include <vector>

namespace physics::apps {

/// Finds out from the elements of a mesh which surfaces bound which volumes: an element of a surface has the
/// corners of a face of an element of the volume. The mesh library must hold the mesh. Cost: sorting the faces
/// of all elements.
class ElementFaces {
public:
    ElementFaces(const std::vector<int>& volumes, const std::vector<int>& surfaces);

    /// By the tags of surfaces, in the order of the volumes.
    std::map<int, std::vector<MeshDescription::Use>> uses() const;

    /// In the order of the volumes.
    std::vector<MeshDescription::Uncovered> uncovered() const;

private:
    using Corners = std::vector<std::size_t>;

    /// A face of an element, and whether its corners run the other way round than those of the first volume
    /// element that has it.
    struct Seen {
        std::vector<std::pair<std::size_t, bool>> volumes; ///< place in the list, reversed
        std::vector<std::pair<int, bool>> surfaces;        ///< tag, reversed
        Corners corners;                                   ///< as the first one has them
    };

    void collect(int dimension, int tag, std::size_t place);
    static bool isReversed(const Corners& corners, const Corners& other);

    std::vector<int> m_volumes;
    std::map<Corners, Seen> m_faces; ///< by sorted corners
};

} // namespace physics::apps
