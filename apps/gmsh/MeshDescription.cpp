#include "apps/gmsh/MeshDescription.h"

#include "importers/RegionIds.h"
#include "locationmodel/TopologyBuilder.h"
#include "support/InWords.h"

#include <algorithm>
#include <array>
#include <optional>

namespace physics::apps {
namespace {

using gtm::bundled::RegionIds;
using gtm::bundled::TopologyBuilder;
using Entity = MeshDescription::Entity;
using Surface = MeshDescription::Surface;

/// How an affine transformation maps, from its matrix.
std::string inWords(const std::vector<double>& matrix)
{
    using Row = std::array<double, 3>;
    if (matrix.size() != 16) {
        return "a transformation that it does not tell";
    }
    std::array<Row, 3> turning{};
    Row translation{};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            turning[row][column] = matrix[4 * row + column];
        }
        translation[row] = matrix[4 * row + 3];
    }
    const std::string inTheEnd = "the translation " + gtm::support::inWords(translation);
    if (turning == std::array<Row, 3>{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}) {
        return inTheEnd;
    }
    return "the matrix with the rows " + gtm::support::inWords(turning[0]) + ", " + gtm::support::inWords(turning[1]) +
           ", " + gtm::support::inWords(turning[2]) + " and then " + inTheEnd;
}

class Builder {
public:
    explicit Builder(const MeshDescription& mesh) : m_mesh(mesh), m_ids(m_result.notes) {}

    MeshTopology build() &&;

private:
    void addVolumes();
    void addSurface(const Surface& surface);
    void addUncovered(const MeshDescription::Uncovered& uncovered);
    void noteOtherGroups(const Entity& entity, const std::string& what, const std::string& id);
    void notePeriodic(const MeshDescription::Periodic& periodic);
    void note(const std::string& sentence) { m_result.notes.push_back(sentence); }

    /// The id of a region that the file calls `said`, or does not call.
    std::string take(const std::string& kind, const std::string& start, const std::string& said,
                     const std::string& unnamed);

    const MeshDescription& m_mesh;
    MeshTopology m_result;
    RegionIds m_ids;
    TopologyBuilder m_builder;
    std::map<int, std::string> m_bodies; ///< ids by tag
    std::map<int, std::string> m_faces;
};

std::string Builder::take(const std::string& kind, const std::string& start, const std::string& said,
                          const std::string& unnamed)
{
    const std::string id = RegionIds::asId(said);
    return id.empty() ? m_ids.take(kind, "", start + unnamed) : m_ids.take(kind, start + said, start + id);
}

void Builder::noteOtherGroups(const Entity& entity, const std::string& what, const std::string& id)
{
    for (std::size_t i = 1; i < entity.groups.size(); ++i) {
        note(what + " \"" + id + "\" is also in the group \"" + entity.groups[i] + "\"; that name is left out.");
    }
}

void Builder::addVolumes()
{
    std::map<std::string, std::size_t> sizes;
    for (const Entity& volume : m_mesh.volumes) {
        if (!volume.groups.empty()) {
            ++sizes[volume.groups.front()];
        }
    }
    std::map<std::string, std::string> parts; // ids by group
    std::map<int, std::string> partOf;
    for (const Entity& volume : m_mesh.volumes) {
        const std::string group = volume.groups.empty() ? "" : volume.groups.front();
        const bool isAlone = !group.empty() && sizes[group] == 1;
        m_bodies[volume.tag] = take("Body", "", isAlone ? group : volume.name, "volume-" + std::to_string(volume.tag));
        if (!group.empty() && !isAlone) {
            const auto [part, isNew] = parts.try_emplace(group);
            if (isNew) {
                part->second = take("Part", "", group, "part-" + std::to_string(parts.size()));
                m_builder.addPart(part->second);
            }
            partOf[volume.tag] = part->second;
        }
    }
    for (const Entity& volume : m_mesh.volumes) {
        m_builder.addBody(m_bodies[volume.tag], partOf[volume.tag]);
        noteOtherGroups(volume, "Body", m_bodies[volume.tag]);
    }
}

void Builder::addSurface(const Surface& surface)
{
    if (surface.uses.empty()) {
        const std::string name = surface.groups.empty() ? surface.name : surface.groups.front();
        note("Surface " + std::to_string(surface.tag) + (name.empty() ? "" : " (\"" + name + "\")") +
             " bounds no volume and is left out.");
        return;
    }
    const auto side = [this](const MeshDescription::Use& use) {
        return TopologyBuilder::Side{m_bodies.at(use.volume), {}, {}};
    };
    const std::string start = m_bodies.at(surface.uses.front().volume) + "/";
    const std::string id = take("Face", start, surface.groups.empty() ? surface.name : surface.groups.front(),
                                "face-" + std::to_string(surface.tag));
    const bool isWrong =
        surface.uses.size() > 2 || (surface.uses.size() == 2 && surface.uses[0].outward == surface.uses[1].outward);
    if (isWrong) {
        throw gtm::bundled::TopologyError("of the volumes at surface " + std::to_string(surface.tag) +
                                          ", two are on the same side, so they overlap; make them disjoint.");
    }
    m_faces[surface.tag] = id;
    if (surface.uses.size() == 1) {
        m_builder.addFace(id, side(surface.uses.front()));
    } else {
        const std::size_t first = surface.uses.front().outward ? 0 : 1;
        m_builder.addFace(id, side(surface.uses[first]), side(surface.uses[1 - first]));
    }
    noteOtherGroups(surface, "Face", id);
}

void Builder::addUncovered(const MeshDescription::Uncovered& uncovered)
{
    const std::string& first = m_bodies.at(uncovered.volumes.front());
    const bool isBetween = uncovered.volumes.size() == 2;
    const std::string second = isBetween ? m_bodies.at(uncovered.volumes.back()) : "";
    const std::string id = take("Face", first + "/", isBetween ? "to " + second : "uncovered", "");
    m_builder.addFace(id, {first, {}, {}},
                      isBetween ? std::optional(TopologyBuilder::Side{second, {}, {}}) : std::nullopt);
    note("Body \"" + first + "\": " + std::to_string(uncovered.noOfFaces) + " element faces of its surface" +
         (isBetween ? " towards \"" + second + "\"" : "") + " are on no surface of the file; they are the face \"" +
         id + "\".");
}

void Builder::notePeriodic(const MeshDescription::Periodic& periodic)
{
    const auto master = m_faces.find(periodic.master);
    const auto image = m_faces.find(periodic.surface);
    if (master != m_faces.end() && image != m_faces.end()) {
        note("The file maps the face \"" + master->second + "\" onto \"" + image->second + "\" by " +
             inWords(periodic.matrix) + "; only a periodic interface of a case can say so.");
    }
}

MeshTopology Builder::build() &&
{
    addVolumes();
    for (const Surface& surface : m_mesh.surfaces) {
        addSurface(surface);
    }
    for (const MeshDescription::Uncovered& uncovered : m_mesh.uncovered) {
        addUncovered(uncovered);
    }
    for (const MeshDescription::Periodic& periodic : m_mesh.periodics) {
        notePeriodic(periodic);
    }
    m_result.model = m_builder.build();
    return std::move(m_result);
}

} // namespace

MeshTopology buildModel(const MeshDescription& mesh) { return Builder(mesh).build(); }

} // namespace physics::apps
