#include "apps/gmsh/ElementFaces.h"

#include <gmsh.h>

#include <algorithm>
#include <set>
#include <utility>

namespace physics::apps {

ElementFaces::ElementFaces(const std::vector<int>& volumes, const std::vector<int>& surfaces) : m_volumes(volumes)
{
    for (std::size_t place = 0; place < volumes.size(); ++place) {
        collect(3, volumes[place], place);
    }
    for (const int surface : surfaces) {
        collect(2, surface, 0);
    }
}

void ElementFaces::collect(int dimension, int tag, std::size_t place)
{
    std::vector<int> types;
    gmsh::model::mesh::getElementTypes(types, dimension, tag);
    for (const int type : types) {
        for (const std::size_t noOfCorners : {std::size_t{3}, std::size_t{4}}) {
            std::vector<std::size_t> nodes;
            gmsh::model::mesh::getElementFaceNodes(type, static_cast<int>(noOfCorners), nodes, tag, true);
            for (std::size_t i = 0; i + noOfCorners <= nodes.size(); i += noOfCorners) {
                const Corners corners(nodes.begin() + static_cast<std::ptrdiff_t>(i),
                                      nodes.begin() + static_cast<std::ptrdiff_t>(i + noOfCorners));
                Corners sorted = corners;
                std::sort(sorted.begin(), sorted.end());
                Seen& seen = m_faces.try_emplace(sorted).first->second;
                if (seen.corners.empty()) {
                    seen.corners = corners;
                }
                const bool reversed = isReversed(seen.corners, corners);
                if (dimension == 3) {
                    seen.volumes.emplace_back(place, reversed);
                } else {
                    seen.surfaces.emplace_back(tag, reversed);
                }
            }
        }
    }
}

/// Whether two lists of the same corners run in opposite senses.
bool ElementFaces::isReversed(const Corners& corners, const Corners& other)
{
    const auto start = std::find(other.begin(), other.end(), corners[0]);
    const std::size_t next = (static_cast<std::size_t>(start - other.begin()) + 1) % other.size();
    return other[next] != corners[1];
}

/// The library gives the faces of a volume element with their normals outwards. Most elements of a surface
/// decide: files exist in which a few are turned.
std::map<int, std::vector<MeshDescription::Use>> ElementFaces::uses() const
{
    struct Votes {
        std::size_t outward = 0;
        std::size_t inward = 0;
        std::size_t inside = 0; ///< the volume is on both sides
    };
    std::map<int, std::map<std::size_t, Votes>> votesOf;
    for (const auto& [sorted, seen] : m_faces) {
        const bool isInside = seen.volumes.size() == 2 && seen.volumes[0].first == seen.volumes[1].first;
        for (const auto& [surface, surfaceReversed] : seen.surfaces) {
            for (const auto& [place, volumeReversed] : seen.volumes) {
                Votes& votes = votesOf[surface][place];
                ++(isInside ? votes.inside : surfaceReversed == volumeReversed ? votes.outward : votes.inward);
            }
        }
    }
    std::map<int, std::vector<MeshDescription::Use>> uses;
    for (const auto& [surface, ofVolumes] : votesOf) {
        for (const auto& [place, votes] : ofVolumes) {
            const bool isInside = votes.inside > votes.outward + votes.inward;
            uses[surface].push_back({m_volumes[place], isInside || votes.outward >= votes.inward});
            if (isInside) {
                uses[surface].push_back({m_volumes[place], false});
            }
        }
    }
    return uses;
}

std::vector<MeshDescription::Uncovered> ElementFaces::uncovered() const
{
    std::map<std::vector<std::size_t>, std::size_t> counts; // by the places of the volumes
    for (const auto& [sorted, seen] : m_faces) {
        std::set<std::size_t> places;
        for (const auto& [place, reversed] : seen.volumes) {
            places.insert(place);
        }
        const bool isInside = seen.volumes.size() == 2 && places.size() == 1;
        if (seen.surfaces.empty() && !isInside) {
            ++counts[{places.begin(), places.end()}];
        }
    }
    std::vector<MeshDescription::Uncovered> uncovered;
    for (const auto& [places, count] : counts) {
        MeshDescription::Uncovered& entry = uncovered.emplace_back();
        for (const std::size_t place : places) {
            entry.volumes.push_back(m_volumes[place]);
        }
        entry.noOfFaces = count;
    }
    return uncovered;
}

} // namespace physics::apps
