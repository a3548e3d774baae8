#include "apps/gmsh/MeshFile.h"

#include "apps/InputError.h"
#include "apps/gmsh/ElementFaces.h"
#include "support/WholeFile.h"

#include <gmsh.h>

#include <algorithm>
#include <cstdlib>
#include <sstream>
#include <string_view>

namespace physics::apps {
namespace {

/// The library between its beginning and its end, without a word on the terminal.
class Library {
public:
    Library()
    {
        gmsh::initialize(0, nullptr, false);
        gmsh::option::setNumber("General.Terminal", 0);
        gmsh::logger::start();
    }
    ~Library() { gmsh::finalize(); }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    /// The first complaint of the library, or nothing.
    static std::string firstError()
    {
        std::vector<std::string> log;
        gmsh::logger::get(log);
        constexpr std::string_view mark = "Error: ";
        const auto error =
            std::find_if(log.begin(), log.end(), [&](const std::string& line) { return line.rfind(mark, 0) == 0; });
        return error == log.end() ? "" : error->substr(mark.size());
    }
};

[[noreturn]] void refuse(const std::filesystem::path& file, const std::string& sentence)
{
    throw InputError(file.string() + ": " + sentence);
}

/// The library would take anything for some kind of file; and versions that it reads in another way are not
/// tested by us.
void checkHead(const std::filesystem::path& file)
{
    std::string content;
    try {
        content = gtm::support::readWholeFile(file);
    } catch (const gtm::support::FileError& error) {
        throw InputError(error.what());
    }
    std::istringstream lines(content);
    std::string word;
    std::string version;
    lines >> word >> version;
    if (word != "$MeshFormat") {
        refuse(file, "this is no mesh file, which begins with \"$MeshFormat\"; save the mesh as MSH 4.1 or 2.2.");
    }
    if (version != "4.1" && version != "2.2") {
        refuse(file, "the file is of version " + version + "; save the mesh as MSH 4.1 or 2.2.");
    }
    const std::size_t last = content.find_last_not_of(" \r\n\t");
    const std::string_view whole = std::string_view(content).substr(0, last + 1);
    if (whole.substr(whole.rfind('$') + 1).rfind("End", 0) != 0) {
        refuse(file, "the file ends within a section, before its \"$End\"; copy or save it again.");
    }
}

void open(const std::filesystem::path& file)
{
    std::string reason;
    try {
        gmsh::open(file.string());
    } catch (...) { // the library throws what it likes: numbers, texts, exceptions
        reason = "no reason given";
    }
    const std::string error = Library::firstError();
    if (!reason.empty() || !error.empty()) {
        refuse(file, "the mesh library cannot read the file (" + (error.empty() ? reason : error) +
                         "); copy or save it again.");
    }
}

std::vector<int> tagsOf(int dimension)
{
    gmsh::vectorpair entities;
    gmsh::model::getEntities(entities, dimension);
    std::vector<int> tags;
    for (const auto& [itsDimension, tag] : entities) {
        tags.push_back(tag);
    }
    return tags;
}

MeshDescription::Entity entityOf(int dimension, int tag)
{
    MeshDescription::Entity entity;
    entity.tag = tag;
    gmsh::model::getEntityName(dimension, tag, entity.name);
    std::vector<int> groups;
    gmsh::model::getPhysicalGroupsForEntity(dimension, tag, groups);
    for (const int group : groups) {
        std::string name;
        gmsh::model::getPhysicalName(dimension, group, name);
        if (!name.empty()) {
            entity.groups.push_back(name);
        }
    }
    return entity;
}

/// What the file says of the boundary of its volumes: uses by the tags of surfaces. The signs are right for
/// volumes that the mesher built itself; of those from CAD all are positive, and then the first volume counts
/// as the one out of which the normal points.
std::map<int, std::vector<MeshDescription::Use>> usesInEntities(const std::vector<int>& volumes)
{
    std::map<int, std::vector<MeshDescription::Use>> uses;
    for (const int volume : volumes) {
        gmsh::vectorpair boundary;
        gmsh::model::getBoundary({{3, volume}}, boundary, false, true, false);
        for (const auto& [dimension, signedTag] : boundary) {
            uses[std::abs(signedTag)].push_back({volume, signedTag > 0});
        }
    }
    for (auto& [surface, ofSurface] : uses) {
        if (ofSurface.size() == 2 && ofSurface[0].outward == ofSurface[1].outward) {
            ofSurface[0].outward = true;
            ofSurface[1].outward = false;
        }
    }
    return uses;
}

std::vector<MeshDescription::Periodic> periodicsOf(const std::vector<int>& surfaces)
{
    std::vector<MeshDescription::Periodic> periodics;
    for (const int surface : surfaces) {
        int master = surface;
        std::vector<std::size_t> nodes;
        std::vector<std::size_t> masterNodes;
        std::vector<double> matrix;
        gmsh::model::mesh::getPeriodicNodes(2, surface, master, nodes, masterNodes, matrix);
        if (master != surface) {
            periodics.push_back({surface, master, matrix});
        }
    }
    return periodics;
}

} // namespace

MeshDescription readMesh(const std::filesystem::path& file)
{
    checkHead(file);
    const Library library;
    open(file);
    const std::vector<int> volumes = tagsOf(3);
    const std::vector<int> surfaces = tagsOf(2);
    if (volumes.empty()) {
        refuse(file, "the file has no volume; mesh the volumes and save all elements.");
    }
    MeshDescription mesh;
    auto uses = usesInEntities(volumes);
    const ElementFaces faces(volumes, surfaces);
    if (uses.empty()) {
        mesh.uncovered = faces.uncovered();
    }
    for (const auto& [surface, seen] : faces.uses()) {
        uses[surface] = seen;
    }
    for (const int volume : volumes) {
        mesh.volumes.push_back(entityOf(3, volume));
    }
    for (const int surface : surfaces) {
        MeshDescription::Surface& described = mesh.surfaces.emplace_back();
        static_cast<MeshDescription::Entity&>(described) = entityOf(2, surface);
        described.uses = uses[surface];
    }
    mesh.periodics = periodicsOf(surfaces);
    return mesh;
}

} // namespace physics::apps
