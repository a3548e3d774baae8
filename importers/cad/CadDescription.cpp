#include "importers/cad/CadDescription.h"

#include "importers/RegionIds.h"
#include "locationmodel/LocationModel.h"

#include <algorithm>
#include <utility>

namespace gtm::bundled {

namespace {

using Face = CadDescription::Face;
using FaceUse = CadDescription::FaceUse;

bool isNamed(const std::string& name) { return !RegionIds::asId(name).empty(); }

/// The use that gives the face its id: the first with a name, else the first.
const FaceUse& namingUse(const Face& face)
{
    const auto named =
        std::find_if(face.uses.begin(), face.uses.end(), [](const FaceUse& use) { return isNamed(use.name); });
    return named == face.uses.end() ? face.uses.front() : *named;
}

std::string takeId(std::string_view kind, const std::string& name, const std::string& unnamed, RegionIds& names)
{
    return isNamed(name) ? names.take(kind, name, RegionIds::asId(name)) : names.take(kind, {}, unnamed);
}

std::string takeFaceId(const FaceUse& use, const std::string& body, RegionIds& names)
{
    return isNamed(use.name) ? names.take("Face", body + "/" + use.name, body + "/" + RegionIds::asId(use.name))
                             : names.take("Face", {}, body + "/face-" + std::to_string(use.number));
}

void noteSecondNames(const Face& face, const std::string& id, CadIds& ids)
{
    const FaceUse& naming = namingUse(face);
    for (const FaceUse& use : face.uses)
        if (use.body != naming.body && isNamed(use.name))
            ids.notes.push_back("Face \"" + id + "\" is also named \"" + use.name + "\" in body \"" +
                                ids.bodies[use.body] + "\"; that name is left out.");
}

/// The bodies of a face in words, each once: "a" and "b".
std::string bodiesOf(const Face& face, const CadIds& ids)
{
    std::string text;
    for (std::size_t i = 0; i < face.uses.size(); ++i)
        text += (i == 0 ? "\"" : i + 1 < face.uses.size() ? ", \"" : " and \"") + ids.bodies[face.uses[i].body] + "\"";
    return text;
}

void refuseOverlap(const Face& face, const std::string& id, const CadIds& ids)
{
    const bool apart =
        face.uses.size() == 1 || (face.uses.size() == 2 && face.uses.front().outward != face.uses.back().outward);
    if (!apart)
        throw CadError("of the bodies " + bodiesOf(face, ids) + " at face \"" + id +
                       "\", two are on the same side, so they overlap; make them disjoint, or read the file with "
                       "imprinting.");
}

TopologyBuilder::Side side(const FaceUse& use, const CadIds& ids) { return {ids.bodies[use.body], {}, {}}; }

void addFace(const Face& face, const std::string& id, const CadIds& ids, TopologyBuilder& builder)
{
    refuseOverlap(face, id, ids);
    if (face.uses.size() == 1) {
        builder.addFace(id, side(face.uses.front(), ids));
        return;
    }
    const std::size_t first = face.uses.front().outward ? 0 : 1;
    builder.addFace(id, side(face.uses[first], ids), side(face.uses[1 - first], ids));
}

/// The normal points out of the first side, except where the only side looks against it.
CadTriangles seenFromFirstSide(CadTriangles triangles, const Face& face)
{
    if (face.uses.size() == 1 && !face.uses.front().outward)
        for (auto& corners : triangles.triangles)
            std::swap(corners[1], corners[2]);
    return triangles;
}

std::vector<CadTriangles> trianglesOf(const CadDescription& description, const CadIds& ids)
{
    std::vector<CadTriangles> all;
    for (std::size_t i = 0; i < ids.faces.size(); ++i) {
        if (description.faces[i].triangles.triangles.empty())
            continue;
        all.push_back(seenFromFirstSide(description.faces[i].triangles, description.faces[i]));
        all.back().face = ids.faces[i];
    }
    return all;
}

} // namespace

CadIds giveIds(const CadDescription& description)
{
    CadIds ids;
    RegionIds names(ids.notes);
    for (const CadDescription::Body& body : description.bodies)
        ids.bodies.push_back(takeId("Body", body.name, "body-" + std::to_string(body.number), names));
    for (std::size_t i = 0; i < description.parts.size(); ++i)
        ids.parts.push_back(takeId("Part", description.parts[i], "part-" + std::to_string(i + 1), names));
    for (const Face& face : description.faces) {
        const FaceUse& use = namingUse(face);
        ids.faces.push_back(takeFaceId(use, ids.bodies[use.body], names));
        noteSecondNames(face, ids.faces.back(), ids);
    }
    ids.renamed = names.renamed();
    return ids;
}

CadResult buildModel(const CadDescription& description)
{
    const CadIds ids = giveIds(description);
    TopologyBuilder builder;
    for (const std::string& part : ids.parts)
        builder.addPart(part);
    for (std::size_t i = 0; i < ids.bodies.size(); ++i) {
        const std::optional<std::size_t> part = description.bodies[i].part;
        builder.addBody(ids.bodies[i], part ? ids.parts[*part] : std::string());
        builder.describeBody(ids.bodies[i], description.bodies[i].facts);
    }
    for (std::size_t i = 0; i < ids.faces.size(); ++i) {
        addFace(description.faces[i], ids.faces[i], ids, builder);
        builder.describeFace(ids.faces[i], description.faces[i].facts);
    }

    CadResult result{builder.build(), description.notes, ids.renamed, trianglesOf(description, ids)};
    result.notes.insert(result.notes.end(), ids.notes.begin(), ids.notes.end());
    return result;
}

} // namespace gtm::bundled
